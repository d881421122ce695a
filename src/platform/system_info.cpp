#include "platform/system_info.h"

#include "platform/failure.h"

namespace cirrava {

void StartSysInfo(const SystemInfoActions& actions) {
    try {
        const auto program = actions.find();
        if (program && actions.start(*program))
            return;
    } catch (const Failure&) {
        // A folder that cannot be looked into means no more to the user than an empty one.
    }
    actions.tell_unavailable();
}

} // namespace cirrava
