#include "platform/registry.h"
#include "platform/system_info.h"

namespace cirrava {

FoundProgram find_system_info_program() {
    return registered_program(read_registry);
}

} // namespace cirrava
