#include "Model/ModelFile.h"

#include "Model/EntityJson.h"
#include "Model/Sketch.h"

#include "Foundation/FileRewriting.h"

#include <string>

namespace
{

template <class Thing>
std::string ListOf(const std::vector<Thing>& things)
{
    std::string list;
    for (const Thing& thing : things)
    {
        list += list.empty() ? "{" : ",{";
        AppendFields(list, thing);
        list += '}';
    }
    return '[' + list + ']';
}

}

bool WriteModelFile(const Sketch& sketch, const QString& path)
{
    const std::string text = "{\"entities\":" + ListOf(sketch.GetEntities()) +
                             ",\"layers\":" + ListOf(sketch.GetLayers()) + "}\n";

    return vesk::RewriteFile(path.toStdString(), text);
}
