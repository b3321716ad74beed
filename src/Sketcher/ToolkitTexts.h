#pragma once

#include <QTranslator>

/// The toolkit's own texts in the language of the program's texts: those of file dialogs, standard
/// buttons and the menus of text fields. Used by all windows while it lives.
///
/// Names of keys stay as they are printed on keyboards.
class ToolkitTexts final : public QTranslator
{
public:
    ToolkitTexts();
    ~ToolkitTexts() override;

    /// A null text if there is none for it; it is then shown as it is.
    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override;

    bool isEmpty() const override { return false; }
};
