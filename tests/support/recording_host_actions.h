#pragma once
// Host actions for tests: every request is recorded by its member name with its arguments, and the
// questions answer what the test set.

#include <string>
#include <vector>

#include "common/host_actions.h"
#include "core/conversions.h"

namespace trovane::testing {

class RecordingHostActions final : public HostActions {
  public:
    void Station_Select() override { Record("Station_Select"); }
    void NCC_Select() override { Record("NCC_Select"); }
    void Execute() override { Record("Execute"); }
    void updatestatustext() override { Record("updatestatustext"); }
    void MakeCall() override { Record("MakeCall"); }
    void HangUp() override { Record("HangUp"); }
    void MakeSync() override { Record("MakeSync"); }
    void makeUpdate() override { Record("makeUpdate"); }
    void ShowDialUpOptionsDialog() override { Record("ShowDialUpOptionsDialog"); }
    void UpdateData() override { Record("UpdateData"); }
    bool IsSelectedOnOtherMonitor() override {
        Record("IsSelectedOnOtherMonitor");
        return onOtherMonitor;
    }
    Variant GetAlarms() override {
        Record("GetAlarms");
        return alarms;
    }
    void SetBlockedSignal(const std::string& logicalName, int32_t index) override {
        Record("SetBlockedSignal " + logicalName + " " + std::to_string(index));
    }
    void SetSingleBlocking(bool enable) override {
        Record(std::string("SetSingleBlocking ") + (enable ? "true" : "false"));
    }
    void RefreshSubscriptions() override { Record("RefreshSubscriptions"); }
    WindowPosition Position() override { return position; }

    std::vector<std::string> requests;
    bool onOtherMonitor = false;
    Variant alarms;
    WindowPosition position;

  private:
    void Record(std::string request) { requests.push_back(std::move(request)); }
};

}  // namespace trovane::testing
