#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>

/// A label of one line whose text ends in an ellipsis where it is too long; all of it is the tool
/// tip then, or as much as fits the screen. Shows everything literally, never as markup.
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
/// wide as its longest item, or the screen.
class ElidedComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ElidedComboBox(QWidget *parent = nullptr);

    void showPopup() override;

protected:
    void initStyleOption(QStyleOptionComboBox *option) const override;
};

/// A group box whose title is drawn whole in every script. The style reckons with the height of the
/// form's face, and cuts off what is taller, as the faces of Chinese and Japanese are. Leaves Enter
/// to the default button of the form on every desktop.
class WholeTitleGroupBox : public QGroupBox
{
    Q_OBJECT

public:
    using QGroupBox::QGroupBox;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
