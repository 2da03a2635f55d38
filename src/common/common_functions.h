#pragma once
// CommonFunctions: the shared service object of the control dialog.
//
// The host creates one and hands it the start information; the panels reach it through their
// container. It is the one command channel to the server, the value-list toolkit, the keeper of
// start information and configuration, the text lookup, the dialog placement and the error dialog.
// Each group of operations is implemented in its own source file (command_channel.cpp,
// value_lists.cpp, start_info.cpp, texts.cpp, placement.cpp, show_error.cpp); every public member is
// also reachable late-bound by its name (common_functions_members.cpp).

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/checked_int.h"
#include "core/object.h"
#include "platform/platform_services.h"
#include "core/api_begin.h"

namespace trovane {

class Form;
class KeyedCollection;

class CommonFunctions : public Object {
  public:
    explicit CommonFunctions(PlatformServices platform = PlatformServices::Defaults());
    ~CommonFunctions() override;
    CommonFunctions(const CommonFunctions&) = delete;
    CommonFunctions& operator=(const CommonFunctions&) = delete;

    std::string ClassName() const override { return "CommonFunctions"; }
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;

    const PlatformServices& Platform() const { return platform_; }

    // ---- Command channel --------------------------------------------------------------------
    Variant RunVexlCmdGlobalWithStatus(const Variant& argCommunication, const std::string& vexlCmd,
                                       int16_t Application, int32_t& status);
    Variant RunVexlCmdGlobal(const Variant& argCommunication, const std::string& vexlCmd,
                             int16_t Application);
    void DebugInfo(const std::string& infoText);

    // ---- Value lists ------------------------------------------------------------------------
    Variant EmptyList();
    void AddListAttribute(Variant& vexlList, const std::string& attName, const Variant& attValue);
    Variant SetListAttribute(Variant& vexlList, const std::string& attName, const Variant& attValue);
    Variant GetListItem(const Variant& list, const std::string& itemName);
    // The same for a list the caller is done with: the item is moved out instead of copied.
    Variant GetListItem(Variant&& list, const std::string& itemName);
    Variant GetListItemDef(const Variant& list, const std::string& itemName, const Variant& defaultValue);
    void SetStringReplacementList(const Variant& list);
    // The replacement text under a key ("ID1234"), or "" when there is none or it is not text.
    std::string ReplacementText(const std::string& key);
    // A copy of the replacement list as the host gave it (Empty until set).
    Variant GetStringReplacementList() const { return replacementList; }

    // ---- Start information and configuration -------------------------------------------------
    void SetStartInfo(const Variant& StartInfo);
    Variant GetStartInfo();
    int32_t GetDialogTimeout();
    int32_t GetColorByIndex(int16_t Index);

    // ---- Character sets ---------------------------------------------------------------------
    // Sets the font character set of every control of a collection (an object answering
    // "Count"/"Item", or a Form's control list) to the system's ANSI character set.
    void SetCharsetValues(const Variant& ctrls);

    // ---- Texts ------------------------------------------------------------------------------
    void SetResDllBaseName(const std::string& baseName);
    void SetResDllPath(const std::string& path);
    void loadResourceDll(const std::string& language);
    void SetLanguage(const std::string& language);
    Variant GetLanguage();
    std::string GetNlsString(int32_t id);
    Variant MakeCleanup();

    // ---- Dialog placement and window ownership -------------------------------------------------
    void CheckDialogPosition(Form& frm);
    void SetWindowOwner(bool SetOwner);
    void SetWindowOrder(int32_t hwnd);
    void SetWindowOrder2(int32_t hwnd, int32_t frameHandle);
    bool IsWorkstationInActiveUse();

    // ---- Error dialog -----------------------------------------------------------------------
    Variant ShowError(const std::string& errorString);
    Variant ShowError2(const std::string& errorString, int32_t hwndParent);

    // The number of commands this instance has sent.
    Counter32 commandCounter;

  private:
    // The position of the value that follows the name, traced as GetListItem; nothing when absent.
    std::optional<int32_t> FindListItem(const Variant& list, const std::string& itemName);

    PlatformServices platform_;

    // Value lists: the host's text replacements (keyed, case-insensitive) and the list as given.
    std::unique_ptr<KeyedCollection> replacements;
    Variant replacementList;

    // Start information and configuration.
    Variant startInfo;
    int32_t dialogTimeout = 90;

    // Texts.
    std::vector<std::shared_ptr<StringTable>> loadedResourceFiles;  // every file loaded, last one in use
    std::string resDllBaseName;
    std::string resDllPath;
    std::string language;

    // Window ownership.
    bool setOwner = true;
};

}  // namespace trovane

#include "core/api_end.h"
