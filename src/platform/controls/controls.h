#pragma once
// All headless controls and the form, for code that uses many of them.

#include "platform/controls/check_box.h"
#include "platform/controls/combo_box.h"
#include "platform/controls/command_button.h"
#include "platform/controls/form.h"
#include "platform/controls/frame.h"
#include "platform/controls/label.h"
#include "platform/controls/list_view.h"
#include "platform/controls/menu.h"
#include "platform/controls/option_button.h"
#include "platform/controls/picture_box.h"
#include "platform/controls/tab_strip.h"
#include "platform/controls/text_box.h"
#include "platform/controls/timer.h"
#include "core/api_begin.h"

#include "core/api_end.h"
