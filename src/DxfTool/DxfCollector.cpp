// SPDX-License-Identifier: GPL-3.0-or-later

#include "DxfCollector.h"

#include "DxfStyle.h"

#include "Model/Polar.h"

#include <algorithm>
#include <cmath>
#include <utility>

using vesk::Vector3d;

namespace
{

constexpr char LineType[] = "LINE";
constexpr char ArcType[] = "ARC";
constexpr char CircleType[] = "CIRCLE";
constexpr char PolylineType[] = "POLYLINE";

constexpr char ByLayerType[] = "BYLAYER";

constexpr char Undrawable[] = "too small or too large";

}

DxfCollector::DxfCollector(const DxfReadOptions& options, const DxfUnit& unit,
                           const DxfOutline& outline)
    : m_options(options), m_scale(unit.millimetres), m_total(outline.CountEntities()),
      m_tables(outline.codePage)
{
    m_reading.report = DxfReport(outline.types);
    if (!outline.hasEnd)
        m_reading.report.SetTruncated();
}

DxfReading DxfCollector::Take()
{
    FinishPolyline();
    SketchContent& content = m_reading.content;
    content.layers = m_tables.GetLayers();
    content.lastLayerId = content.layers.back().id;
    return std::move(m_reading);
}

void DxfCollector::addLayer(const DL_LayerData& data)
{
    constexpr int Frozen = 1;
    constexpr int Locked = 4;
    // The library reports this one, or less, for a layer without a line weight.
    constexpr int NoWeight = 1;
    constexpr int GreatestColour = 255;
    DxfLayer& known = m_tables.GetLayer(data.name);
    const DL_Attributes& own = attributes;
    const int colour = std::abs(std::max(own.getColor(), -GreatestColour));
    known.layer.colour = NearestColour(colour, own.getColor24());
    // The number of a layer that is off is negative.
    known.layer.isVisible = own.getColor() >= 0 && !data.off && (data.flags & Frozen) == 0;
    known.layer.isLocked = (data.flags & Locked) != 0;
    known.lineType = InUpperCase(own.getLinetype());
    if (known.lineType == ByLayerType)
        known.lineType = LineTypeOf(0);
    known.lineWeight = own.getWidth() > NoWeight ? own.getWidth() : -1;
    if (!IsExactColour(colour, own.getColor24()))
        m_reading.report.AddApproximated("layer colour");
}

void DxfCollector::addLinetype(const DL_LinetypeData& data)
{
    m_tables.AddLineType(data.name);
}

void DxfCollector::addLinetypeDash(double length)
{
    m_tables.AddDash(length);
}

void DxfCollector::addBlock(const DL_BlockData&)
{
    m_isInBlock = true;
}

void DxfCollector::endBlock()
{
    m_isInBlock = false;
}

void DxfCollector::addLine(const DL_LineData& data)
{
    if (!IsWanted(LineType))
        return;
    Add(LineType,
        LineShape{ToPlane(data.x1, data.y1, data.z1, true),
                  ToPlane(data.x2, data.y2, data.z2, true)},
        attributes);
}

void DxfCollector::addArc(const DL_ArcData& data)
{
    if (!IsWanted(ArcType) || !IsInPlane(ArcType))
        return;
    const Vector3d centre = ToPlane(data.cx, data.cy, data.cz, false);
    const double radius = data.radius * m_scale;
    const auto pointAt = [&](double degrees) {
        const Vector3d direction = DirectionOf(degrees);
        const bool isMirrored = extrusion->getDirection()[2] < 0.0;
        return Vector3d(centre + radius * Vector3d(isMirrored ? -direction.x() : direction.x(),
                                                   direction.y(), 0.0));
    };
    constexpr double Turn = 360.0;
    const bool isFull = std::fmod(data.angle2 - data.angle1, Turn) == 0.0;
    Vector3d start = pointAt(data.angle1);
    Vector3d end = isFull ? start : pointAt(data.angle2);
    // Seen from the other side the arc runs clockwise.
    if (extrusion->getDirection()[2] < 0.0)
        std::swap(start, end);
    Add(ArcType, ArcShape{centre, radius, start, end}, attributes);
}

void DxfCollector::addCircle(const DL_CircleData& data)
{
    if (!IsWanted(CircleType) || !IsInPlane(CircleType))
        return;
    Add(CircleType, CircleShape{ToPlane(data.cx, data.cy, data.cz, false), data.radius * m_scale},
        attributes);
}

void DxfCollector::addPolyline(const DL_PolylineData& data)
{
    constexpr int Closed = 1;
    constexpr int SplineFit = 4;
    constexpr int Spatial = 8;
    constexpr int Mesh = 16 | 64;
    FinishPolyline();
    if (!IsWanted(PolylineType))
        return;
    const bool isSpatial = (data.flags & Spatial) != 0;
    if ((data.flags & (SplineFit | Mesh)) != 0)
        m_reading.report.AddSkipped(PolylineType, "mesh or spline");
    else if (isSpatial || IsInPlane(PolylineType))
        m_polyline = Polyline{attributes, {}, (data.flags & Closed) != 0, isSpatial};
}

