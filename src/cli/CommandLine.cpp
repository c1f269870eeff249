// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/CommandTable.h"
#include "cli/OptionTable.h"
#include "cli/Suggestion.h"
#include "cli/UsageError.h"

namespace {

const char* const kOptionsOfAll[] = {"--json", "--quiet", "--color"};
constexpr const char* kOptionGroup = "Optionen";

std::string inMarks(std::string_view text) { return "„" + std::string(text) + "“"; }

void addOption(CLI::App& app, const OptionSpec& spec, Options& options) {
    if (spec.isFlag()) {
        app.add_flag(spec.name, options.*std::get<OptionSpec::Flag>(spec.target), spec.help)->disable_flag_override();
        return;
    }
    std::optional<std::string>& value = options.*std::get<OptionSpec::Value>(spec.target);
    app.add_option_function<std::string>(
           spec.name, [&value](const std::string& text) { value = text; }, spec.help)
        ->type_name(spec.valueName)
        ->take_last();
}

void addOptions(CLI::App& app, std::span<const char* const> names, Options& options) {
    for (const char* name : names)
        addOption(app, OptionTable::byName(name), options);
}

void addCommand(CLI::App& app, const Command& command, Options& options) {
    CLI::App* sub = app.add_subcommand(command.name, command.summary)->group("Befehle");
    sub->get_help_ptr()->group(kOptionGroup);
    addOptions(*sub, command.options, options);
    addOptions(*sub, kOptionsOfAll, options);
}

/// "dmimport preview [OPTIONEN] DATEI"; null stands for the program alone.
std::string usageOf(const Command* command) {
    if (command == nullptr)
        return "dmimport BEFEHL [OPTIONEN] ...";
    std::string usage = std::string("dmimport ") + command->name + " [OPTIONEN]";
    if (command->operand.name != nullptr) {
        const std::string operand = std::string(command->operand.name) + (command->operand.several ? "..." : "");
        usage += " " + (command->operand.required ? operand : "[" + operand + "]");
    }
    return usage;
}

const Command* commandNamed(const std::string& name) {
    for (const Command* command : CommandTable::all()) {
        if (name == command->name)
            return command;
    }
    return nullptr;
}

/// The parser's help with our line of usage: it knows nothing of operands, since
/// it would take a file "[a]" for a list.
class HelpFormatter : public CLI::Formatter {
public:
    HelpFormatter() { column_width(28); }
    std::string make_usage(const CLI::App* app, std::string /*name*/) const override {
        return "Aufruf: " + usageOf(commandNamed(app->get_name())) + "\n";
    }
    std::string make_footer(const CLI::App* app) const override { return app->get_footer() + "\n"; }
};

std::vector<std::string> commandNames() {
    std::vector<std::string> names;
    for (const Command* command : CommandTable::all())
        names.emplace_back(command->name);
    return names;
}

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : ", ") + word;
    return text;
}

[[noreturn]] void refuse(const std::string& text, const Command* command) {
    const std::string help = std::string("dmimport ") + (command != nullptr ? command->name + std::string(" ") : "");
    throw UsageError(text + "\nAufruf: " + usageOf(command) + "\nHilfe:  " + help + "--help");
}

[[noreturn]] void refuseUnknownOption(const std::string& written, const Command* command) {
    const std::string name = written.substr(0, written.find('='));
    std::vector<std::string> known(std::begin(kOptionsOfAll), std::end(kOptionsOfAll));
    if (command != nullptr)
        known.insert(known.end(), command->options.begin(), command->options.end());
    for (const OptionSpec& option : OptionTable::all()) {
        if (name != option.name)
            continue;
        if (command == nullptr)
            refuse(inMarks(name) + " steht hinter dem Befehl.", command);
        refuse("„dmimport " + std::string(command->name) + "“ kennt die Option " + inMarks(name) + " nicht.", command);
    }
    refuse("Die Option " + inMarks(name) + " gibt es nicht." + Suggestion::question(name, known), command);
}

bool isOption(const std::string& word) { return word.size() > 1 && word[0] == '-'; }

void refuseUnknownOptions(const std::vector<std::string>& words, const Command* command) {
    for (const std::string& word : words) {
        if (isOption(word))
            refuseUnknownOption(word, command);
    }
}

/// Words where the command should stand.
void refuseUnknownCommand(const std::vector<std::string>& words) {
    if (!words.empty())
        refuse(inMarks(words.front()) + " ist kein Befehl." + Suggestion::question(words.front(), commandNames()) +
                   "\nBefehle: " + joined(commandNames()),
               nullptr);
}

