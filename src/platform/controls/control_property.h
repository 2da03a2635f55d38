#pragma once

#include "core/api_begin.h"
// The names of the observable properties of controls and forms.
//
// A front end mirrors the headless model: every setter that changes something reports which
// property it changed, and the front end copies that one property to its widget. Collections
// (combo box items, list view rows, tabs) report one name for the whole collection, plus the
// finer notifications of their own control.

namespace trovane {

enum class ControlProperty {
    Caption,
    Tag,
    Enabled,
    Visible,
    Geometry,  // Left, Top, Width or Height
    FontCharset,
    TabIndex,
    TabStop,
    Container,
    Value,  // check box and option button
    Text,   // text box and combo box
    Locked,
    MaxLength,
    Selection,  // text box selection start and length
    MultiLine,
    Items,  // combo box list
    ListIndex,
    Style,
    Picture,
    Interval,
    Tabs,
    SelectedTab,
    Checked,  // menu
    DataField,
    DataMember,
    Focus,
};

}  // namespace trovane

#include "core/api_end.h"
