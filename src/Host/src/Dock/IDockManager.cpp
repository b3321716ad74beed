#include "Dock/IDockManager.h"

namespace vesk
{

// Defined here so that the class's vtable and type information are emitted in the host: on
// platforms with explicit imports the linker looks for them there.
IDockManager::~IDockManager() = default;

}
