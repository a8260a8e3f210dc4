#include <solvane/platform/Platform.hpp>

#include <gmock/gmock.h>
#include <support/log.hpp>

namespace {

// Fails every test that leaves a line in the log which it did not claim.
class NothingIsLoggedUnnoticed : public testing::EmptyTestEventListener {
  void OnTestEnd(const testing::TestInfo& /*test*/) override {
    for (const auto& line : solvane::capturedLog().claim()) {
      ADD_FAILURE() << "an unclaimed line in the log: " << line;
    }
  }
};

}  // namespace

solvane::testing::CapturedLog& solvane::capturedLog() {
  static const auto& log = *new auto(std::make_shared<testing::CapturedLog>());
  static const bool installed = (Platform::install({.log = log}), true);
  static_cast<void>(installed);
  return *log;
}

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  solvane::capturedLog();
  testing::UnitTest::GetInstance()->listeners().Append(new NothingIsLoggedUnnoticed);
  return RUN_ALL_TESTS();
}
