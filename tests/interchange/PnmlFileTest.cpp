#include "interchange/PnmlFile.h"

#include <filesystem>
#include <fstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "PnmlSamples.h"

namespace vantrel {

namespace {

namespace fs = std::filesystem;

class PnmlFile : public testing::Test {
 protected:
  PnmlFile() { fs::create_directory(mFolder); }
  ~PnmlFile() override { fs::remove_all(mFolder); }

  std::string Write(const std::string& pstrName, const std::string& pstrBytes) const {
    const fs::path path = mFolder / pstrName;
    std::ofstream(path, std::ios::binary) << pstrBytes;
    return path.string();
  }

  static std::string RefusalOf(const std::string& pstrPath, std::size_t plngLimit) {
    try {
      PnmlReader({"", false, plngLimit}).ReadFile(pstrPath);
    } catch (const PnmlError& error) {
      return error.what();
    }
    return {};
  }

  const fs::path mFolder =
      fs::temp_directory_path() / ("vantrel_pnml_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
};

TEST_F(PnmlFile, NameWithSpacesAndUmlautsIsRead) {
  const std::string path = Write("ein N\xC3\xA4tz.pnml", test::FileWith("<place id='p'/>"));
  EXPECT_EQ(test::Outline(PnmlReader().ReadFile(path)), "P p; ");
}

TEST_F(PnmlFile, WhatIsNoFileIsNamed) {
  const std::string missing = (mFolder / "missing.pnml").string();
  EXPECT_EQ(RefusalOf(missing, 10), missing + ": there is no such file");
  EXPECT_EQ(RefusalOf(mFolder.string(), 10), mFolder.string() + ": is a directory");
  const std::string below = Write("file", "x") + "/below.pnml";
  EXPECT_THAT(RefusalOf(below, 10), testing::StartsWith(below + ": "));
  EXPECT_EQ(RefusalOf(Write("empty.pnml", ""), 10),
            (mFolder / "empty.pnml").string() + ": not XML: there is no element in the file (line 1, column 1)");
}

TEST_F(PnmlFile, SizeLimitIsTheLastSizeTaken) {
  const std::string bytes = test::FileWith("");
  const std::string path = Write("net.pnml", bytes);
  EXPECT_EQ(RefusalOf(path, bytes.size()), "");
  EXPECT_EQ(RefusalOf(path, bytes.size() - 1), path + ": the file is larger than " + std::to_string(bytes.size() - 1) + " bytes");
}

TEST_F(PnmlFile, HugeFileIsRefusedByItsSize) {
  const std::string path = Write("huge.pnml", "<pnml>");
  fs::resize_file(path, 1ULL << 40U);
  EXPECT_EQ(RefusalOf(path, PnmlOptions().SizeLimit), path + ": the file is larger than 64 MiB");
}

TEST_F(PnmlFile, DeviceWithoutAnEndIsReadUpToTheLimit) {
  if (!fs::exists("/dev/zero")) GTEST_SKIP() << "no such device here";
  EXPECT_EQ(RefusalOf("/dev/zero", 100), "/dev/zero: the file is larger than 100 bytes");
}

}  // namespace

}  // namespace vantrel
