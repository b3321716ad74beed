#pragma once

#include "Model/JsonPieces.h"
#include "Model/Pen.h"

#include "Geometry/Vector3d.h"

#include <array>
#include <string>
#include <vector>

/// The members of one object of a drawing file, taken one by one.
///
/// Each operation throws a JsonFault that names the field if it is missing or its value is not what
/// it should be.
class DocumentFields final
{
public:
    explicit DocumentFields(const JsonPiece& object);

    JsonPiece Take(const std::string& key);
    std::string TakeText(const std::string& key);
    bool TakeTruth(const std::string& key);
    int TakeInteger(const std::string& key, int least, int greatest);

    /// The index of the name that the field holds.
    int TakeValue(const PenPart& part);

    /// The fields of a pen, except for its layer.
    void TakePen(Pen& pen);

    void Take(const std::string& key, double& number);
    void Take(const std::string& key, vesk::Vector3d& point);
    void Take(const std::string& key, std::array<vesk::Vector3d, 4>& points);

    /// The members that were not taken, as one JSON object on one line; empty if there are none.
    std::string GetRest() const;

private:
    struct Field
    {
        JsonMember member;
        bool isTaken = false;
    };

    JsonPiece m_object;
    std::vector<Field> m_fields;
};
