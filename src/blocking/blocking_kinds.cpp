#include "blocking/blocking_kinds.h"

#include "core/object.h"

namespace trovane {

const BlockingKind* FindBlockingKindByProperty(std::string_view property) {
    for (const BlockingKind& kind : kBlockingKinds)
        if (EqualsIgnoringCase(kind.property, property)) return &kind;
    return nullptr;
}

}  // namespace trovane