void DxfCollector::addVertex(const DL_VertexData& data)
{
    if (!m_polyline.has_value())
        return;
    if (m_polyline->vertices.size() >= m_options.greatestCount)
        throw TooManyEntities();
    const bool isMirrored = !m_polyline->isSpatial && extrusion->getDirection()[2] < 0.0;
    m_polyline->vertices.push_back({ToPlane(data.x, data.y, data.z, m_polyline->isSpatial),
                                    isMirrored ? -data.bulge : data.bulge});
}

void DxfCollector::endEntity()
{
    FinishPolyline();
}

/// True for an entity of the model space; tells the progress.
bool DxfCollector::IsWanted(const std::string& type)
{
    constexpr std::size_t EntitiesPerReport = 2000;
    if (m_isInBlock)
        return false;
    // Only those in the section of entities were counted before.
    if (++m_done % EntitiesPerReport == 0 && m_options.progress)
        m_options.progress(
            m_done < m_total ? static_cast<double>(m_done) / static_cast<double>(m_total) : 1.0);
    if (attributes.isInPaperSpace())
        m_reading.report.AddSkipped(type, "paper space");
    return !attributes.isInPaperSpace();
}

/// True if the entity's plane is parallel to the drawing plane.
bool DxfCollector::IsInPlane(const std::string& type)
{
    constexpr double Tilt = 1e-9;
    const double* pNormal = extrusion->getDirection();
    const bool isInPlane =
        std::abs(pNormal[0]) <= Tilt && std::abs(pNormal[1]) <= Tilt && std::abs(pNormal[2]) > Tilt;
    if (!isInPlane)
        m_reading.report.AddSkipped(type, "not in the drawing plane");
    return isInPlane;
}

/// A point of the file in millimetres, moved into the drawing plane. One that is not spatial is
/// relative to its entity's plane, whose x axis points to the left if it is seen from below.
Vector3d DxfCollector::ToPlane(double x, double y, double z, bool isSpatial)
{
    if (z != 0.0)
        m_reading.report.AddApproximated("height");
    const bool isMirrored = !isSpatial && extrusion->getDirection()[2] < 0.0;
    return {(isMirrored ? -x : x) * m_scale, y * m_scale, 0.0};
}

void DxfCollector::Add(const std::string& type, const Shape& shape, const DL_Attributes& ofEntity)
{
    if (Append(shape, ofEntity))
        m_reading.report.AddImported(type);
    else
        m_reading.report.AddSkipped(type, Undrawable);
}

/// Returns false if the shape cannot be drawn.
bool DxfCollector::Append(const Shape& shape, const DL_Attributes& ofEntity)
{
    if (!IsDrawable(shape))
        return false;
    SketchContent& content = m_reading.content;
    if (content.entities.size() >= m_options.greatestCount)
        throw TooManyEntities();
    content.entities.push_back({++content.lastId, shape, MakePen(ofEntity)});
    return true;
}

void DxfCollector::FinishPolyline()
{
    if (!m_polyline.has_value())
        return;
    Polyline polyline = std::move(*m_polyline);
    m_polyline.reset();
    bool isAnyDrawn = false;
    for (const Shape& shape : ShapesOfPolyline(std::move(polyline.vertices), polyline.isClosed))
        isAnyDrawn = Append(shape, polyline.attributes) || isAnyDrawn;
    if (isAnyDrawn)
        m_reading.report.AddImported(PolylineType);
    else
        m_reading.report.AddSkipped(PolylineType, Undrawable);
}

Pen DxfCollector::MakePen(const DL_Attributes& ofEntity)
{
    constexpr int DefaultWeight = -3;
    DL_Attributes own = ofEntity;
    const DxfLayer& known = m_tables.GetLayer(own.getLayer());
    const std::string lineType = own.getLinetype();
    const bool isByLayer = InUpperCase(lineType) == ByLayerType;
    const std::string& shownType = isByLayer ? known.lineType : lineType;
    const int weight =
        own.getWidth() < 0 && own.getWidth() != DefaultWeight ? known.lineWeight : own.getWidth();
    Pen pen;
    pen.layer = known.layer.id;
    pen.colour = NearestColour(own.getColor(), own.getColor24());
    pen.style = m_tables.StyleOf(shownType);
    pen.width = NearestWidth(weight);
    if (!IsExactColour(own.getColor(), own.getColor24()))
        m_reading.report.AddApproximated("colour");
    const std::string shownName = InUpperCase(shownType);
    if (shownName != LineTypeOf(pen.style) && shownName != "BYBLOCK")
        m_reading.report.AddApproximated("line type");
    if (weight >= 0 && weight != LineWeightOf(pen.width))
        m_reading.report.AddApproximated("line weight");
    return pen;
}
