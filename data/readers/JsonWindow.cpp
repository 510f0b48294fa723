#include "data/readers/JsonWindow.h"

#include "data/readers/JsonText.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

JsonWindow::JsonWindow(JsonInput& input)
    : m_input(input)
    , m_buffer(1 + usualBytes + margin)
{ }

void JsonWindow::restart(std::int64_t offset)
{
    m_input.rewind();
    m_start = m_end = 1;
    m_offset = 0;
    m_inputEnded = false;
    while (m_offset < offset && have(1)) {
        pass(static_cast<std::size_t>(
            std::min<std::int64_t>(offset - m_offset, static_cast<std::int64_t>(size()))));
    }
}

bool JsonWindow::have(std::size_t bytes)
{
    while (size() < bytes && haveMore()) { }
    return size() >= bytes;
}

bool JsonWindow::haveMore()
{
    if (m_inputEnded) {
        return false;
    }
    if (m_start > 1) {
        std::memmove(m_buffer.data() + 1, m_buffer.data() + m_start, size());
        m_end -= m_start - 1;
        m_start = 1;
    }
    if (m_end + margin == m_buffer.size()) {
        if (size() >= mostBytes) {
            throw std::runtime_error("It holds a value that is too long or too deep to be read");
        }
        m_buffer.resize(1 + 2 * size() + margin);
    }
    const std::size_t got =
        m_input.read({m_buffer.data() + m_end, m_buffer.size() - margin - m_end});
    m_end += got;
    m_inputEnded = m_end + margin < m_buffer.size();
    return got > 0;
}

void JsonWindow::pass(std::size_t bytes)
{
    m_start += bytes;
    m_offset += static_cast<std::int64_t>(bytes);
}

char JsonWindow::next()
{
    while (size() > 0 || haveMore()) {
        const std::size_t blanks = jsontext::blanksAt(text());
        m_line += std::count(data(), data() + blanks, '\n');
        pass(blanks);
        if (size() > 0) {
            return text().front();
        }
    }
    return '\0';
}

void JsonWindow::passValue(std::string* copy)
{
    jsontext::ValueEnd end;
    while (!end.isDone() && (size() > 0 || haveMore())) {
        const std::size_t bytes = end.pass(text());
        if (copy != nullptr) {
            copy->append(text().substr(0, bytes));
            m_line += std::count(data(), data() + bytes, '\n');
        }
        if (end.isTooDeep() || (copy != nullptr && copy->size() > mostBytes)) {
            throw std::runtime_error("It holds a value that is too long or too deep to be read");
        }
        pass(bytes);
    }
    if (!end.isDone()) {
        throw std::runtime_error("It is cut short");
    }
}
