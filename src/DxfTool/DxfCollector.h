// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "DxfOutline.h"
#include "DxfReader.h"
#include "DxfTables.h"
#include "PolylineShapes.h"

#include <dxflib/dl_creationadapter.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

/// Thrown through the library when a file has more than the greatest count of anything.
class TooManyEntities final : public std::runtime_error
{
public:
    TooManyEntities() : std::runtime_error("too many entities") {}
};

/// Receives what the library finds in a DXF file, and makes a drawing of it.
class DxfCollector final : public DL_CreationAdapter
{
public:
    /// The options are not owned and outlive the collector.
    DxfCollector(const DxfReadOptions& options, const DxfUnit& unit, const DxfOutline& outline);

    /// Call once after reading. The collector is empty afterwards.
    DxfReading Take();

    void addLayer(const DL_LayerData& data) override;
    void addLinetype(const DL_LinetypeData& data) override;
    void addLinetypeDash(double length) override;
    void addBlock(const DL_BlockData& data) override;
    void endBlock() override;
    void addLine(const DL_LineData& data) override;
    void addArc(const DL_ArcData& data) override;
    void addCircle(const DL_CircleData& data) override;
    void addPolyline(const DL_PolylineData& data) override;
    void addVertex(const DL_VertexData& data) override;
    void endEntity() override;

private:
    /// A polyline whose vertices are still being read.
    struct Polyline
    {
        DL_Attributes attributes;
        std::vector<PolylineVertex> vertices;
        bool isClosed = false;
        bool isSpatial = false; ///< Its points are not relative to its plane.
    };

    bool IsWanted(const std::string& type);
    bool IsInPlane(const std::string& type);
    vesk::Vector3d ToPlane(double x, double y, double z, bool isSpatial);
    void Add(const std::string& type, const Shape& shape, const DL_Attributes& ofEntity);
    bool Append(const Shape& shape, const DL_Attributes& ofEntity);
    void FinishPolyline();
    Pen MakePen(const DL_Attributes& ofEntity);

    const DxfReadOptions& m_options;
    const double m_scale;
    const std::size_t m_total; ///< Entities of all types.
    std::size_t m_done = 0;
    bool m_isInBlock = false;

    DxfTables m_tables;
    std::optional<Polyline> m_polyline;
    DxfReading m_reading;
};
