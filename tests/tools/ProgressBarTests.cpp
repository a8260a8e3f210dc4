#include <sstream>

#include <gmock/gmock.h>

#include "ProgressBar.hpp"

namespace solvane::tool {
namespace {

using namespace std::chrono;

class ProgressBarTest : public ::testing::Test {
 protected:
  ProgressBar::Clock clock() {
    return [this] { return _now; };
  }
  void pass(milliseconds time) { _now += time; }

  std::ostringstream _out;

 private:
  steady_clock::time_point _now;
};

TEST_F(ProgressBarTest, ShortWorkShowsNothing) {
  {
    ProgressBar bar{_out, true, 100, clock()};
    pass(299ms);
    bar.update(50);
  }
  EXPECT_EQ(_out.str(), "");
}

TEST_F(ProgressBarTest, LongWorkFillsTheBarAndRemovesItAtTheEnd) {
  {
    ProgressBar bar{_out, true, 100, clock()};
    pass(300ms);
    bar.update(50);
    EXPECT_EQ(_out.str(), "\r\x1b[K[###############               ] 50 of 100 items");
    _out.str({});
    bar.update(100);
    EXPECT_EQ(_out.str(), "\r\x1b[K[##############################] 100 of 100 items");
    _out.str({});
  }
  EXPECT_EQ(_out.str(), "\r\x1b[K");
}

TEST_F(ProgressBarTest, NothingIsDrawnWhereThereIsNoTerminal) {
  {
    ProgressBar bar{_out, false, 100, clock()};
    pass(1h);
    bar.update(50);
  }
  EXPECT_EQ(_out.str(), "");
}

TEST_F(ProgressBarTest, StaysInItsLineWhateverItIsTold) {
  ProgressBar bar{_out, true, 10, clock()};
  pass(1s);
  bar.update(20);
  EXPECT_EQ(_out.str(), "\r\x1b[K[##############################] 20 of 10 items");
}

}  // namespace
}  // namespace solvane::tool
