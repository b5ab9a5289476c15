#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "SampleWorkflow.h"
#include "interchange/PnmlExport.h"
#include "interchange/PnmlImport.h"

namespace vantrel::test {
namespace {

namespace fs = std::filesystem;

class PnmlExportFile : public testing::Test {
 protected:
  PnmlExportFile() { fs::create_directories(mFolder); }
  ~PnmlExportFile() override { fs::remove_all(mFolder); }

  std::string Path(const std::string& pstrName) const { return (mFolder / pstrName).string(); }
  static void Put(const std::string& pstrPath, const std::string& pstrText) { std::ofstream(pstrPath) << pstrText; }
  std::size_t FilesInFolder() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(mFolder), fs::directory_iterator()));
  }

  fs::path mFolder =
      fs::path(testing::TempDir()) / ("export_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
};

TEST_F(PnmlExportFile, ReplacesAFileBehindALinkAndLeavesNothingBeside) {
  Put(Path("old"), "something longer than nothing");
  Put(Path("old.new"), "somebody else's");
  fs::permissions(Path("old"), fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink("old", Path("link"));
  ExportPnml(*SmallWorkflow(), Path("link"));
  EXPECT_TRUE(fs::is_symlink(Path("link")));
  EXPECT_EQ(ImportPnml(Path("old")).Workflow->Places.Count(), 2);
  EXPECT_EQ(fs::status(Path("old")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(FilesInFolder(), 3U);
}

TEST_F(PnmlExportFile, FailureNamesTheFileAndLeavesTheOldOne) {
  fs::create_directory(Path("folder"));
  for (const std::string& path : {Path("folder"), Path("missing/net.pnml"), std::string("/dev/full")}) {
    try {
      ExportPnml(*SmallWorkflow(), path);
      FAIL() << path;
    } catch (const Error& error) {
      EXPECT_EQ(error.Number, vntErrFileFormat);
      EXPECT_THAT(error.Description, testing::StartsWith(path + ": cannot be written: "));
    }
  }
  EXPECT_EQ(FilesInFolder(), 1U);
}

}  // namespace
}  // namespace vantrel::test
