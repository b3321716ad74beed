#include "Dock/IDock.h"

namespace vesk
{

// Here, so that the class has its tables in the host: where imports are named it is looked for
// there.
IDock::~IDock() = default;

}
