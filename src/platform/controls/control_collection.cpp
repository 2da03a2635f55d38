#include "platform/controls/control_collection.h"

#include "core/conversions.h"
#include "core/error.h"
#include "platform/controls/form.h"

namespace trovane {

namespace {

class ControlCollection final : public Object {
  public:
    explicit ControlCollection(std::shared_ptr<Form> form) : form_(std::move(form)) {}
    std::string ClassName() const override { return "Object"; }

    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override {
        if (kind != CallKind::PropertyPut && EqualsIgnoringCase(member, "Count"))
            return Variant(form_->ControlCount());
        if (kind != CallKind::PropertyPut && EqualsIgnoringCase(member, "Item") && !args.empty())
            return Item(args[0]);
        return Object::Invoke(member, kind, args);
    }

  private:
    Variant Item(const Variant& which) const {
        if (which.IsString()) {
            Control* found = form_->Find(which.AsString());
            if (found == nullptr) throw Error(ErrorNumber::SubscriptOutOfRange);
            return Variant(found->shared_from_this());
        }
        const int32_t position = ToInt32(which);
        if (position < 0 || position >= form_->ControlCount()) throw Error(ErrorNumber::SubscriptOutOfRange);
        int32_t current = 0;
        for (Control& control : form_->Controls())
            if (current++ == position) return Variant(control.shared_from_this());
        throw Error(ErrorNumber::SubscriptOutOfRange);
    }

    std::shared_ptr<Form> form_;
};

}  // namespace

ObjectRef MakeControlCollection(std::shared_ptr<Form> form) {
    return std::make_shared<ControlCollection>(std::move(form));
}

}  // namespace trovane
