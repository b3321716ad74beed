#include "Command/IActionManager.h"

#include "Command/ActionRunner.h"

namespace vesk
{

IAction* IActionManager::CurrentAction()
{
    return ActionRunner::GetInstance().GetAction();
}

}
