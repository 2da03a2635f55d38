// The server's state file: what the operators changed survives a restart of the server, with who
// changed it and when, and reads leave the journal alone.

#include <gtest/gtest.h>

#include <fstream>

#include "core/conversions.h"
#include "mqtt_probe.h"
#include "net/state_store.h"
#include "net/variant_wire.h"
#include "sim/scenario.h"
#include "support/manual_clock.h"
#include "support/mosquitto_broker.h"

namespace trovane::net {
namespace {

using testing::MqttProbe;

// One server life on the state file: the demo scenario with the kept commands run over it.
struct ServerLife {
    ServerLife(int port, const std::string& file, Date now) : store(file) {
        clock.now = now;
        BrokerOptions options;
        options.port = port;
        server =
            std::make_unique<NetworkServer>(std::make_shared<sim::SimulatedServer>(sim::MakeDemoDatabase()),
                                            options, [](const std::string&) {});
        server->SetClock(&clock);
        restored = RestoreAndKeep(*server, store);
        server->Start();
    }
    trovane::testing::ManualClock clock;
    StateStore store;
    std::unique_ptr<NetworkServer> server;
    size_t restored = 0;
};

const std::string kObject = "(\"ABC\",10)";
const std::string kTagoutKey = "\"KEPT1\"";

// What the panels read of the state the operators change.
const char* const kReads[] = {
    "#return ABC:PGC",
    "#return do(BGU_BLOCK:C, \"GET_BLOCKING_STATE\", (\"ABC\",10), Vector(), \"APPLY_TO_ALL\")",
    "#return do(BGU_CONTROL:C, (\"ABC\",10), \"GET_SUBSTITUTION\", \"en\", False)",
    "#return ABC:POV10",
    "#return do(OVGR_TAGOUT:C, \"GET_TAGOUT_NAMES\", (\"ABC\",10))",
    "#return do(OVGR_TAGOUT:C, \"READ_TAGOUT_ATTRIBUTE_VALUE\", (\"ABC\",10), \"KEPT1\", \"TAG_TEXT\")",
    "#return ABC:PTT10",
    "#return ABC:PCV10",
};

class ServerStateTest : public trovane::testing::BrokerTest {
  protected:
    std::string StateFile() const { return (broker->Directory() / "state.db").string(); }
    std::vector<std::string> ReadAll(MqttProbe& probe) {
        std::vector<std::string> values;
        for (const char* read : kReads) {
            const Response answer = probe.Ask({RequestKind::Execute, "reader", read, {}});
            EXPECT_EQ(answer.status, 0) << read;
            values.push_back(EncodeVariant(answer.result));
        }
        return values;
    }
};

TEST_F(ServerStateTest, ARestartKeepsTagoutsCommentsBlockingsSubstitutionsAndTheirUsers) {
    std::vector<std::string> before;
    {
        ServerLife first(broker->Port(), StateFile(), MakeDate(2026, 11, 20, 8, 0, 17));
        EXPECT_EQ(first.restored, 0u);
        MqttProbe probe(broker->Port());
        const std::pair<const char*, std::string> writes[] = {
            {"anna", "#SET ABC:PGC=\"Earthed, see the permit\""},
            {"ben",
             "#return do(BGU_BLOCK:C, \"SET_BLOCKING_STATE\", (\"ABC\",10), (0,1,0,0,0,0), "
             "\"APPLY_TO_ALL\")"},
            {"anna",
             "#return do(BGU_CONTROL:C,(\"ABC\",10),\"SET_SUBSTITUTION\",LIST(LOGICAL_DEVICE="
             "\"E01_CTRL\",LOGICAL_NODE=\"XCBR1\",DATA_OBJECT=\"Pos\",DATA_ATTRIBUTE=\"stVal\","
             "LN=\"ABC\",IX=10,ENABLED=1,VALUE=1,QUALITY=0))"},
            // A tagout changes nothing a subscriber sees until its text is set.
            {"ben",
             "#return do(OVGR_TAGOUT:C, \"ADD_EMPTY_TAGOUT\", " + kObject + "," + kTagoutKey + ",\"ben\")"},
            {"ben", "#return do(OVGR_TAGOUT:C, \"EDIT_TAGOUT_ATTRIBUTE_VALUE\", " + kObject + "," +
                        kTagoutKey + ",\"TAG_TEXT\",\"Do not close\")"},
            {"ben", "#return do(OVGR_TAGOUT:C, \"EVENT_FUNCTIONS\", \"SET_TAGTEXT\", " + kObject +
                        ", \"Do not close\")"},
            // Made at the time of the command, not of the restart.
            {"anna", "#SET ABC:PCV10=SECOND()"},
        };
        for (const auto& [user, command] : writes)
            EXPECT_EQ(probe.Ask({RequestKind::Execute, user, command, {}}).status, 0) << command;
        before = ReadAll(probe);
        EXPECT_EQ(DecodeVariant(before.back()), Variant(int32_t{17}));

        // Reads, failures that change nothing and pings leave the journal as it is.
        probe.Ask({RequestKind::Execute, "reader", "#return ABC:PGC", {}});
        probe.Ask({RequestKind::Execute, "reader", "#SET ABC:PNOPE10=1", {}});
        probe.Ask({RequestKind::Ping, "reader", "", {}});
        const std::vector<CommandRecord> kept = StateStore(StateFile()).Load();
        ASSERT_EQ(kept.size(), std::size(writes));
        for (size_t i = 0; i < kept.size(); ++i) {
            EXPECT_EQ(kept[i].user, writes[i].first);
            EXPECT_EQ(kept[i].command, writes[i].second);
            EXPECT_EQ(kept[i].time, MakeDate(2026, 11, 20, 8, 0, 17));
        }
    }
    // A restarted broker has forgotten the retained values: whatever arrives comes from the new server.
    broker->Stop();
    broker->Start();
    ServerLife second(broker->Port(), StateFile(), MakeDate(2026, 11, 21, 9, 30, 42));
    EXPECT_EQ(second.restored, 7u);
    MqttProbe probe(broker->Port(), "after");
    const std::vector<std::string> after = ReadAll(probe);
    for (size_t i = 0; i < std::size(kReads); ++i)
        EXPECT_TRUE(after.at(i) == before.at(i)) << kReads[i];  // encoded values: too long to print
    EXPECT_EQ(second.server->LastUser({"ABC", std::nullopt, "GC"}), "anna");
    EXPECT_EQ(second.server->LastUser({"ABC", 10, "CB"}), "ben");
    probe.Subscribe(ItemTopic(1, {"ABC", 10, "TT"}));
    const MqttMessage indication = probe.TakeTopic(ItemTopic(1, {"ABC", 10, "TT"}));
    EXPECT_EQ(DecodeVariant(indication.payload), Variant("Do not close"));
    EXPECT_EQ(indication.user, "ben");

    // Changes after the restart go on the same journal.
    EXPECT_EQ(probe.Ask({RequestKind::Execute, "carl", "#SET ABC:PGC=\"Released\"", {}}).status, 0);
    EXPECT_EQ(StateStore(StateFile()).Load().back().user, "carl");
}

TEST_F(ServerStateTest, AChangeThatCannotBeKeptIsAnsweredAsFailedAndLogged) {
    BrokerOptions options;
    options.port = broker->Port();
    std::vector<std::string> log;
    std::mutex logMutex;
    NetworkServer server(std::make_shared<sim::SimulatedServer>(sim::MakeDemoDatabase()), options,
                         [&](const std::string& line) {
                             std::lock_guard lock(logMutex);
                             log.push_back(line);
                         });
    server.SetJournal([](const CommandRecord&) { throw StateError("disk full"); });
    server.Start();
    MqttProbe probe(broker->Port());
    const Response write = probe.Ask({RequestKind::Execute, "anna", "#SET ABC:PGC=\"lost\"", {}});
    EXPECT_EQ(write.status, sim::status::kProcedureFailed);
    EXPECT_TRUE(write.result.IsEmpty());
    EXPECT_EQ(probe.Ask({RequestKind::Execute, "anna", "#return 1", {}}).status, 0) << "reads go on";
    std::lock_guard lock(logMutex);
    EXPECT_EQ(log, std::vector<std::string>{"could not keep the state: disk full"});
}

TEST_F(ServerStateTest, FilesThatAreNotStateFilesAreRefusedWithTheirName) {
    const auto text = broker->Directory() / "notes.txt";
    std::ofstream(text) << "not a database, only text long enough to be taken for a header\n";
    const std::filesystem::path files[] = {text, broker->Directory() / "missing" / "state.db"};
    for (const auto& file : files) {
        try {
            StateStore store(file.string());
            ADD_FAILURE() << file << " was taken";
        } catch (const StateError& error) {
            EXPECT_NE(std::string(error.what()).find(file.string()), std::string::npos) << error.what();
        }
    }
}

}  // namespace
}  // namespace trovane::net
