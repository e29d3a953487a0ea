#include "desktop/program/program_test.h"

namespace program {
namespace {

class OutsideMessages : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    start();
  }

  // False when the program does not answer in time. What the system does not send at all, it need
  // not answer.
  static bool send(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                   UINT patience = 20'000) {
    DWORD_PTR answer = 0;
    SetLastError(ERROR_SUCCESS);
    return SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, patience, &answer) !=
               0 ||
           GetLastError() != ERROR_TIMEOUT;
  }

  static void expectWorking() {
    ASSERT_TRUE(program().running());
    send(program().tape(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
    send(program().entry(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
    click(middleOf(program().entry()));
    type("12+");
    EXPECT_TRUE(eventually([] { return textOf(program().tape()).ends_with(L"12.00   "); }))
        << "the entry takes no figures any more";
  }
};

// Not every system hands over so long a text. Then it is given up, and the program goes on.
TEST_F(OutsideMessages, EnormousTextsNeitherEndNorHangTheProgram) {
  constexpr UINT kPatience = 1000;
  const std::wstring enormous(1'300'000, L'7');
  for (const HWND box : {program().entry(), program().decimals(), program().tape()})
    for (const UINT message : {static_cast<UINT>(WM_SETTEXT), static_cast<UINT>(EM_REPLACESEL)})
      send(box, message, 0, reinterpret_cast<LPARAM>(enormous.c_str()), kPatience);
  expectWorking();
}

}  // namespace
}  // namespace program
