#include "data/readers/CsvQuotes.h"

std::string_view CsvQuotes::repaired(std::string_view part)
{
    m_part.clear();
    for (const char letter : part) {
        add(letter);
    }
    return m_part;
}

std::string_view CsvQuotes::rest()
{
    m_part.clear();
    if (m_state == State::QuoteSeen || m_state == State::Behind) {
        m_part = '"';
    }
    return m_part;
}

void CsvQuotes::add(char letter)
{
    switch (m_state) {
    case State::FieldStart:
        m_state = letter == '"' ? State::Quoted
            : endsField(letter) ? State::FieldStart
                                : State::Bare;
        break;
    case State::Bare:
        m_state = endsField(letter) ? State::FieldStart : State::Bare;
        break;
    case State::Quoted:
        if (letter == '"') {
            m_state = State::QuoteSeen;
            return;
        }
        break;
    case State::QuoteSeen:
        if (letter == '"') {
            m_part += '"';
            m_state = State::Quoted;
        } else if (endsField(letter)) {
            m_part += '"';
            m_state = State::FieldStart;
        } else {
            m_state = State::Behind;
            m_hadEarlyQuotes = true;
        }
        break;
    case State::Behind:
        if (endsField(letter)) {
            m_part += '"';
            m_state = State::FieldStart;
        } else if (letter == '"') {
            m_part += '"';  // doubled, it is a letter
        }
        break;
    }
    m_part += letter;
}