[[noreturn]] void refuseValue(std::string_view name, const Command* command) {
    for (const OptionSpec& option : OptionTable::all()) {
        if (name != option.name && name != option.name + 2)
            continue;
        if (option.isFlag())
            refuse(std::string(option.name) + " nimmt keinen Wert; schreiben Sie nur " + option.name + ".", command);
        refuse(std::string(option.name) + " braucht einen Wert, etwa: " + option.example, command);
    }
    refuse("Die Befehlszeile ist nicht zu verstehen.", command);
}

/// "--info=" takes the next word for its value otherwise.
void refuseEmptyValues(int count, const char* const* arguments, const Command* command) {
    for (int i = 1; i < count; ++i) {
        const std::string_view argument = arguments[i];
        if (argument.substr(0, 2) == "--" && argument.find('=') == argument.size() - 1)
            refuseValue(argument.substr(0, argument.size() - 1), command);
    }
}

/// "--limit --json": the value was forgotten.
void refuseOptionsAsValues(const Options& options, const Command* command) {
    for (const OptionSpec& option : OptionTable::all()) {
        if (option.isFlag())
            continue;
        const std::optional<std::string>& value = options.*std::get<OptionSpec::Value>(option.target);
        for (const OptionSpec& other : OptionTable::all()) {
            if (value && *value == other.name)
                refuseValue(option.name, command);
        }
    }
}

void checkOperands(const std::vector<std::string>& operands, const Command& command) {
    if (command.operand.required && operands.empty())
        refuse(std::string("Es fehlt: ") + command.operand.name + ".", &command);
    const std::size_t most = command.operand.name == nullptr ? 0 : 1;
    if (!command.operand.several && operands.size() > most)
        refuse(inMarks(operands[most]) + " ist zu viel.", &command);
}

const Command* commandOf(const CLI::App& app) {
    for (const Command* command : CommandTable::all()) {
        if (app.got_subcommand(command->name))
            return command;
    }
    return nullptr;
}

} // namespace

CommandLine CommandLine::parse(int count, const char* const* arguments) {
    CommandLine line;
    CLI::App app("Liest Dateien von Banken und Finanzprogrammen in einen Bestand.", "dmimport");
    app.option_defaults()->group(kOptionGroup);
    app.formatter(std::make_shared<HelpFormatter>());
    app.set_help_flag("-h,--help", "diese Hilfe zeigen");
    app.set_version_flag("--version", "dmimport " DMIMPORT_VERSION, "die Version zeigen");
    app.footer("„dmimport BEFEHL --help“ erklärt einen Befehl. „-“ als Datei ist die Standardeingabe.");
    app.require_subcommand(0, 1);
    app.allow_extras();
    addOptions(app, kOptionsOfAll, line.options);
    for (const Command* command : CommandTable::all())
        addCommand(app, *command, line.options);

    // What follows "--" is no option, whatever it looks like.
    const auto* end = std::find_if(arguments + std::min(count, 1), arguments + count,
                                   [](const char* word) { return std::string_view(word) == "--"; });
    const int before = static_cast<int>(end - arguments);
    const Command* command = nullptr;
    try {
        app.parse(before, arguments);
        command = commandOf(app);
    } catch (const CLI::CallForHelp&) {
        line.answer = app.help();
        return line;
    } catch (const CLI::CallForVersion& version) {
        line.answer = std::string(version.what()) + "\n";
        return line;
    } catch (const CLI::ArgumentMismatch& mismatch) {
        const std::string_view what = mismatch.what(); // starts with the option's name
        refuseValue(what.substr(0, what.find_first_of(": ")), commandOf(app));
    } catch (const CLI::ParseError&) {
        refuse("Die Befehlszeile ist nicht zu verstehen.", commandOf(app));
    }

    refuseEmptyValues(before, arguments, command);
    refuseUnknownOptions(app.remaining(false), nullptr);
    refuseUnknownOptions(app.remaining(true), command);
    refuseUnknownCommand(app.remaining(false));
    if (command == nullptr)
        refuse("Es fehlt der Befehl. Befehle: " + joined(commandNames()), nullptr);
    refuseOptionsAsValues(line.options, command);
    line.options.operands = app.get_subcommand(command->name)->remaining();
    if (before < count)
        line.options.operands.insert(line.options.operands.end(), end + 1, arguments + count);
    checkOperands(line.options.operands, *command);
    line.command = command;
    return line;
}
