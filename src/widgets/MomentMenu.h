#pragma once

#include "system/Moment.h"

#include <QMenu>
#include <QPushButton>
#include <functional>
#include <optional>
#include <vector>

/// A menu of moments; those that have passed are disabled.
class MomentMenu : public QMenu
{
    Q_OBJECT

public:
    explicit MomentMenu(QWidget* parent = nullptr);

    /// `moment` is asked whenever the menu opens and when the entry is chosen; none for a moment that has
    /// passed.
    void addMoment(const QString& caption, std::function<std::optional<Moment>()> moment);

signals:
    /// The entry of that index, counted from 0, was chosen; its moment has not passed.
    void momentChosen(Moment moment, int index);

private:
    void disablePassed();
    void choose(int index);

    std::vector<std::function<std::optional<Moment>()>> m_moments;
};

/// A button with a menu of moments.
class MomentButton : public QPushButton
{
    Q_OBJECT

public:
    explicit MomentButton(const QString& caption, QWidget* parent = nullptr);

    MomentMenu& moments() const { return *m_moments; }

private:
    MomentMenu* m_moments;
};
