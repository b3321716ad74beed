#include "Model/Layer.h"

bool operator==(const Layer& a, const Layer& b)
{
    return a.id == b.id && a.name == b.name && a.colour == b.colour && a.isVisible == b.isVisible &&
           a.isLocked == b.isLocked;
}
