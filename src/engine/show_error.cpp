#include "engine/show_error.h"

#include "common/run_time_error.h"

namespace engine {

void showError(controls::Desktop& desktop, int number) {
  desktop.showMessage({.text = common::errorText(number)});
}

}  // namespace engine
