#pragma once

#include "Model/DocumentFile.h"
#include "Model/JsonPieces.h"

#include <cstddef>
#include <set>
#include <string>
#include <string_view>

class DocumentFields;

/// Reads the text of one drawing file. Each operation throws a JsonFault for what must not be.
class DocumentReader final
{
public:
    /// The function is not owned, may be empty, and outlives the reader.
    explicit DocumentReader(const DocumentFile::Progress& progress) : m_progress(progress) {}

    DocumentReading Read(std::string_view text);

private:
    DocumentReading ReadContent(DocumentFields& fields);
    void ReadLayers(const JsonPiece& layers);
    void ReadLayer(const JsonPiece& piece);
    void ReadCurrentPen(const JsonPiece& piece);
    bool ReadEntities(const JsonPiece& entities);
    void ReadEntity(const JsonPiece& piece);
    int TakeLayer(DocumentFields& fields, const JsonPiece& owner) const;
    void CheckDigest(const JsonPiece& piece, DocumentReading& reading) const;

    const DocumentFile::Progress& m_progress;
    SketchContent m_content;
    std::set<std::wstring> m_layerNames;
};
