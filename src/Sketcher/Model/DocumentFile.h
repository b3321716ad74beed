#pragma once

#include "Model/Digest.h"
#include "Model/SketchContent.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

/// What was found in a drawing file.
struct DocumentReading
{
    enum class Outcome
    {
        Whole,
        Damaged,
        Newer, ///< Written by a newer version of the program.
        Cancelled,
    };

    Outcome outcome = Outcome::Damaged;
    SketchContent content; ///< Only of a whole file.
    std::string digest;    ///< Of the content.
    Digest sum;            ///< The same, to restore the content with.

    /// What is wrong with the file, in one sentence, and in which line; empty and 0 otherwise.
    std::string error;
    int line = 0;
};

/// The format of drawing files, which `docs/document-format.md` describes.
///
/// Time and memory are linear in the size of the drawing or the text. May be called in any thread.
class DocumentFile final
{
public:
    static constexpr int Version = 1;

    /// Called now and then with how much is done, of what total. Return false to cancel.
    using Progress = std::function<bool(std::size_t done, std::size_t total)>;

    /// The text of a file (UTF-8) with a drawing that is valid; empty if cancelled. Equal drawings
    /// with equal unknown fields have equal texts.
    static std::string ToText(const SketchContent& content, const Progress& progress = {});

    /// The same with the digest of the content, which a Sketch knows already.
    static std::string ToText(const SketchContent& content, const std::string& digest,
                              const Progress& progress);

    /// Reads the text of a file. The content of a whole file is valid, has the digest that the file
    /// names, and keeps the fields that this version does not know.
    static DocumentReading FromText(std::string_view text, const Progress& progress = {});
};
