#pragma once

#include <QString>

namespace vesk
{

class IControlDefinition;

/// The kind and value of a control definition, for debugging a host.
struct DefinitionText
{
    QString kind;
    QString value;
};

DefinitionText DescribeDefinition(const IControlDefinition& definition);

}
