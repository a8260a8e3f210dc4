#include <cstdlib>
#include <optional>
#include <string>

#include <gmock/gmock.h>
#include <support/TemporaryFolder.hpp>

#include "IndexPath.hpp"

namespace solvane::tool {
namespace {

using ::testing::HasSubstr;
using ::testing::Optional;

/// Changes a variable of the environment for the length of a test.
class Variable {
 public:
  Variable(const char* name, const char* value) : _name(name) {
    if (const char* before = std::getenv(name)) _before = before;
    set(value);
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable() { set(_before ? _before->c_str() : nullptr); }

 private:
  void set(const char* value) const {
    if (value == nullptr) {
      ::unsetenv(_name);
    } else {
      ::setenv(_name, value, 1);
    }
  }

  const char* _name;
  std::optional<std::string> _before;
};

using Path = std::filesystem::path;

TEST(IndexPath, LiesInTheUsersDataFolder) {
  const Variable data{"XDG_DATA_HOME", "/data/ann"};
  const Variable home{"HOME", "/home/ann"};
  EXPECT_THAT(defaultIndexPath(), Optional(Path{"/data/ann/solvane/index.db"}));
}

TEST(IndexPath, LiesBelowHomeWhereNoDataFolderIsNamed) {
  const Variable home{"HOME", "/home/ann"};
  for (const char* value : {static_cast<const char*>(nullptr), "", "relative/data"}) {
    const Variable data{"XDG_DATA_HOME", value};
    EXPECT_THAT(defaultIndexPath(), Optional(Path{"/home/ann/.local/share/solvane/index.db"}));
  }
}

TEST(IndexPath, IsAbsentWhereNoFolderIsKnown) {
  const Variable data{"XDG_DATA_HOME", nullptr};
  const Variable home{"HOME", nullptr};
  EXPECT_EQ(defaultIndexPath(), std::nullopt);
}

TEST(IndexPath, AMistypedPathIsAnErrorAndMakesNoIndex) {
  const TemporaryFolder folder;
  const auto index = openExistingIndex(folder.path() / "typo/index.db");
  ASSERT_FALSE(index);
  EXPECT_THAT(index.error().message, HasSubstr("typo/index.db"));
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "typo"));
}

}  // namespace
}  // namespace solvane::tool
