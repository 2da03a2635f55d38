#pragma once
// The time of the operator's last input, watched application-wide.
//
// The error dialog stays open while the operator is working and closes itself after a quiet
// period; "working" means any key or mouse input anywhere in the application. An event filter on
// the application sees every such event before its target does, and stamps it with the same tick
// counter the idle test subtracts from, so the two can never disagree about units or origin.

#include <cstdint>
#include <memory>
#include <optional>

#include <QObject>

#include "platform/clock.h"
#include "core/api_begin.h"

namespace trovane::qt {

class InputActivity final : public QObject {
  public:
    explicit InputActivity(std::shared_ptr<Clock> clock, QObject* parent = nullptr);
    ~InputActivity() override;

    // Installs the filter on the running application (call once a QApplication exists).
    void Install();
    // The tick count of the last input seen, nothing before the first one.
    std::optional<uint32_t> LastInputTime() const { return lastInput; }
    // Records input now, as the filter does (also used when input is synthesised).
    void NoteInput();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::shared_ptr<Clock> clock;
    std::optional<uint32_t> lastInput;
};

}  // namespace trovane::qt

#include "core/api_end.h"
