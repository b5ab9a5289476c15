#include "designer/PopupMenus.h"

#include <string>

#include "designer/Commands.h"

namespace vantrel {

namespace {

namespace Ids = CommandIds;

constexpr std::string_view kSeparator = "-", kFormat = "Format";

constexpr std::string_view kDesignMenu[] = {
    Ids::New,
    Ids::Save,
    kSeparator,
    Ids::Copy,
    Ids::Paste,
    Ids::Delete,
    Ids::SelectAll,
    kSeparator,
    Ids::InsertArc,
    Ids::InsertPlace,
    Ids::InsertTransition,
    kSeparator,
    Ids::InsertElbow,
    Ids::RemoveElbow,
    kSeparator,
    Ids::AddNotation,
    kSeparator,
    kFormat,
    kSeparator,
    Ids::Test,
    kSeparator,
    Ids::Properties,
};
constexpr std::string_view kFormatMenu[] = {Ids::AlignHorizontal, Ids::AlignVertical, kSeparator,
                                            Ids::Backcolor,       kSeparator,         Ids::LockControls};
constexpr std::string_view kTestMenu[] = {Ids::StartCase, kSeparator, Ids::AddToken, Ids::RemoveToken, kSeparator, Ids::StopTesting};
constexpr std::string_view kRoleMenu[] = {Ids::DeleteRole};

// "Test", with the separator before it.
void ShowTestCommand(const MenuItem& pobjDesign, bool pblnOn) {
  for (std::size_t i = 1; i < pobjDesign.Items.size(); ++i) {
    if (pobjDesign.Items[i]->Id != Ids::Test) continue;
    pobjDesign.Items[i - 1]->Visible = pblnOn;
    pobjDesign.Items[i]->Visible = pblnOn;
  }
}

}  // namespace

PopupMenus::PopupMenus(Vantrel& pobjControl) : mobjControl(&pobjControl) {
  Build(mDesign, kDesignMenu);
  Build(mTest, kTestMenu);
  Build(mRole, kRoleMenu);
}

void PopupMenus::Build(MenuItem& pobjMenu, Ids pcolIds) {
  for (const std::string_view id : pcolIds) {
    if (const ControlCommand* const command = FindCommand(id)) {
      MenuItem& item = pobjMenu.Add(std::string(command->Caption), id);
      mcolSubscriptions.push_back(item.OnClick.Connect([control = mobjControl, id] {
        if (control) RunCommand(*control, id);
      }));
    } else if (id == kFormat) {
      Build(pobjMenu.Add(std::string(kFormat)), kFormatMenu);
    } else {
      pobjMenu.AddSeparator();
    }
  }
}

void PopupMenus::Follow(const MenuItem& pobjMenu) const {
  for (const auto& item : pobjMenu.Items) {
    Follow(*item);
    const ControlCommand* const command = FindCommand(item->Id);
    if (!command) continue;
    item->Enabled = command->IsEnabled(*mobjControl);
    item->Checked = command->IsChecked && command->IsChecked(*mobjControl);
  }
}

MenuItem& PopupMenus::Design() {
  Follow(mDesign);
  ShowTestCommand(mDesign, !mobjControl->RestrictTesting());
  return mDesign;
}

MenuItem& PopupMenus::Test() {
  Follow(mTest);
  return mTest;
}

}  // namespace vantrel
