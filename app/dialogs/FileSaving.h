#pragma once

#include <QString>

class UserPrompts;

namespace filesaving {

/// Writes a text as UTF-8, whole or not at all. A failure is told to the user.
/// @param title  of the box that tells it
/// @return       whether the file is written
bool save(UserPrompts& prompts, const QString& title, const QString& path, const QString& text);

}  // namespace filesaving
