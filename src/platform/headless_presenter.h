#pragma once
// HeadlessPresenter: a presenter without a screen.
//
// It stands in where nothing is shown (the default of PlatformServices, and the tests): each
// presentation hands the form a window handle of its own and is recorded with the form's name, the
// owner and the modality, and so is each dismissal, so that a test can read the whole sequence.
// A form that unloads is dismissed at once (a handler connected after the presentation that
// cancels the unload is not seen). Forms are never kept alive: the presenter knows them by their
// handle and address only.

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/controls/signal.h"
#include "platform/presenter.h"
#include "core/api_begin.h"

namespace trovane {

class HeadlessPresenter final : public Presenter {
  public:
    struct Record {
        enum class Kind { Present, Dismiss };
        Kind kind;
        std::string form;
        int32_t owner = 0;
        bool modal = false;
        int32_t hwnd = 0;
    };

    // Handles start here, well apart from the small numbers tests give host frames.
    static constexpr int32_t kFirstHandle = 0x2000;

    void Present(Form& form, int32_t ownerWindow, bool modal) override;
    void Dismiss(Form& form) override;

    const std::vector<Record>& Records() const { return records; }
    bool IsPresented(const Form& form) const;

  private:
    struct Presentation {
        const Form* form;
        int32_t owner;
        bool modal;
        ScopedConnection unloadWatch;  // ends with the presentation
    };

    std::map<int32_t, Presentation> presented;
    std::vector<Record> records;
    int32_t nextHandle = kFirstHandle;
};

}  // namespace trovane

#include "core/api_end.h"
