// SPDX-License-Identifier: GPL-3.0-or-later

#include "DxfWriter.h"

#include "DxfStyle.h"
#include "ExactDxfStream.h"

#include "Model/ArcGeometry.h"
#include "Model/Overloaded.h"
#include "Model/Polar.h"
#include "Model/SketchContent.h"

#include <dxflib/dl_dxf.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <map>
#include <set>

namespace
{

constexpr int ByLayer = 256;
constexpr int Millimetres = 4;

/// The names of a drawing's layers in the file: readable everywhere, and different even for
/// programs that ignore case.
class LayerNames
{
public:
    explicit LayerNames(const SketchContent& content)
    {
        for (const Layer& layer : content.layers)
            m_names.emplace(layer.id, MakeFree(EncodeName(layer.name)));
        m_hasZero = m_taken.count("0") != 0;
    }

    const std::string& Get(int id) const { return m_names.at(id); }

    /// Whether there is a layer 0, which every file must have.
    bool HasZero() const { return m_hasZero; }

private:
    std::string MakeFree(const std::string& name)
    {
        std::string free = name;
        for (int i = 2; !m_taken.insert(InLowerCase(free)).second; ++i)
            free = name + "_" + std::to_string(i);
        return free;
    }

    static std::string InLowerCase(std::string text)
    {
        std::transform(text.begin(), text.end(), text.begin(), [](unsigned char letter) {
            return static_cast<char>(std::tolower(letter));
        });
        return text;
    }

    std::map<int, std::string> m_names;
    std::set<std::string> m_taken;
    bool m_hasZero = false;
};

/// Writes the parts of the file in order.
class DxfFileWriter
{
public:
    DxfFileWriter(const SketchContent& content, std::ostream& stream)
        : m_content(content), m_names(content), m_stream(stream)
    {}

    void Write()
    {
        WriteHeader();
        WriteTables();
        WriteBlocks();
        m_stream.sectionEntities();
        for (const Entity& entity : m_content.entities)
            WriteEntity(entity);
        m_stream.sectionEnd();
        m_dxf.writeObjects(m_stream);
        m_dxf.writeObjectsEnd(m_stream);
        m_stream.dxfEOF();
    }

private:
    void WriteHeader()
    {
        m_dxf.writeHeader(m_stream);
        m_stream.dxfString(9, "$INSUNITS");
        m_stream.dxfInt(70, Millimetres);
        m_stream.dxfString(9, "$MEASUREMENT");
        m_stream.dxfInt(70, 1);
        m_stream.sectionEnd();
    }

    void WriteTables()
    {
        m_stream.sectionTables();
        m_dxf.writeVPort(m_stream);
        WriteLineTypes();
        WriteLayers();
        m_stream.tableStyle(1);
        m_dxf.writeStyle(m_stream, DL_StyleData("standard", 0, 2.5, 1.0, 0.0, 0, 2.5, "txt", ""));
        m_stream.tableEnd();
        m_dxf.writeView(m_stream);
        m_dxf.writeUcs(m_stream);
        m_stream.tableAppid(1);
        m_dxf.writeAppid(m_stream, "ACAD");
        m_stream.tableEnd();
        m_dxf.writeDimStyle(m_stream, 2.5, 1.25, 0.625, 0.625, 2.5);
        m_dxf.writeBlockRecord(m_stream);
        m_stream.tableEnd();
        m_stream.sectionEnd();
    }

    void WriteLineTypes()
    {
        const char* const names[] = {"BYBLOCK",     "BYLAYER",     LineTypeOf(0),
                                     LineTypeOf(1), LineTypeOf(2), LineTypeOf(3)};
        m_stream.tableLinetypes(static_cast<int>(std::size(names)));
        for (const char* pName : names)
            m_dxf.writeLinetype(m_stream, DL_LinetypeData(pName, "", 0, 0, 0.0));
        m_stream.tableEnd();
    }

