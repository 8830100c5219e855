#include "cli/arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string_view>
#include <utility>

#include "cli/help.h"
#include "version.h"

namespace morlek::cli {
namespace {

constexpr const char* kProgram = "morlek-league";

/// Why no command was found in what is left over.
std::string WhyNoCommand(const std::vector<std::string>& left) {
  return left.empty() ? "a command is missing" : "no command is called " + left.front();
}

}  // namespace

Arguments ReadArguments(std::vector<std::string> texts) {
  ExportArguments to_file;
  ImportArguments from_file;
  DiffArguments diff;

  CLI::App app("", kProgram);
  app.allow_windows_style_options(false);
  app.require_subcommand(1);
  app.set_version_flag("--version", std::string(kProgram) + " " + kVersion + "\n");
  CLI::App* export_command = app.add_subcommand("export");
  export_command->add_option("IMAGE", to_file.image)->required();
  export_command->add_option("FILE", to_file.file);
  export_command->add_flag("--force", to_file.replaces);
  CLI::App* import_command = app.add_subcommand("import");
  import_command->add_option("FILE", from_file.file)->required();
  import_command->add_option("IMAGE", from_file.image)->required();
  import_command->add_flag("--dry-run", from_file.is_dry_run);
  CLI::App* diff_command = app.add_subcommand("diff");
  diff_command->add_option("ONE", diff.one)->required();
  diff_command->add_option("OTHER", diff.other)->required();

  try {
    // As the parser takes them.
    std::ranges::reverse(texts);
    app.parse(std::move(texts));
  } catch (const CLI::CallForHelp&) {
    std::string_view help = kHelp;
    if (export_command->parsed()) help = kExportHelp;
    if (import_command->parsed()) help = kImportHelp;
    if (diff_command->parsed()) help = kDiffHelp;
    return InfoText{std::string(help)};
  } catch (const CLI::CallForVersion& asked) {
    return InfoText{asked.what()};
  } catch (const CLI::ParseError& error) {
    if (app.get_subcommands().empty()) return WrongCall{WhyNoCommand(app.remaining())};
    return WrongCall{error.what()};
  }
  if (export_command->parsed()) return to_file;
  if (import_command->parsed()) return from_file;
  if (diff.one == "-" && diff.other == "-") {
    return WrongCall{"standard input can be read only once"};
  }
  return diff;
}

}  // namespace morlek::cli
