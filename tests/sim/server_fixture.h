#pragma once
// The demo scenario in a simulated server behind its connection, with a clock the test sets.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "core/conversions.h"
#include "sim/scenario.h"
#include "sim/simulated_connection.h"
#include "sim/vexl_values.h"
#include "support/manual_clock.h"

namespace trovane::sim::testing {

class DemoServerTest : public ::testing::Test {
  protected:
    DemoServerTest() {
        auto database = MakeDemoDatabase();
        clock.now = MakeDate(2026, 11, 22, 9, 30, 15);
        database->SetClock(&clock);
        server = std::make_shared<SimulatedServer>(std::move(database));
        connection = std::make_shared<SimulatedConnection>(server);
    }

    // Runs a command as the panels do (application 1) and expects it to succeed.
    Variant Run(const std::string& command) {
        int32_t status = -1;
        Variant result = RunWithStatus(command, status);
        EXPECT_EQ(status, 0) << command;
        return result;
    }
    Variant RunWithStatus(const std::string& command, int32_t& status) {
        Variant result;
        connection->ExecuteCommand(1, command, result, status);
        return result;
    }

    ProcessDatabase& Database() { return server->Database(); }
    ProcessObject& Object(const std::string& name, int32_t index) {
        return *Database().FindObject(name, index);
    }
    int32_t Attribute(const std::string& name, int32_t index, const std::string& attribute) {
        return ToInt32(*Object(name, index).Find(attribute));
    }

    static const Variant& Item(const Variant& list, const std::string& name) {
        const Variant* item = FindVexlListItem(list, name);
        static const Variant missing;
        EXPECT_NE(item, nullptr) << name;
        return item ? *item : missing;
    }

    trovane::testing::ManualClock clock;
    std::shared_ptr<SimulatedServer> server;
    std::shared_ptr<SimulatedConnection> connection;
};

}  // namespace trovane::sim::testing