    void WriteLayers()
    {
        const std::size_t count = m_content.layers.size() + (m_names.HasZero() ? 0 : 1);
        m_stream.tableLayers(static_cast<int>(count));
        if (!m_names.HasZero())
            WriteLayer("0", Layer());
        for (const Layer& layer : m_content.layers)
            WriteLayer(m_names.Get(layer.id), layer);
        m_stream.tableEnd();
    }

    void WriteLayer(const std::string& name, const Layer& layer)
    {
        constexpr int White = 7;
        constexpr int Locked = 4;
        constexpr int DefaultWeight = -3;
        m_dxf.writeLayer(m_stream,
                         DL_LayerData(name, layer.isLocked ? Locked : 0, !layer.isVisible),
                         DL_Attributes(std::string(), ColourNumberOf(layer.colour, White),
                                       DefaultWeight, "CONTINUOUS", 1.0));
    }

    void WriteBlocks()
    {
        m_stream.sectionBlocks();
        for (const char* pName : {"*Model_Space", "*Paper_Space", "*Paper_Space0"})
        {
            m_dxf.writeBlock(m_stream, DL_BlockData(pName, 0, 0.0, 0.0, 0.0));
            m_dxf.writeEndBlock(m_stream, pName);
        }
        m_stream.sectionEnd();
    }

    void WriteEntity(const Entity& entity)
    {
        const DL_Attributes attributes(
            m_names.Get(entity.pen.layer), ColourNumberOf(entity.pen.colour, ByLayer),
            LineWeightOf(entity.pen.width), LineTypeOf(entity.pen.style), 1.0);
        std::visit([&](const auto& shape) { WriteShape(shape, attributes); }, entity.shape);
    }

    void WriteShape(const LineShape& line, const DL_Attributes& attributes)
    {
        m_dxf.writeLine(m_stream,
                        DL_LineData(line.start.x(), line.start.y(), line.start.z(), line.end.x(),
                                    line.end.y(), line.end.z()),
                        attributes);
    }

    void WriteShape(const CircleShape& circle, const DL_Attributes& attributes)
    {
        m_dxf.writeCircle(
            m_stream,
            DL_CircleData(circle.centre.x(), circle.centre.y(), circle.centre.z(), circle.radius),
            attributes);
    }

    void WriteShape(const ArcShape& arc, const DL_Attributes& attributes)
    {
        if (arc.start == arc.end)
        {
            WriteShape(CircleShape{arc.centre, arc.radius, arc.normal}, attributes);
            return;
        }
        const bool isClockwise = arc.normal.z() < 0.0;
        const vesk::Vector3d& start = isClockwise ? arc.end : arc.start;
        const vesk::Vector3d& end = isClockwise ? arc.start : arc.end;
        m_dxf.writeArc(m_stream,
                       DL_ArcData(arc.centre.x(), arc.centre.y(), arc.centre.z(), arc.radius,
                                  DirectionIn360(start - arc.centre),
                                  DirectionIn360(end - arc.centre)),
                       attributes);
    }

    void WriteShape(const RectangleShape& rectangle, const DL_Attributes& attributes)
    {
        constexpr int Closed = 1;
        const double height = rectangle.corners.front().z();
        m_dxf.writePolyline(
            m_stream,
            DL_PolylineData(static_cast<int>(rectangle.corners.size()), 0, 0, Closed, height),
            attributes);
        for (const vesk::Vector3d& corner : rectangle.corners)
            m_dxf.writeVertex(m_stream, DL_VertexData(corner.x(), corner.y(), corner.z()));
        m_dxf.writePolylineEnd(m_stream);
    }

    static double DirectionIn360(const vesk::Vector3d& direction)
    {
        constexpr double Turn = 360.0;
        const double angle = AngleOf(direction);
        return angle < 0.0 ? angle + Turn : angle;
    }

    const SketchContent& m_content;
    LayerNames m_names;
    ExactDxfStream m_stream;
    DL_Dxf m_dxf;
};

}

void WriteDxf(const SketchContent& content, std::ostream& stream)
{
    DxfFileWriter(content, stream).Write();
}
