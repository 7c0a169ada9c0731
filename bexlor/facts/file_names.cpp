#include "file_names.h"

#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Upper case tells sources of C++ from those of C on Unix; headers of either were named on DOS.
const struct Extension
{
    QLatin1StringView text;
    bool isOfC, isOfCpp;
    bool isHeader;
} extensions[] = {
    {"c"_L1, true, false, false},   {"C"_L1, false, true, false},   {"cc"_L1, false, true, false},
    {"cp"_L1, false, true, false},  {"cpp"_L1, false, true, false}, {"CPP"_L1, false, true, false},
    {"cxx"_L1, false, true, false}, {"c++"_L1, false, true, false}, {"h"_L1, true, true, true},
    {"H"_L1, true, true, true},     {"hh"_L1, false, true, true},   {"hpp"_L1, false, true, true},
    {"hxx"_L1, false, true, true},  {"h++"_L1, false, true, true},
};

const Extension *extensionOf(const QString &file, bool isCpp)
{
    const QString suffix = QFileInfo(file).suffix();
    const auto *found = std::find_if(
        std::begin(extensions), std::end(extensions), [&suffix, isCpp](const Extension &row) {
            return row.text == suffix && (isCpp ? row.isOfCpp : row.isOfC);
        });
    return found == std::end(extensions) ? nullptr : found;
}

} // namespace

bool isInLanguage(const QString &file, bool isCpp)
{
    return extensionOf(file, isCpp) != nullptr;
}

bool isHeader(const QString &file, bool isCpp)
{
    const Extension *extension = extensionOf(file, isCpp);
    return extension && extension->isHeader;
}
