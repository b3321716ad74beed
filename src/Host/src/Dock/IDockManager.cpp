#include "Dock/IDockManager.h"

namespace vesk
{

// Here, so that the class has its tables in the host: where imports are named it is looked for
// there.
IDockManager::~IDockManager() = default;

}
