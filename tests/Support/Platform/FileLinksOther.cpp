#include "Support/Platform/FileLinks.h"

#include "Support/TestValues.h"

#include <QFile>

namespace vesk::test
{

bool MakeLink(const QString& target, const QString& path)
{
    if (!QFile::link(target, path))
        QTest::qFail("a link cannot be created", __FILE__, __LINE__);
    return true;
}

}
