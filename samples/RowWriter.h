#pragma once

#include "samples/Table.h"

namespace samples {

/// A file on its way, whose header is written: its rows and its end. The file and the shape of the
/// table outlive the writer. What goes wrong is thrown as std::runtime_error.
class RowWriter
{
public:
    RowWriter() = default;
    RowWriter(const RowWriter&) = delete;
    RowWriter& operator=(const RowWriter&) = delete;
    virtual ~RowWriter() = default;

    virtual void add(const Row& row) = 0;
    virtual void end() = 0;
};

}  // namespace samples
