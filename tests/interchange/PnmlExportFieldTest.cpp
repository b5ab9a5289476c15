// Nets that other tools drew, read, written and read again.
#include <cstdlib>
#include <filesystem>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "PtNetGrammar.h"
#include "WorkflowText.h"
#include "interchange/PnmlExport.h"
#include "interchange/PnmlImport.h"

namespace vantrel::test {
namespace {

std::set<std::string> FilesOfTheField() {
  const char* folder = std::getenv("VANTREL_NETS");
  std::set<std::string> files;
  if (folder == nullptr) return files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    const std::string extension = entry.path().extension();
    if (extension == ".pnml" || extension == ".xml") files.insert(entry.path().string());
  }
  return files;
}

std::string MarkingText(const std::vector<InitialTokens>& pcolMarking) {
  std::string text;
  for (const auto& tokens : pcolMarking) text += tokens.Where->Name() + '=' + std::to_string(tokens.Count) + ' ';
  return text;
}

TEST(PnmlExportField, EveryNetThatIsReadComesBackTheSameAndIsValid) {
  const auto files = FilesOfTheField();
  if (files.empty()) GTEST_SKIP() << "VANTREL_NETS names no folder with nets";
  PnmlOptions reading;
  reading.SkipUnsupported = true;
  std::size_t taken = 0;
  for (const std::string& file : files) {
    LoadedNet first;
    try {
      first = ImportPnml(file, reading);
    } catch (const PnmlError&) {
      continue;
    }
    ++taken;
    const std::string document = ToPnml(*first.Workflow, {first.Id, first.Name, first.Marking});
    EXPECT_EQ(FaultOfPtNet(document), "") << file;
    const LoadedNet second = BuildWorkflow(PnmlReader().ReadBytes(document, file));
    EXPECT_TRUE(TextOf(*second.Workflow) == TextOf(*first.Workflow)) << file;
    EXPECT_EQ(second.Name, first.Name) << file;
    EXPECT_EQ(MarkingText(second.Marking), MarkingText(first.Marking)) << file;
    EXPECT_TRUE(ToPnml(*second.Workflow, {second.Id, second.Name, second.Marking}) == document) << file;
  }
  EXPECT_GT(taken, 0U);
  RecordProperty("nets", static_cast<int>(taken));
}

}  // namespace
}  // namespace vantrel::test
