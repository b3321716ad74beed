#pragma once

#include "Dimension/InputState.h"
#include "Graphics/IGraphicsNode.h"
#include "Journal/CommandParameters.h"
#include "Support/TestValues.h"

// How values of the host are printed when a comparison fails.

namespace vesk
{

inline char* toString(InputState state)
{
    return test::ToShown(QStringLiteral("InputState %1").arg(static_cast<int>(state)));
}

inline char* toString(GraphicsRole role)
{
    return test::ToShown(QStringLiteral("GraphicsRole %1").arg(static_cast<int>(role)));
}

inline char* toString(const CommandParameterValue& value)
{
    return QTest::toString(value.Get());
}

inline char* toString(const CommandParameters& parameters)
{
    QStringList shown;
    for (const auto& [name, value] : parameters.GetAll())
        shown.append(test::Shown(name) + QLatin1String(": ") + test::Shown(value));
    return test::ToShown('{' + shown.join(QLatin1String(", ")) + '}');
}

}
