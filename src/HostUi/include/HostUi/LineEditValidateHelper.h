#pragma once

#include "HostUi/HostUiExport.h"

#include <QObject>

#include <map>
#include <memory>
#include <vector>

class QLineEdit;

namespace vesk
{

class ValidatorBase;

/// Shows on line edits whether their text would be accepted, by colour and by the validator's tip.
///
/// It only shows the verdict; it never rejects, removes or alters a character.
class VESK_HOST_UI_API LineEditValidateHelper final : public QObject
{
    Q_OBJECT

public:
    /// Becomes a child of the parent.
    explicit LineEditValidateHelper(QObject* pParent);
    ~LineEditValidateHelper() override;

    /// Watches these edits from now on, and no others; an edit without a validator looks as it did
    /// before. Neither edits nor validators are owned; validators must outlive their use.
    void SetValidators(const std::map<QLineEdit*, const ValidatorBase*>& validators);

private:
    class Watch;
    std::vector<std::unique_ptr<Watch>> m_watches;
};

}
