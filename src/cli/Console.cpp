// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/Console.h"

#include <cstdio>
#include <cstdlib>
#include <sys/ioctl.h>
#include <unistd.h>

#include "cli/MessageText.h"
#include "cli/SafeText.h"
#include "cli/UsageError.h"
#include "store/StoreError.h"

namespace {

constexpr std::size_t kUsualWidth = 80;
constexpr std::size_t kWidestTerminal = 10000;

/// The number that the terminal, else the environment names.
std::size_t terminalWidth(int descriptor) {
    winsize size{};
    if (::ioctl(descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col > 0)
        return size.ws_col;
    const char* columns = std::getenv("COLUMNS");
    const unsigned long number = columns != nullptr ? std::strtoul(columns, nullptr, 10) : 0;
    return number > 0 && number < kWidestTerminal ? number : kUsualWidth;
}

/// NO_COLOR counts when it is there and not empty; what the command line says counts more.
bool wantsColor(const std::optional<std::string>& option, bool terminal) {
    const std::string when = option.value_or("auto");
    if (when == "always" || when == "never")
        return when == "always";
    if (when != "auto")
        throw UsageError("„" + when + "“ gibt es für --color nicht; schreiben Sie auto, always oder never.");
    const char* noColor = std::getenv("NO_COLOR");
    return terminal && (noColor == nullptr || *noColor == '\0');
}

} // namespace

Console::Console(const Options& options) : m_json(options.json), m_quiet(options.quiet) {
    const bool outputIsTerminal = ::isatty(STDOUT_FILENO) == 1;
    const bool messagesAreTerminal = ::isatty(STDERR_FILENO) == 1;
    m_colorsOutput = wantsColor(options.color, outputIsTerminal);
    m_colorsMessages = wantsColor(options.color, messagesAreTerminal);
    m_showsProgress = messagesAreTerminal && !m_quiet && !m_json;
    m_width = outputIsTerminal ? terminalWidth(STDOUT_FILENO) : 0;
}

void Console::write(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size())
        m_failed = true;
}

void Console::summary(std::string_view line) {
    if (m_json || m_quiet)
        return;
    write(line);
    write("\n");
}

void Console::report(std::string_view file, const std::vector<Message>& messages) {
    if (!messages.empty())
        complain(MessageText::render(file, messages, m_colorsMessages));
}

void Console::report(const StoreError& error) {
    complain(MessageText::renderError(error.what(), error.codeText(), m_colorsMessages));
}

void Console::reportUsage(std::string_view text) {
    std::string out = "dmimport: ";
    for (;;) {
        const std::size_t end = text.find('\n');
        SafeText::appendPrintable(out, text.substr(0, end));
        out += '\n';
        if (end == std::string_view::npos)
            break;
        text.remove_prefix(end + 1);
    }
    complain(out);
}

void Console::complain(std::string_view text) {
    std::fflush(stdout); // on a terminal, results and messages appear in their order
    std::fwrite(text.data(), 1, text.size(), stderr);
}

bool Console::finish() {
    if (std::fflush(stdout) != 0)
        m_failed = true;
    if (m_failed) {
        const Message message = Message::of(Problem::outputFailed, {});
        complain(MessageText::renderError(message.fullText(), message.code, m_colorsMessages));
    }
    return !m_failed;
}
