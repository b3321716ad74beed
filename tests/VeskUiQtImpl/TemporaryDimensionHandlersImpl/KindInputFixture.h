#pragma once

#include "TemporaryDimensionHandlersImpl/KindTable.h"

namespace vesk::test
{

/// A handler of a kind, whose fields show values, and an action that receives what is typed.
struct KindInputFixture : KindFixture
{
    explicit KindInputFixture(const KindRules& rules)
        : KindFixture(rules.pCreateContext()), kind(rules)
    {
        host.BeginAction();
        kind.ShowValuesIn(Data());
        redrawCountAtStart = host.view.GetRedrawCount();
    }

    /// How often the handler made the host refresh the view.
    int RefreshCount() const { return host.view.GetRedrawCount() - redrawCountAtStart; }

    /// Makes each field accept only its range.
    void Narrow()
    {
        for (const FieldRules& field : kind.fields)
            field.pNarrow(*opContext, field.range);
        Configure();
    }

    const KindRules& kind;
    int redrawCountAtStart;
};

/// One value of a kind, as it appears in a row. Both live as long as the table.
struct KindField
{
    const KindRules* pKind;
    const FieldRules* pField;
};

/// Every value of the wanted kinds.
inline std::vector<KindField> AllFields(bool (*pIsWanted)(const KindRules&) = &IsAnyKind)
{
    std::vector<KindField> fields;
    for (const KindRules& kind : AllKinds())
    {
        for (const FieldRules& field : kind.fields)
        {
            if (pIsWanted(kind))
                fields.push_back({&kind, &field});
        }
    }
    return fields;
}

/// Adds a row for each value of the wanted kinds, for FETCH_FIELD.
inline void AddFieldRows(bool (*pIsWanted)(const KindRules&) = &IsAnyKind)
{
    QTest::addColumn<KindField>("kindField");
    for (const KindField& row : AllFields(pIsWanted))
        QTest::addRow("%s, %s", row.pKind->name, row.pField->name) << row;
}

}

Q_DECLARE_METATYPE(vesk::test::KindField)

/// The value of the current row, and its kind.
#define FETCH_FIELD(kind, field)                                                                   \
    QFETCH(KindField, kindField);                                                                  \
    const KindRules& kind = *kindField.pKind;                                                      \
    const FieldRules& field = *kindField.pField
