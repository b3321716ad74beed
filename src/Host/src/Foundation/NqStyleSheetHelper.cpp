#include "Foundation/NqStyleSheetHelper.h"

namespace vesk
{

NqStyleSheetHelper* NqStyleSheetHelper::Instance()
{
    static NqStyleSheetHelper s_helper;
    return &s_helper;
}

}
