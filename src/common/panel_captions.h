#pragma once
// Captions from tags: how panels and the library's forms put localised texts on their controls.
//
// A control whose caption is localised keeps the text identifier in its tag. At load time the form
// walks its controls and, for each control of a captioned kind with a non-empty tag, reads the tag
// as a 32-bit identifier and sets the caption to the text with that identifier. A tag that is not a
// number, or a text that cannot be fetched, leaves that one control's designed caption alone.
//
// Texts come from a text source: a panel asks its container late-bound ("GetNlsString"), the
// library's own forms ask a CommonFunctions object directly.

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "core/variant.h"
#include "core/api_begin.h"

namespace trovane {

class CommonFunctions;
class Form;

using TextSource = std::function<std::string(int32_t id)>;

// Texts through the container's "GetNlsString" member.
TextSource ContainerTexts(Variant container);
// Texts through CommonFunctions::GetNlsString (the object must outlive the source).
TextSource CommonFunctionsTexts(CommonFunctions& functions);

// The control kinds whose captions come from tags on every form; a form with menus adds "Menu".
inline constexpr std::array<std::string_view, 5> kCaptionedKinds = {"Label", "CommandButton", "Frame",
                                                                    "CheckBox", "OptionButton"};

void SetCaptionsFromTags(Form& form, const TextSource& texts,
                         std::span<const std::string_view> kinds = kCaptionedKinds);

}  // namespace trovane

#include "core/api_end.h"
