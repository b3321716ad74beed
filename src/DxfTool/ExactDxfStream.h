// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <dxflib/dl_writer_ascii.h>

#include <ostream>
#include <string>

/// Writes the groups of a DXF file to a stream, numbers with all their digits.
///
/// The library itself writes to files only, and less exactly.
class ExactDxfStream final : public DL_WriterA
{
public:
    /// The stream is not owned and outlives the writer.
    explicit ExactDxfStream(std::ostream& stream);

    void dxfReal(int groupCode, double value) const override;
    void dxfInt(int groupCode, int value) const override;
    void dxfHex(int groupCode, int value) const override;
    void dxfString(int groupCode, const char* pValue) const override;
    void dxfString(int groupCode, const std::string& value) const override;

private:
    std::ostream& m_stream;
};
