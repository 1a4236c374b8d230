#pragma once

#include <QString>

namespace tessarine::cli {

// One line of live progress on standard error, redrawn in place. It draws only when standard
// error is a terminal: a redirected log or a cron mail must not fill up with carriage returns.
class ProgressLine {
public:
    ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
    ~ProgressLine() { clear(); }

    bool isShown() const { return m_enabled; }
    void show(const QString& text);
    // Leaves the cursor at the start of an empty line, so that what follows reads cleanly.
    void clear();

private:
    bool m_enabled;
    bool m_drawn = false;
};

// The text cut to fit in columns - 1 characters: a line that reaches the last column wraps on
// some terminals, and a carriage return then only goes back to the start of the second row.
QString fitToWidth(const QString& text, int columns);

} // namespace tessarine::cli
