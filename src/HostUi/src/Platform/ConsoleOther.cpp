#include "HostUi/Console.h"

namespace vesk
{

void WriteToParentConsole() {}

}
