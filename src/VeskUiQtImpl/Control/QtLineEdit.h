#pragma once

#include "Control/IControl.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Control/ILineEditDefinition.h"
#include "Foundation/OwnerPtr.h"
#include "Validation/ValidatorBase.h"
#include "VeskUiQtImpl/VeskUiQtImplExport.h"

#include <QLineEdit>

#include <string>

namespace vesk
{

/// Shows a line-edit definition: text, selection and editing state follow the user; the end of
/// editing is reported as a line-edit event.
class VESK_UI_QT_IMPL_API QtLineEdit : public QLineEdit,
                                       public IControl,
                                       public IControlDefinitionChangeEventHandler
{
    Q_OBJECT

public:
    /// Takes ownership of the definition and gives it the validator of its input type if it has
    /// none. With a null definition, or a reference of real-number type that refers to nothing, the
    /// edit is bare.
    QtLineEdit(OwnerPtr<ILineEditDefinition> pControlDefinition, QWidget* pParent);
    ~QtLineEdit() override;

    IControlDefinition* GetControlDefinition() const override;
    void UpdateStatus() override;

    /// Applies text, visibility, enabled state and selection, each only if it differs.
    void On(IControlDefinitionChangeEventArgs* pArgs) override;

    /// Sets the text of the edit and of its definition.
    void SetText(const std::wstring& text);

    /// Clears the edit and its definition.
    void Clear();

    /// Selects the whole text; the definition follows.
    void SelectAll();

    /// Stores a validator of the edit's own, freeing the previous one; it is separate from the
    /// definition's.
    void SetValidator(OwnerPtr<ValidatorBase> pValidator);

    /// The stored validator; null if there is none. Not owned by the caller.
    const ValidatorBase* GetValidator() const;

private:
    void OnTextEdited(const QString& text);
    void OnEditingFinished();
    void OnTextChanged(const QString& text);
    void OnTextSelectChanged();

    bool GiveDefaultValidator();
    void ApplySelection();

    int GetDefinitionSelectionStart();
    bool SetDefinitionSelection(int start, int length);
    bool SetDefinitionIsEditing(bool isEditing);

    OwnerPtr<ILineEditDefinition> m_pControlDefinition;
    OwnerPtr<ValidatorBase> m_pValidator;
};

}
