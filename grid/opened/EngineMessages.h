#pragma once

#include <QString>

/// What engines and readers say goes to the command line and the log in English. Here it is put
/// into the user's language before it is shown.
namespace enginemessages {

/// The message in the user's language; as it is, if it is none that has a translation. The name of
/// a file in front of it stays.
[[nodiscard]] QString translated(const QString& message);

}  // namespace enginemessages
