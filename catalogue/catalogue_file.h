#pragma once

#include "compiler_catalogue.h"

/// The file of the catalogue, which others may change as well: a second wizard, or a text editor.
class CatalogueFile
{
public:
    explicit CatalogueFile(const QString &path);

    /// What the file holds. A file that cannot be read gives an empty catalogue.
    CompilerCatalogue load();

    enum class Result {
        Saved,
        NotWritten, ///< the file cannot be written
        NotWhole,   ///< it cannot be read whole, so it was left as it is
    };
    /// Brings what has changed in \a catalogue since it was loaded into the file as it is now. The
    /// rest of the file stays, byte for byte.
    Result save(const CompilerCatalogue &catalogue);

private:
    const QString m_path;
    CompilerCatalogue m_loaded;
};

/// \a file, the bytes of a catalogue file, with what \a now has and \a before had not in its place:
/// a record takes the place of the first with its family and name, and stands at the end where
/// there is none.
QByteArray withChanges(QByteArray file, const CompilerCatalogue &before,
                       const CompilerCatalogue &now);
