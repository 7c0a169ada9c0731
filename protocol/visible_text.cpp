#include "visible_text.h"

#include <QList>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool isControlCharacter(char32_t character)
{
    return character != U'\t' && QChar::category(character) == QChar::Other_Control;
}

/// Letters and marks that are drawn as nothing, whatever their category says: fillers of Hangul and
/// Braille, and what selects a variant of the character before.
bool isBlank(char32_t character)
{
    static const struct
    {
        char32_t first, last;
    } blanks[] = {
        {0x034F, 0x034F}, {0x115F, 0x1160}, {0x17B4, 0x17B5}, {0x180B, 0x180F},   {0x2800, 0x2800},
        {0x3164, 0x3164}, {0xFE00, 0xFE0F}, {0xFFA0, 0xFFA0}, {0xE0000, 0xE0FFF},
    };
    return std::any_of(std::begin(blanks), std::end(blanks), [character](const auto &range) {
        return range.first <= character && character <= range.last;
    });
}

bool isVisible(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
        return character == U'\t';
    case QChar::Separator_Space:
        return character == U' ';
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return !isBlank(character);
    }
}

/// \a text with escapes for the characters that do not \a stay.
QString escaped(const QString &text, bool (*stays)(char32_t character))
{
    QString result;
    for (const char32_t character : text.toUcs4()) {
        const int digits = QChar::requiresSurrogates(character) ? 8 : 4;
        if (stays(character))
            result += QChar::fromUcs4(character);
        else
            result += (digits == 8 ? "\\U"_L1 : "\\u"_L1)
                    + QString::number(character, 16).toUpper().rightJustified(digits, u'0');
    }
    return result;
}

} // namespace

QString visibleText(const QString &text)
{
    return escaped(text, &isVisible);
}

QString printableText(const QString &text)
{
    return escaped(text, [](char32_t character) {
        return isVisible(character) || QChar::category(character) == QChar::Separator_Space;
    });
}

bool hasControlCharacter(const QString &text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar character) { return isControlCharacter(character.unicode()); });
}

bool hasControlCharacter(const QByteArray &text)
{
    return std::any_of(text.begin(), text.end(), [](char character) {
        const auto byte = static_cast<unsigned char>(character);
        return byte < 0x80 && isControlCharacter(byte);
    });
}
