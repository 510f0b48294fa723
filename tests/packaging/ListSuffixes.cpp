// Prints the suffix of every kind of file that can be opened, one a line.

#include "data/readers/FileKinds.h"

#include <cstdio>

int main()
{
    for (const filekinds::Entry& entry : filekinds::table()) {
        for (const filekinds::Suffix& suffix : entry.suffixes) {
            if (suffix.reader != nullptr) {
                std::puts(suffix.suffix);
            }
        }
    }
}
