#pragma once

namespace vesk
{

/// The names of the dynamic Qt properties by which others recognise the objects of this library.
namespace PropertyName
{

/// True on every object that stands for a definition of the host.
constexpr char IsDefinition[] = "IsDefinition";

/// On the action of a menu entry: the id of its command, a QString.
constexpr char CommandId[] = "CommandId";

}

}
