// Construction of the tagout panel: its controls, their layout in twips and their events.
//
// The table fills the panel above one row of buttons, Add, Edit and Remove, from the left.

#include "tagout/tagout.h"

#include "tagout/tagout_edit_dialog.h"
#include "tagout/tagout_removal_dialog.h"

namespace trovane {

namespace {
constexpr int32_t kMargin = 60;
constexpr int32_t kPanelWidth = 6600;
constexpr int32_t kListHeight = 3300;
constexpr int32_t kButtonTop = kMargin + kListHeight + 90;
constexpr int32_t kButtonWidth = 1095;
constexpr int32_t kButtonHeight = 375;
constexpr int32_t kButtonGap = 90;
constexpr int32_t kPanelHeight = kButtonTop + kButtonHeight + kMargin;

constexpr const char* kAddText = "502";
constexpr const char* kEditText = "504";
constexpr const char* kRemoveText = "503";
}  // namespace

Tagout::Tagout(PlatformServices platform)
    : Panel("Tagout", std::move(platform)),
      clsActiveTagouts(std::make_shared<clsTagout>(services.Platform().messageBox)),
      colChangedAttrNames(std::make_shared<cStrColl>(services.Platform().messageBox)),
      ListView1(Add<ListView>("ListView1")),
      btnAdd(Add<CommandButton>("btnAdd")),
      btnEdit(Add<CommandButton>("btnEdit")),
      btnRemove(Add<CommandButton>("btnRemove")) {
    LayOutControls();
    ConnectEvents();
    RegisterMembers();
    RegisterPanelMembers();
}

Tagout::~Tagout() = default;

void Tagout::LayOutControls() {
    Move(0, 0, kPanelWidth, kPanelHeight);
    ListView1.Move(kMargin, kMargin, kPanelWidth - 2 * kMargin, kListHeight);
    ListView1.SetTabIndex(0);
    int16_t position = 0;
    for (auto [button, tag] :
         {std::pair{&btnAdd, kAddText}, {&btnEdit, kEditText}, {&btnRemove, kRemoveText}}) {
        button->Move(kMargin + position * (kButtonWidth + kButtonGap), kButtonTop, kButtonWidth,
                     kButtonHeight);
        button->SetTag(tag);
        button->SetTabIndex(++position);
        button->SetEnabled(false);
    }
}

void Tagout::ConnectEvents() {
    btnAdd.onClick.Connect([this] { ShowTagoutEditDialog("ADD"); });
    btnEdit.onClick.Connect([this] { ShowTagoutEditDialog("EDIT"); });
    btnRemove.onClick.Connect([this] { ShowRemovalDialog(); });
    ListView1.onItemClick.Connect([this](ListItem&) { OnItemClick(); });
    ListView1.onDblClick.Connect([this] { OnDblClick(); });
    // The navigation keys move the selection without a click; the buttons follow it all the same.
    ListView1.onKeyUp.Connect([this](int16_t&, int16_t) { OnItemClick(); });
}

TagoutEditDialog* Tagout::EditDialog() const {
    return editDialog && editDialog->Loaded() ? editDialog.get() : nullptr;
}

TagoutRemovalDialog* Tagout::RemovalDialog() const {
    return removalDialog && removalDialog->Loaded() ? removalDialog.get() : nullptr;
}

}  // namespace trovane
