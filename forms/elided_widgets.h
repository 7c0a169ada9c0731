#pragma once

#include <QComboBox>
#include <QLabel>

/// A label of one line whose text ends in an ellipsis where it is too long; all of it is the tool
/// tip then. Shows everything literally, never as markup.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownText() const;
};

/// A combo box whose current text ends in an ellipsis where it is too long, and whose list opens as
/// wide as its longest item.
class ElidedComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ElidedComboBox(QWidget *parent = nullptr);

    void showPopup() override;

protected:
    void initStyleOption(QStyleOptionComboBox *option) const override;
};
