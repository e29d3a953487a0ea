#include <cmath>

#include "common/number_text.h"
#include "engine/engine.h"

namespace engine {

using common::RunTimeError;

namespace {

constexpr controls::Color kGreen = controls::Color::rgb(0x00FF00);

}  // namespace

void Engine::cmdMemPlus_Click() {
  StoreInMemory(mdblMemory);
}

void Engine::cmdMemStore_Click() {
  StoreInMemory(0);
}

// An entry of 0 is not stored; one written out, such as 0.00, is.
void Engine::StoreInMemory(double base) {
  common::trap(
      [&] {
        if (!mblnValue) SettleEntry();
        DropSignOfZero();
        const std::string text = c_.txtEntry.text();
        if (text.empty() || text == "0") return;
        const double memory = base + common::toNumber(text);
        if (!std::isfinite(memory)) throw RunTimeError(common::kOverflow);
        mdblMemory = memory;
        c_.cmdMemPlus.setBackColor(kGreen);
        mblnShowingResult = true;
      },
      [&](const RunTimeError& error) { ShowError(error); });
  c_.txtEntry.setFocus();
}

void Engine::cmdMemRecall_Click() {
  ShowValue(common::toText(mdblMemory));
  mblnShowingResult = mblnPosted = false;
  c_.txtEntry.setFocus();
}

void Engine::cmdMemClear_Click() {
  mdblMemory = 0;
  c_.cmdMemPlus.setBackColor(controls::Color::buttonFace());
  c_.txtEntry.setFocus();
}

}  // namespace engine
