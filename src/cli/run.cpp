#include "cli/run.h"

#include <filesystem>
#include <iostream>
#include <optional>
#include <utility>

#include "cli/arguments.h"
#include "codecs/hex_text.h"
#include "image/failure.h"
#include "league/comparison.h"
#include "league/image_season.h"
#include "league/image_writer.h"
#include "league/import_plan.h"
#include "league/new_file.h"
#include "league/season_file.h"
#include "league/season_reader.h"
#include "league/season_writer.h"

namespace morlek::cli {
namespace {

using enum ExitStatus;

constexpr std::string_view kStandard = "-";

std::filesystem::path PathOf(const std::string& name) {
  return {std::u8string(name.begin(), name.end())};
}

/// Runs a step on one file; the text of its failure then begins with the file's name.
template <typename Step>
auto About(const std::string& name, Step step) {
  try {
    return step();
  } catch (const OperationFailed& failure) {
    throw OperationFailed(name + ": " + failure.what());
  }
}

std::string Counted(std::size_t count, const std::string& one, const std::string& many) {
  return std::to_string(count) + " " + (count == 1 ? one : many);
}

/// One run of the program.
class Program {
 public:
  Program(const Disk& disk, const Streams& streams) : disk_(disk), streams_(streams) {}

  ExitStatus operator()(const ExportArguments& arguments);
  ExitStatus operator()(const ImportArguments& arguments);
  ExitStatus operator()(const DiffArguments& arguments);
  ExitStatus operator()(const InfoText& info);
  ExitStatus operator()(const WrongCall& call);

 private:
  std::ostream& Message() { return streams_.messages << "morlek-league: "; }
  ExitStatus Refuse(const std::string& name, const Complaints& complaints);
  ExitStatus TellLeftBytes(const std::string& name, const std::vector<LeftByte>& left);

  [[nodiscard]] std::optional<Season> ReadStandardInput(Complaints& complaints);

  /// Throws OperationFailed when standard output does not take all of it.
  void FlushResult();

  const Disk& disk_;
  const Streams& streams_;
};

ExitStatus Program::operator()(const ExportArguments& arguments) {
  Complaints complaints;
  const auto image =
      About(arguments.image, [&] { return ReadImage(disk_, PathOf(arguments.image), complaints); });
  if (!image) return Refuse(arguments.image, complaints);
  if (arguments.file == kStandard) {
    WriteSeason(image->season, [this](std::string_view line) { streams_.out << line << "\r\n"; });
    FlushResult();
    return kDone;
  }
  const NewFileResult result = About(arguments.file, [&] {
    return WriteNewFile(disk_, PathOf(arguments.file), arguments.replaces,
                        [&image](const LineSink& sink) { WriteSeason(image->season, sink); });
  });
  if (result == NewFileResult::kWritten) return kDone;
  return Refuse(arguments.file, {"this exists already; --force replaces it"});
}

ExitStatus Program::operator()(const ImportArguments& arguments) {
  const std::filesystem::path path = PathOf(arguments.image);
  Complaints complaints;
  const auto season = About(arguments.file, [&] {
    return arguments.file == kStandard ? ReadStandardInput(complaints)
                                       : ReadSeasonFile(disk_, PathOf(arguments.file), complaints);
  });
  if (!season) return Refuse(arguments.file, complaints);
  const auto image = About(arguments.image, [&] { return ReadImage(disk_, path, complaints); });
  if (image) RequireAllTeams(disk_, path, complaints);
  if (!complaints.empty()) return Refuse(arguments.image, complaints);
  const auto plan = PlanImport(*image, *season, complaints);
  if (!plan) {
    const ExitStatus status = Refuse(arguments.file, complaints);
    Message() << Counted(complaints.size(), "cell is", "cells are")
              << " refused; the image is as it was\n";
    return status;
  }

  if (arguments.is_dry_run) {
    for (const SeasonChange& each : plan->cells) streams_.out << ChangeText(each) << '\n';
  } else if (!plan->bytes.empty()) {
    const auto result =
        About(arguments.image, [&] { return WriteIntoImage(disk_, path, plan->bytes); });
    if (!result.is_written) return TellLeftBytes(arguments.image, result.left);
  }
  streams_.out << Counted(plan->cells.size(), "cell", "cells") << " of "
               << Counted(static_cast<std::size_t>(PlayersOf(plan->cells)), "player", "players")
               << (arguments.is_dry_run ? " would change" : " changed") << '\n';
  FlushResult();
  return kDone;
}

ExitStatus Program::operator()(const DiffArguments& arguments) {
  Complaints complaints;
  const auto read = [&](const std::string& name) {
    return About(name, [&] {
      return name == kStandard ? ReadStandardInput(complaints)
                               : ReadImageOrFile(disk_, PathOf(name), complaints);
    });
  };
  const auto one = read(arguments.one);
  if (!one) return Refuse(arguments.one, complaints);
  const auto other = read(arguments.other);
  if (!other) return Refuse(arguments.other, complaints);
  const std::vector<SeasonChange> changes = Differences(*one, *other);
  for (const SeasonChange& each : changes) streams_.out << ChangeText(each) << '\n';
  FlushResult();
  return changes.empty() ? kDone : kRefused;
}

ExitStatus Program::operator()(const InfoText& info) {
  streams_.out << info.text;
  FlushResult();
  return kDone;
}

ExitStatus Program::operator()(const WrongCall& call) {
  Message() << call.why << "\nmorlek-league --help shows how it is called.\n";
  return kWrongCall;
}

ExitStatus Program::Refuse(const std::string& name, const Complaints& complaints) {
  for (const std::string& each : complaints) streams_.messages << name << ": " << each << '\n';
  return kRefused;
}

ExitStatus Program::TellLeftBytes(const std::string& name, const std::vector<LeftByte>& left) {
  if (left.empty()) {
    Message() << name << ": could not be written; the image is as it was\n";
    return kFileFailure;
  }
  Message() << name << ": could not be written, nor all put back that was written before:\n";
  for (const LeftByte& each : left) {
    streams_.messages << "  the byte at position " << each.position << " was "
                      << ByteToTwoDigits(each.before) << " and "
                      << (each.now ? "is now " + ByteToTwoDigits(*each.now) : "cannot be read now")
                      << '\n';
  }
  return kFileFailure;
}

std::optional<Season> Program::ReadStandardInput(Complaints& complaints) {
  using Traits = std::istream::traits_type;
  return ReadSeason(
      [&in = *streams_.in.rdbuf()]() -> std::optional<char> {
        const Traits::int_type character = in.sbumpc();
        if (Traits::eq_int_type(character, Traits::eof())) return std::nullopt;
        return Traits::to_char_type(character);
      },
      complaints);
}

void Program::FlushResult() {
  if (!streams_.out.flush()) throw OperationFailed("standard output could not be written");
}

}  // namespace

ExitStatus Run(std::vector<std::string> arguments, const Disk& disk, const Streams& streams) {
  try {
    return std::visit(Program(disk, streams), ReadArguments(std::move(arguments)));
  } catch (const OperationFailed& failure) {
    streams.messages << "morlek-league: " << failure.what() << '\n';
    return kFileFailure;
  }
}

}  // namespace morlek::cli
