#pragma once

#include <QString>

/// Opens the file as every part of the program does, each of its first datasets as description and
/// as a whole, and aborts with a message where an opened dataset, or a failure, breaks a promise.
void checkDatasetFile(const QString& path);
