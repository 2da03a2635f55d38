#include "platform/controls/control_collection.h"

#include "core/conversions.h"
#include "core/error.h"
#include "platform/controls/form.h"

namespace trovane {

namespace {

class ControlCollection final : public Object {
  public:
    explicit ControlCollection(Form& form)
        : form_(&form), owner_(form.weak_from_this()), owned_(!owner_.expired()) {}
    std::string ClassName() const override { return "Object"; }

    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override {
        if (kind != CallKind::PropertyPut && EqualsIgnoringCase(member, "Count"))
            return Variant(Target().ControlCount());
        if (kind != CallKind::PropertyPut && EqualsIgnoringCase(member, "Item") && !args.empty())
            return Item(args[0]);
        return Object::Invoke(member, kind, args);
    }

  private:
    // A form on the stack has no owner to watch; its lifetime is its creator's business.
    Form& Target() const {
        if (owned_ && owner_.expired()) throw Error(ErrorNumber::ObjectNotSet);
        return *form_;
    }

    Variant Item(const Variant& which) const {
        Form& form = Target();
        if (which.IsString()) {
            Control* found = form.Find(which.AsString());
            if (found == nullptr) throw Error(ErrorNumber::SubscriptOutOfRange);
            return Variant(found->shared_from_this());
        }
        const int32_t position = ToInt32(which);
        if (position < 0 || position >= form.ControlCount()) throw Error(ErrorNumber::SubscriptOutOfRange);
        int32_t current = 0;
        for (Control& control : form.Controls())
            if (current++ == position) return Variant(control.shared_from_this());
        throw Error(ErrorNumber::SubscriptOutOfRange);
    }

    Form* form_;
    std::weak_ptr<Object> owner_;
    bool owned_;
};

}  // namespace

ObjectRef MakeControlCollection(Form& form) {
    return std::make_shared<ControlCollection>(form);
}

}  // namespace trovane
