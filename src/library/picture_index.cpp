#include "library/picture_index.h"

#include <algorithm>

namespace library {

namespace {

constexpr std::size_t kMostBytes = 64 << 20;  // of all paths: a short file must not claim more

void WritePictures(PayloadWriter& writer, const std::vector<std::string>& pictures) {
  writer.number(pictures.size());
  std::string_view before;
  for (const std::string_view path : pictures) {
    const auto differ = std::mismatch(path.begin(), path.end(), before.begin(), before.end());
    const auto shared = static_cast<std::size_t>(differ.first - path.begin());
    writer.number(shared);
    writer.text(path.substr(shared));
    before = path;
  }
}

bool ReadPictures(PayloadReader& reader, std::vector<std::string>& pictures, std::size_t& bytesLeft) {
  const std::uint64_t count = reader.number();
  for (std::uint64_t i = 0; i < count && reader.isWhole(); ++i) {
    const std::uint64_t shared = reader.number();
    const std::string_view rest = reader.text();
    const std::string_view before = pictures.empty() ? std::string_view() : std::string_view(pictures.back());
    if (shared > before.size()) return false;
    std::string path(before.substr(0, static_cast<std::size_t>(shared)));
    path += rest;
    if (path.size() > bytesLeft) return false;
    bytesLeft -= path.size();
    pictures.push_back(std::move(path));
  }
  return reader.isWhole();
}

}  // namespace

std::string PayloadOf(const std::vector<FolderListing>& listings) {
  PayloadWriter writer;
  writer.number(listings.size());
  for (const FolderListing& listing : listings) {
    writer.text(listing.folder);
    writer.number(listing.subfolders ? 1 : 0);
    WritePictures(writer, listing.pictures);
  }
  return writer.payload();
}

std::optional<std::vector<FolderListing>> PictureIndexOf(std::string_view payload) {
  PayloadReader reader(payload);
  std::vector<FolderListing> listings;
  std::size_t bytesLeft = kMostBytes;
  const std::uint64_t count = reader.number();
  for (std::uint64_t i = 0; i < count && reader.isWhole(); ++i) {
    FolderListing listing;
    listing.folder = reader.text();
    listing.subfolders = reader.number() != 0;
    if (!ReadPictures(reader, listing.pictures, bytesLeft)) return std::nullopt;
    listings.push_back(std::move(listing));
  }
  if (!reader.isWhole() || !reader.isAtEnd()) return std::nullopt;
  return listings;
}

}  // namespace library
