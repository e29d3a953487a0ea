#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "app/application.h"
#include "bench/bench_desktop.h"

// Prints the median cost of one posting, key strokes and painting included, on a tape of about 100
// lines and on one of about 100,000, and the ratio of the two. The two tapes take turns, so that
// both meet the same load of the machine.
namespace {

constexpr int kShortTape = 100;
constexpr int kLongTape = 100'000;
constexpr int kTurn = 100;

using Clock = std::chrono::steady_clock;

/// A main window and the cost of its postings.
class Machine {
 public:
  Machine(bench::BenchDesktop& screen, controls::Twips left, int lines)
      : screen_(screen), app_(screen.desktop()), lines_(lines) {
    app_.start();
    window_ = app_.findWindow("frmCalc");
    window_->setLeft(left);
  }

  /// Posts amounts while the window is in front.
  void takeTurn() {
    window_->show();
    screen_.paint();
    for (int i = 0; i < kTurn; ++i) {
      const auto before = Clock::now();
      window_->sendKey('7', '7');
      window_->sendKey(187, '+');
      screen_.paint();
      const std::chrono::duration<double, std::micro> cost = Clock::now() - before;
      costs_.push_back(cost.count());
    }
  }

  /// Fills the tape up to half a turn below its size.
  void fill() {
    constexpr int kLinesAtOnce = 1000;
    controls::TextBox& tape = window_->textBox("txtTape");
    tape.setText("Top");
    std::string block;
    for (int line = 1; line <= lines_ - kTurn / 2; ++line) {
      block += "\r\n1,234.50 + ";
      if (line % kLinesAtOnce == 0) tape.append(std::exchange(block, ""));
    }
    tape.append(block);
    screen_.paint();
  }

  double medianMicroseconds() {
    const auto middle = costs_.begin() + static_cast<std::ptrdiff_t>(costs_.size() / 2);
    std::nth_element(costs_.begin(), middle, costs_.end());
    return *middle;
  }

 private:
  bench::BenchDesktop& screen_;
  app::Application app_;
  controls::Window* window_ = nullptr;
  int lines_;
  std::vector<double> costs_;
};

}  // namespace

int main(int count, char** arguments) {
  const int postings = count > 1 ? std::max(std::stoi(arguments[1]), kTurn) : 10'000;
  bench::BenchDesktop screen;
  Machine shortTape(screen, 300, kShortTape);
  Machine longTape(screen, 8000, kLongTape);
  longTape.fill();
  for (int done = 0; done < postings; done += kTurn) {
    shortTape.fill();
    shortTape.takeTurn();
    longTape.takeTurn();
  }
  const double shortCost = shortTape.medianMicroseconds();
  const double longCost = longTape.medianMicroseconds();
  std::printf("one posting at %d lines: %.1f us\none posting at %d lines: %.1f us\nratio %.2f\n",
              kShortTape, shortCost, kLongTape, longCost, longCost / shortCost);
  std::fflush(stdout);
  // The next run would ask about a tape that was left behind.
  screen.desktop().tapeSafe().clear();
}
