// A minimal host: the blocking panel in a window of its own, on the host's own connection.
//
//   qt_host [--quit-after MILLISECONDS]
//
// The host supplies the two things a panel needs from outside: a container (the panel's parent,
// answering the members the panel calls by name) and a connection object (here an adapter over the
// simulated server; a real host adapts its own server client the same way).

#include <QApplication>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include "blocking/blocking.h"
#include "common/common_functions.h"
#include "core/conversions.h"
#include "platform/connection.h"
#include "platform/late_bound.h"
#include "qt/form_view.h"
#include "qt/notification_pump.h"
#include "qt/qt_platform.h"
#include "sim/scenario.h"
#include "sim/simulated_connection.h"
#include "sim/simulated_server.h"

using namespace trovane;

// The host's connection, seen by the library only through the Connection interface.
class HostConnection final : public Connection {
  public:
    HostConnection()
        : server(std::make_shared<sim::SimulatedConnection>(
              std::make_shared<sim::SimulatedServer>(sim::MakeDemoDatabase()))) {}

    bool IsReady() override { return server->IsReady(); }
    void ExecuteCommand(int16_t application, const std::string& command, Variant& result,
                        int32_t& status) override {
        std::fprintf(stderr, "host: command %s\n", command.c_str());
        server->ExecuteCommand(application, command, result, status);
    }
    void AddItems(const Variant& clientHandles, const Variant& itemPaths, int32_t itemType,
                  int32_t updateRate, int32_t& subscriptionHandle, Variant& results) override {
        server->AddItems(clientHandles, itemPaths, itemType, updateRate, subscriptionHandle, results);
    }
    void SetCallback(SysDataCallback* callback, int32_t subscriptionHandle) override {
        server->SetCallback(callback, subscriptionHandle);
    }
    void RemoveItems(int32_t subscriptionHandle) override { server->RemoveItems(subscriptionHandle); }
    void RefreshItems(int32_t subscriptionHandle, int32_t source, Variant& results) override {
        server->RefreshItems(subscriptionHandle, source, results);
    }
    // Called by the host's event loop between events: notifications reach the panels only here.
    void Pump() { server->Pump(); }

  private:
    std::shared_ptr<sim::SimulatedConnection> server;
};

// The container: exactly the members the blocking panel calls by name.
class HostContainer final : public DispatchObject {
  public:
    HostContainer(std::shared_ptr<CommonFunctions> commonFunctions, Variant connectionObject)
        : DispatchObject("frmHost"),
          functions(std::move(commonFunctions)),
          connection(std::move(connectionObject)) {
        Method("RunVexlCmd", [this](std::span<Variant> args) {
            return functions->RunVexlCmdGlobal(connection, ToString(RequiredArgument(args, 0)), kApplication);
        });
        Method("RunVexlCmdWithStatus", [this](std::span<Variant> args) {
            int32_t status = ToInt32(RequiredArgument(args, 1));
            Variant result = functions->RunVexlCmdGlobalWithStatus(
                connection, ToString(RequiredArgument(args, 0)), kApplication, status);
            RequiredArgument(args, 1) = Variant(status);  // the status is passed by reference
            return result;
        });
        Method("GetNlsString", [this](std::span<Variant> args) {
            return Variant(functions->GetNlsString(ToInt32(RequiredArgument(args, 0))));
        });
        Method("ShowError", [this](std::span<Variant> args) {
            return functions->ShowError(ToString(RequiredArgument(args, 0)));
        });
        Method("SetCharsetValues", [this](std::span<Variant> args) {
            functions->SetCharsetValues(RequiredArgument(args, 0));
            return Variant();
        });
        Method("DebugInfo", [this](std::span<Variant> args) {
            functions->DebugInfo(ToString(RequiredArgument(args, 0)));
            return Variant();
        });
        Method("IsBlockingHandlingAllowed", [](std::span<Variant>) { return Variant(true); });
    }

  private:
    static constexpr int16_t kApplication = 1;
    std::shared_ptr<CommonFunctions> functions;
    Variant connection;
};

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    int quitAfter = -1;
    for (int i = 1; i + 1 < argc; ++i)
        if (std::strcmp(argv[i], "--quit-after") == 0) quitAfter = std::atoi(argv[i + 1]);

    // Qt's platform services give the library's own dialogs (the error dialog) real windows.
    qt::QtPlatform platform = qt::MakeQtPlatform();
    auto connection = std::make_shared<HostConnection>();
    auto functions = std::make_shared<CommonFunctions>(platform.services);
    auto container = std::make_shared<HostContainer>(functions, Variant(ObjectRef(connection)));

    auto blocking = std::make_shared<Blocking>(platform.services);
    blocking->SetParent(Variant(ObjectRef(container)));
    blocking->logicalName = "ABC";
    blocking->baseIndex = 10;
    CallMethod(Variant(ObjectRef(blocking)), "Init");

    QWidget window;
    window.setWindowTitle("Blocking of ABC 10");
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new qt::FormView(
        blocking, qt::TwipsScale{platform.windows->TwipsPerPixelX(), platform.windows->TwipsPerPixelY()},
        &window));
    window.show();

    qt::NotificationPump pump([connection] { connection->Pump(); });
    pump.Start();
    if (quitAfter >= 0) QTimer::singleShot(quitAfter, &application, &QApplication::quit);
    const int status = application.exec();
    std::printf("control blocking of ABC 10: %d\n", blocking->Control());
    return status;
}
