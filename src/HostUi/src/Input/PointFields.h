#pragma once

#include <QFrame>
#include <QPoint>

#include <array>
#include <cstddef>
#include <optional>

class QLabel;
class QLineEdit;

namespace vesk
{

/// Two fields, X and Y, over a view, and the unit of their numbers. They lie in the view, clear of
/// the cursor, and grow with their texts.
class PointFields final : public QFrame
{
    Q_OBJECT

public:
    static constexpr std::size_t Count = 2;

    explicit PointFields(QWidget& view);

    QLineEdit& GetField(std::size_t index) const { return *m_fields[index]; }

    /// The field in which the user types: the one that had the keyboard last.
    std::size_t GetCurrent() const { return m_current; }
    void SetCurrent(std::size_t index);

    /// Empties both fields, for numbers in that unit; names them in the user's language.
    void Clear(const QString& unit);

    /// Moves beside the cursor, in the view's pixels, or to the centre of the view if it is
    /// elsewhere.
    void Place(const std::optional<QPoint>& cursor);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;

private:
    QLineEdit* MakeField(std::size_t index);
    void Fit();

    std::array<QLineEdit*, Count> m_fields{};
    QLabel* m_pUnit;
    std::size_t m_current = 0;
    std::optional<QPoint> m_cursor;
};

}
