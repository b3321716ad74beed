#pragma once

#include <QString>

namespace vesk
{

class IControlDefinition;

/// What a control definition is and holds, for whoever debugs a host.
struct DefinitionText
{
    QString kind;
    QString value;
};

DefinitionText DescribeDefinition(const IControlDefinition& definition);

}
