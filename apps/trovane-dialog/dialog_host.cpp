#include "dialog_host.h"

#include <filesystem>
#include <stdexcept>

#include "core/conversions.h"
#include "frame_window_override.h"
#include "scenario_objects.h"
#include "sim/dial_up_lines.h"

namespace trovane::dialog {

DialogHost::DialogHost(const DialogOptions& optionsIn, PlatformServices platformIn)
    : DialogHost(optionsIn, std::move(platformIn), LoadDialogDatabase(optionsIn)) {
}

DialogHost::DialogHost(const DialogOptions& optionsIn, PlatformServices platformIn,
                       std::unique_ptr<sim::ProcessDatabase> database)
    : options(optionsIn), platform(std::move(platformIn)) {
    if (options.dialogTimeout)
        platform.files = std::make_shared<FrameWindowOverride>(platform.files, *options.dialogTimeout);
    if (!options.installationRoot.empty()) database->App().systemRoot = options.installationRoot;
    auto server = std::make_shared<sim::SimulatedServer>(std::move(database));
    application = server->Database().App().number;
    connection = std::make_shared<sim::SimulatedConnection>(server);
    if (options.serverUrl) {
        net::NetworkConnectionOptions networkOptions;
        (void)net::ParseBrokerUrl(*options.serverUrl, networkOptions.broker);
        networkOptions.application = application;
        networkOptions.user = options.userName;
        const auto patience = networkOptions.broker.connectTimeout;
        network = std::make_shared<net::NetworkConnection>(std::move(networkOptions));
        if (!network->WaitUntilReady(patience))
            throw net::NetworkError("no trovane-server answers for application " +
                                    std::to_string(application) + " on " + *options.serverUrl);
    }
    functions = std::make_shared<CommonFunctions>(platform);
    container = std::make_shared<StandardContainer>(
        "frmControlDialog", functions,
        ContainerSettings{ServerConnection(), application, options.userName, options.rights});
    actions = std::make_shared<DemoHostActions>(panels, *container,
                                                ObjectIdentity{options.objectName, options.index});
    AnswerHostActions(*container, actions);
}

DialogHost::~DialogHost() {
    Stop();
}

void DialogHost::Start(int32_t frameHandle) {
    if (started) return;
    started = true;
    functions->SetStartInfo(StartInformation(frameHandle));
    const ObjectIdentity object{options.objectName, options.index};
    panels.Start(ControlDialogSites(FeaturesOf(Server().Database(), object)),
                 SiteContext{*container, platform, ServerConnection(), application, object});
}

void DialogHost::Stop() {
    if (!started) return;
    started = false;
    panels.Stop();
}

// The server's time passes between pumps: dialling lines connect when their time has come.
int32_t DialogHost::Pump() {
    if (network) return network->Pump();
    sim::AdvanceDialUpLines(Server().Database());
    return connection->Pump();
}

Variant DialogHost::ServerConnection() const {
    if (network) return Variant(ObjectRef(network));
    return Variant(ObjectRef(connection));
}

Variant DialogHost::StartInformation(int32_t frameHandle) {
    Variant info = functions->EmptyList();
    functions->AddListAttribute(info, "APP_NR", Variant(application));
    functions->AddListAttribute(info, "LANGUAGE", Variant(options.language));
    functions->AddListAttribute(info, "USER_NAME", Variant(options.userName));
    functions->AddListAttribute(info, "USED_OPC_SERVER", ServerConnection());
    // The colour scheme and the operator's own colours come from the application's folders.
    functions->AddListAttribute(info, "USE_CST", Variant(int16_t{1}));
    functions->AddListAttribute(info, "SET_OWNER", Variant(true));
    functions->AddListAttribute(info, "FRAME_HANDLE", Variant(frameHandle));
    return info;
}

// The object's own text, as the server holds it ("Circuit breaker Q0"), after its name and index.
std::string DialogHost::ObjectCaption() const {
    std::string caption = options.objectName + " " + std::to_string(options.index);
    if (const sim::ProcessObject* object =
            connection->Server().Database().FindObject(options.objectName, options.index)) {
        const auto text = object->attributes.find("TX");
        if (text != object->attributes.end()) caption += " - " + ToString(text->second);
    }
    return caption;
}

// Beside the executable in a build tree; in an installation the programs live under the library
// directory and the root under share/trovane.
std::string LocalServerRoot(const std::string& executablePath) {
    const auto directory = std::filesystem::path(executablePath).parent_path();
    for (const auto& root : {directory / "server-root", directory / TROVANE_INSTALLED_SERVER_ROOT}) {
        std::error_code ignored;
        if (std::filesystem::is_directory(root, ignored))
            return std::filesystem::weakly_canonical(root, ignored).string();
    }
    return {};
}

}  // namespace trovane::dialog
