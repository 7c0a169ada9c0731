#pragma once

#include <QValidator>

/// Keeps line breaks, tabs and other control characters out of a field of one line, however they
/// come there. Between two words they become a space; at an end of the text, or of what has just
/// been pasted, they go. Every text is acceptable then.
class OneLineValidator : public QValidator
{
    Q_OBJECT

public:
    using QValidator::QValidator;

    State validate(QString &text, int &cursor) const override;
};
