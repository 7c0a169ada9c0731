#pragma once

#include "compiler_catalogue.h"

#include <functional>
#include <optional>

/// The file of the catalogue, which others may change as well: a second wizard, or a text editor.
class CatalogueFile
{
public:
    explicit CatalogueFile(const QString &path);

    /// What the file holds. A file that cannot be read gives an empty catalogue.
    CompilerCatalogue load();

    /// The same once more; nothing when it cannot be read whole, or is no longer there.
    std::optional<CompilerCatalogue> reload();

    enum class Result {
        Saved,
        NotWritten, ///< the file cannot be written
        NotWhole,   ///< it cannot be read whole, so it was left as it is
    };
    /// Brings what has changed in \a catalogue since it was loaded into the file as it is now. The
    /// rest of the file stays, byte for byte.
    Result save(const CompilerCatalogue &catalogue);
    /// Brings what is new in \a shipped, the bytes of the catalogue that comes with the wizard,
    /// into the file; a missing one becomes the same. \a before came with the last version.
    Result bringShipped(const QByteArray &shipped, const QByteArray &before);

private:
    /// Makes of the file what \a change makes of its bytes; a missing one becomes \a whole.
    Result update(const QByteArray &whole, const std::function<QByteArray(QByteArray)> &change);

    const QString m_path;
    CompilerCatalogue m_loaded;
};

/// \a file, the bytes of a catalogue file, with what \a now has and \a before had not in its place:
/// a record takes the place of the first with its family and name, and stands at the end where
/// there is none.
QByteArray withChanges(const QByteArray &file, const CompilerCatalogue &before,
                       const CompilerCatalogue &now);

/// \a file, the bytes of a catalogue file, with the records of \a shipped that are new since
/// \a before, and with those that have changed and that the user has left as they were. What the
/// user has changed, added or removed stays so.
QByteArray withShipped(const QByteArray &file, const CompilerCatalogue &before,
                       const CompilerCatalogue &shipped);
