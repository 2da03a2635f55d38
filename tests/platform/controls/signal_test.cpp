#include "platform/controls/signal.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace trovane {
namespace {

// Handlers run in order and see what earlier ones answered; one that throws leaves the signal usable.
TEST(Signal, HandlersRunInOrderShareAnsweredArgumentsAndMayThrow) {
    Signal<int32_t&> keyPress;
    std::vector<int32_t> seen;
    keyPress.Connect([&](int32_t& code) { seen.push_back(code); });
    keyPress.Connect([&](int32_t& code) { code = 0; });
    keyPress.Connect([&](int32_t& code) { seen.push_back(code); });
    SignalConnection thrower = keyPress.Connect([&](int32_t&) {
        thrower.Disconnect();
        throw std::runtime_error("panel failure");
    });
    int32_t code = 65;
    EXPECT_THROW(keyPress.Emit(code), std::runtime_error);
    code = 7;
    keyPress.Emit(code);
    EXPECT_EQ(code, 0);
    EXPECT_EQ(seen, (std::vector<int32_t>{65, 0, 7, 0}));
}

TEST(Signal, ScopedConnectionsDisconnectWhenTheyGoAndMoveWithTheirOwner) {
    Signal<> signal;
    std::vector<std::string> calls;
    std::optional<ScopedConnection> first(signal.Connect([&] { calls.push_back("first"); }));
    SignalConnection second = signal.Connect([&] { calls.push_back("second"); });
    signal.Emit();
    first.reset();
    signal.Emit();
    ScopedConnection moved(std::move(second));
    ScopedConnection owner = std::move(moved);
    EXPECT_FALSE(moved.Connected());
    owner = ScopedConnection();
    signal.Emit();
    EXPECT_EQ(calls, (std::vector<std::string>{"first", "second", "second"}));
    EXPECT_FALSE(signal.IsConnected());
}

// A handler disconnected during an emission, by itself or by another handler, is not called
// afterwards in it; one connected during it waits for the next emission.
TEST(Signal, DisconnectingAndConnectingDuringAnEmissionIsSafe) {
    Signal<> signal;
    std::vector<std::string> calls;
    SignalConnection self;
    SignalConnection later;
    self = signal.Connect([&] {
        calls.push_back("self");
        self.Disconnect();
    });
    signal.Connect([&] {
        calls.push_back("disconnects later");
        later.Disconnect();
        signal.Connect([&] { calls.push_back("added"); });
    });
    later = signal.Connect([&] { calls.push_back("later"); });
    signal.Emit();
    EXPECT_EQ(calls, (std::vector<std::string>{"self", "disconnects later"}));
    calls.clear();
    signal.Emit();
    EXPECT_EQ(calls, (std::vector<std::string>{"disconnects later", "added"}));
    EXPECT_FALSE(self.Connected());
}

// What a disconnected handler captured is released once nothing runs it any more, even when the
// handler disconnected itself, and a handler may destroy the signal's owner.
TEST(Signal, DisconnectedHandlersAreReleasedAndTheOwnerMayGoDuringAnEmission) {
    struct Owner {
        Signal<> changed;
    };
    auto owner = std::make_unique<Owner>();
    auto captured = std::make_shared<int>(7);
    std::weak_ptr<int> watch = captured;
    SignalConnection connection;
    bool stillCaptured = false;
    connection = owner->changed.Connect([&, captured] {
        connection.Disconnect();
        stillCaptured = *captured == 7;  // the running handler keeps what it captured
    });
    captured.reset();
    owner->changed.Emit();
    EXPECT_TRUE(stillCaptured);
    EXPECT_TRUE(watch.expired());

    int after = 0;
    owner->changed.Connect([&] { owner.reset(); });
    owner->changed.Connect([&] { ++after; });
    ScopedConnection outlived = owner->changed.Connect([] {});
    owner->changed.Emit();
    EXPECT_EQ(owner, nullptr);
    EXPECT_EQ(after, 0) << "the owner's destruction disconnected the rest";
    EXPECT_FALSE(outlived.Connected());
}

}  // namespace
}  // namespace trovane
