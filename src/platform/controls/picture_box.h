#pragma once
// PictureBox: holds one picture (for example the bytes of an icon file), shown or kept hidden as
// a store from which other controls take their pictures.

#include "platform/controls/control.h"
#include "platform/controls/picture.h"
#include "core/api_begin.h"

namespace trovane {

class PictureBox : public Control {
  public:
    explicit PictureBox(std::string name) : Control(std::move(name), "PictureBox") {}

    const Picture& GetPicture() const { return picture_; }
    void SetPicture(Picture picture) { Assign(picture_, std::move(picture), ControlProperty::Picture); }

  private:
    Picture picture_;
};

}  // namespace trovane

#include "core/api_end.h"
