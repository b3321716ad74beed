#pragma once

namespace vesk
{

/// Names of the dynamic Qt properties by which other code recognises the objects of this library.
namespace PropertyName
{

/// True on every object that represents a definition of the host.
constexpr char IsDefinition[] = "IsDefinition";

/// On the action of a menu entry: the id of its command, a QString.
constexpr char CommandId[] = "CommandId";

}

}
