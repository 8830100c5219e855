#include "team/team_loader.h"

#include "image/failure.h"
#include "image/team_directory.h"
#include "team/record_decoder.h"

namespace morlek {

RecordBytes TeamLoader::Load(std::string_view toolbar_key, RosterGrid& grid, TeamView& view) {
  if (!image_.Open()) {
    throw OperationFailed(
        "The team could not be loaded, because the image could not be opened for reading and "
        "writing.");
  }
  if (const Team* team = FindTeam(toolbar_key)) {
    view.ShowTeamName(team->display_name);
    image_.SetTeamBase(team->base);
  }
  view.PrepareView();

  RecordBytes read;
  const auto source = [this, &read](int row, int offset) {
    const std::uint8_t byte = image_.ReadField(row, offset);
    read.Put(row, offset, byte);
    return byte;
  };
  DecodeRecord(source, kept_, grid);
  image_.Close();
  return read;
}

}  // namespace morlek
