#pragma once

#include "contract/contract_test.h"

namespace contract {

/// A focused box: a single-line box or the tape.
class TextBoxContract : public ContractTest, public testing::WithParamInterface<const char*> {
 protected:
  TextBoxContract() : box_(window_->textBox(GetParam())) {
    focus(box_);
    box_.onChange = [this](controls::ChangedBy by) {
      note(by == controls::ChangedBy::User ? "user" : "program");
    };
  }

  controls::TextBox& box_;
};

}  // namespace contract
