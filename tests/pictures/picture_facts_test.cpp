#include "pictures/picture_facts.h"

#include <gtest/gtest.h>

#include "support/byte_writer.h"
#include "support/jpeg_builder.h"
#include "support/noise.h"
#include "support/photo_builder.h"
#include "support/plain_picture_facts.h"

namespace pictures {
namespace {

using support::JpegHead;
using support::NotesSegment;
using support::PhotoNote;
using support::PhotoNotes;
using support::Utf16Bytes;
using support::XmpPacket;
using support::XmpProperty;
using support::XmpSegment;

constexpr base::PixelSize kSize{64, 48};

PictureFacts FactsOf(const std::string& segments) {
  const std::string head = JpegHead(segments, kSize);
  const PictureFacts facts = ReadPictureFacts(head);
  EXPECT_EQ(facts, support::PlainPictureFacts(head)) << "the plain reading";
  return facts;
}

PictureFacts FactsOf(const PhotoNotes& notes) { return FactsOf(NotesSegment(notes)); }

PhotoNote Ascii(std::uint16_t tag, std::string text) { return {tag, std::move(text) + std::string(1, '\0')}; }

PhotoNote XpTitle(const std::string& bytes) { return {support::kTitleTag, bytes, 1}; }

TEST(PictureFacts, AreReadInBothByteOrders) {
  for (const bool bigEndian : {false, true}) {
    const PictureFacts facts =
        FactsOf(PhotoNotes{.first = {Ascii(support::kDescriptionTag, "Lake at dawn"),
                                     Ascii(support::kMakeTag, "Acme"), Ascii(support::kModelTag, "X100")},
                           .exif = {Ascii(support::kTakenTag, "2019:07:14 18:05:09")},
                           .bigEndian = bigEndian});
    EXPECT_EQ(facts.title, "Lake at dawn");
    EXPECT_EQ(facts.camera, "Acme X100");
    EXPECT_EQ(facts.date, (os::LocalTime{2019, 7, 14, 18, 5, 9, 0}));
  }
}

TEST(PictureFacts, AFileThatSaysNothingHasNone) {
  EXPECT_EQ(FactsOf(""), PictureFacts());
  EXPECT_EQ(FactsOf(PhotoNotes{}), PictureFacts());
  for (const char* head : {"", "GIF89a", "II", "MM", "\xFF\xD8\xFF"}) {
    EXPECT_EQ(ReadPictureFacts(head), PictureFacts()) << head;
  }
}

TEST(PictureFacts, ATiffFilesOwnDirectoryIsRead) {
  const std::string file =
      support::TiffBlockBytes({.first = {Ascii(support::kModelTag, "X100"),
                                         {support::kXmpTag, XmpPacket(XmpProperty("dc:title", "Lake")), 1}},
                               .exif = {Ascii(support::kDigitizedTag, "2001:02:03 04:05:06")},
                               .bigEndian = true});
  const PictureFacts facts = ReadPictureFacts(file);
  EXPECT_EQ(facts, support::PlainPictureFacts(file));
  EXPECT_EQ(facts.title, "Lake");
  EXPECT_EQ(facts.camera, "X100");
  EXPECT_EQ(facts.date, (os::LocalTime{2001, 2, 3, 4, 5, 6, 0}));
}

TEST(PictureFacts, TheMomentOfTakingCountsBeforeThatOfScanningAndOfChanging) {
  const PhotoNote taken = Ascii(support::kTakenTag, "2001:01:01 01:01:01");
  const PhotoNote digitized = Ascii(support::kDigitizedTag, "2002:02:02 02:02:02");
  const PhotoNote changed = Ascii(support::kChangedTag, "2003:03:03 03:03:03");
  EXPECT_EQ(FactsOf(PhotoNotes{.first = {changed}, .exif = {digitized, taken}}).date->year, 2001);
  EXPECT_EQ(FactsOf(PhotoNotes{.first = {changed}, .exif = {digitized}}).date->year, 2002);
  EXPECT_EQ(FactsOf(PhotoNotes{.first = {changed}}).date->year, 2003);
}

TEST(PictureFacts, AMomentThatIsUnknownOrNoneIsPassedOver) {
  const PhotoNote changed = Ascii(support::kChangedTag, "2003:03:03 03:03:03");
  for (const char* text : {"0000:00:00 00:00:00", "    :  :     :  :  ", "2019:02:29 12:00:00",
                           "2019:13:01 12:00:00", "2019:01:32 12:00:00", "2019:01:01 24:00:00",
                           "2019:01:01 23:60:00", "2019:01:01 23:00:60", "2019:01:01", "2019:01:01 12:00",
                           "1600:01:01 00:00:00", "", "yesterday, after dinner", "-019:01:01 12:00:00"}) {
    EXPECT_EQ(FactsOf(PhotoNotes{.first = {changed}, .exif = {Ascii(support::kTakenTag, text)}}).date->year,
              2003)
        << text;
  }
}

TEST(PictureFacts, AMomentMayBeSeparatedOtherwiseAndGoOn) {
  for (const char* text : {"2019-07-14T18:05:09", "2019/07/14 18:05:09.250", "2019:07:14 18:05:09+02:00"}) {
    EXPECT_EQ(FactsOf(PhotoNotes{.exif = {Ascii(support::kTakenTag, text)}}).date,
              (os::LocalTime{2019, 7, 14, 18, 5, 9, 0}))
        << text;
  }
  EXPECT_EQ(FactsOf(PhotoNotes{.exif = {Ascii(support::kTakenTag, "1601:01:01 00:00:00")}}).date->year, 1601);
  EXPECT_EQ(FactsOf(PhotoNotes{.exif = {{support::kTakenTag, "2019:07:14 23:59:59"}}}).date->second, 59)
      << "without its closing zero";
}

TEST(PictureFacts, ACameraIsToldWithItsMakerOnce) {
  const auto camera = [](const std::string& make, const std::string& model) {
    return FactsOf(PhotoNotes{.first = {Ascii(support::kMakeTag, make), Ascii(support::kModelTag, model)}})
        .camera;
  };
  EXPECT_EQ(camera("Acme", "Acme EOS 5"), "Acme EOS 5");
  EXPECT_EQ(camera("ACME CORPORATION", "Acme D750"), "Acme D750");
  EXPECT_EQ(camera("ACME ELECTRONICS", "ACME-H815"), "ACME-H815");
  EXPECT_EQ(camera("GREAT ACME COMPANY", "ACME DX6490 ZOOM"), "ACME DX6490 ZOOM");
  EXPECT_EQ(camera("Acme", "ILCE-7M3"), "Acme ILCE-7M3");
  EXPECT_EQ(camera("Acme", "Acmera 5"), "Acme Acmera 5");
  EXPECT_EQ(camera("Acme", "5 Acme"), "Acme 5 Acme");
  EXPECT_EQ(camera("  Acme  ", "X100   "), "Acme X100");
  EXPECT_EQ(camera("", "X100"), "X100");
  EXPECT_EQ(camera("Acme", ""), "Acme");
  EXPECT_EQ(camera("   ", " \t "), "");
  EXPECT_EQ(camera("---", "***"), "--- ***");
}

TEST(PictureFacts, ATitleCountsBeforeADescriptionAndXmpBeforeExif) {
  const PhotoNote description = Ascii(support::kDescriptionTag, "Exif description");
  const PhotoNote title = XpTitle(Utf16Bytes("Exif title"));
  const std::string xmpTitle = XmpProperty("dc:title", "XMP title");
  const std::string xmpDescription = XmpProperty("dc:description", "XMP description");
  const auto titleOf = [](const std::vector<PhotoNote>& notes, const std::string& properties) {
    return FactsOf(NotesSegment({.first = notes}) + XmpSegment(XmpPacket(properties))).title;
  };
  EXPECT_EQ(titleOf({description, title}, xmpDescription + xmpTitle), "XMP title");
  EXPECT_EQ(titleOf({description, title}, xmpDescription), "Exif title");
  EXPECT_EQ(titleOf({description}, xmpDescription), "Exif description");
  EXPECT_EQ(titleOf({}, xmpDescription), "XMP description");
  EXPECT_EQ(titleOf({}, ""), "");
}

TEST(PictureFacts, BlankTextsAreNone) {
  const std::string xmp =
      XmpSegment(XmpPacket(XmpProperty("dc:title", " \n\t ") + XmpProperty("dc:description", "Lake")));
  EXPECT_EQ(FactsOf(NotesSegment({.first = {Ascii(support::kDescriptionTag, "                "),
                                            XpTitle(Utf16Bytes("  "))}}) +
                    xmp)
                .title,
            "Lake");
}

TEST(PictureFacts, WhatACameraWritesUnderEveryPictureIsNoTitle) {
  const auto title = [](const std::string& make, const std::string& description) {
    return FactsOf(PhotoNotes{.first = {Ascii(support::kDescriptionTag, description),
                                        Ascii(support::kMakeTag, make)}})
        .title;
  };
  EXPECT_EQ(title("ACME IMAGING CORP.", "ACME DIGITAL CAMERA         "), "");
  EXPECT_EQ(title("Acme", "ACME DSC"), "");
  EXPECT_EQ(title("Acme", "Acme works at night"), "Acme works at night");
  EXPECT_EQ(title("Acme", "LAKE"), "LAKE");
  EXPECT_EQ(title("", "ACME DSC"), "ACME DSC");
  EXPECT_EQ(FactsOf(NotesSegment({.first = {Ascii(support::kMakeTag, "ACME")}}) +
                    XmpSegment(XmpPacket(XmpProperty("dc:title", "ACME DSC") +
                                         XmpProperty("dc:description", "Lake"))))
                .title,
            "Lake")
      << "programs copy it";
}

TEST(PictureFacts, TitlesOfTwoBytesAreReadInBothByteOrders) {
  const std::string text = "L\xC3\xA4ke \xF0\x9F\x8C\x8A \xE6\xB9\x96";
  const auto title = [](const std::string& bytes) {
    return FactsOf(PhotoNotes{.first = {XpTitle(bytes)}}).title;
  };
  EXPECT_EQ(title(Utf16Bytes(text) + std::string(2, '\0')), text);
  EXPECT_EQ(title(Utf16Bytes(text)), text) << "without its closing zero";
  EXPECT_EQ(title(Utf16Bytes(text, true) + std::string(2, '\0')), text);
  EXPECT_EQ(title("\xFF\xFE" + Utf16Bytes(text)), text);
  EXPECT_EQ(title("\xFE\xFF" + Utf16Bytes(text, true)), text);
  EXPECT_EQ(title(Utf16Bytes("\xE6\xB9\x96\xE5\xB2\xB8")), "\xE6\xB9\x96\xE5\xB2\xB8") << "no Latin letter";
  EXPECT_EQ(title(Utf16Bytes("Lake") + std::string(2, '\0') + Utf16Bytes("more")), "Lake");
  EXPECT_EQ(title(Utf16Bytes("Lake") + "x"), "Lake") << "half a character";
}

TEST(PictureFacts, WhatStandsBehindATitleDoesNotTellItsByteOrder) {
  const std::string bytes = Utf16Bytes("Lake", true) + std::string(2, '\0') + Utf16Bytes("something else");
  EXPECT_EQ(FactsOf(PhotoNotes{.first = {XpTitle(bytes)}}).title, "Lake");
}

TEST(PictureFacts, OfSeveralLanguagesTheDefaultOneCountsElseTheFirst) {
  const auto title = [](const std::string& items) {
    return FactsOf(XmpSegment(XmpPacket("<dc:title><rdf:Alt>" + items + "</rdf:Alt></dc:title>"))).title;
  };
  const std::string german = "<rdf:li xml:lang=\"de\">See</rdf:li>";
  const std::string french = "<rdf:li xml:lang='fr'>Lac</rdf:li>";
  const std::string standard = "<rdf:li xml:lang=\"x-default\">Lake</rdf:li>";
  EXPECT_EQ(title(german + french + standard), "Lake");
  EXPECT_EQ(title(german + french), "See");
  EXPECT_EQ(title("<rdf:li> </rdf:li>" + french), "Lac");
  EXPECT_EQ(title(""), "");
}

TEST(PictureFacts, TitlesOfXmpMayBeWrittenInEveryWay) {
  const auto title = [](const std::string& packet) { return FactsOf(XmpSegment(packet)).title; };
  EXPECT_EQ(title(XmpPacket("<dc:title>Lake</dc:title>")), "Lake");
  EXPECT_EQ(title(XmpPacket("<dc:title><![CDATA[a < b & c]]></dc:title>")), "a < b & c");
  EXPECT_EQ(title(XmpPacket("<dc:title>a &lt; b &amp; &#228;&#xE4; &nothing;</dc:title>")),
            "a < b & \xC3\xA4\xC3\xA4 &nothing;");
  EXPECT_EQ(title(XmpPacket("<dc:title>&#x0001F30A; &#xD800; &#0; &#x110000; &#x00000000041;</dc:title>")),
            "\xF0\x9F\x8C\x8A &#xD800; &#0; &#x110000; &#x00000000041;");
  EXPECT_EQ(title(XmpPacket("<dc:title>La<!-- <dc:title> -->ke</dc:title>")), "Lake");
  const std::string dublin = " xmlns:d='http://purl.org/dc/elements/1.1/'";
  EXPECT_EQ(title("<r:RDF><r:Description" + dublin + " d:title='a &gt; b'/></r:RDF>"), "a > b");
  EXPECT_EQ(title("<r:RDF" + dublin + "><r:Description d:title=\"a > b\"/></r:RDF>"), "a > b");
  EXPECT_EQ(title("<r:RDF><r:Description d:title='Lake'/></r:RDF>"), "") << "a name of something else";
  EXPECT_EQ(title("<r:RDF><r:Description" + dublin + "><m:from><r:Description d:title='Lake'/></m:from>" +
                  "</r:Description></r:RDF>"),
            "")
      << "of a picture that this one was made of";
  const std::string whole = XmpPacket(XmpProperty("dc:title", "L\xC3\xA4ke"));
  EXPECT_EQ(title("\xFF\xFE" + Utf16Bytes(whole)), "L\xC3\xA4ke");
  EXPECT_EQ(title(Utf16Bytes(whole, true)), "L\xC3\xA4ke");
}

TEST(PictureFacts, DescriptionsKeepTheirBytesUnlessTheySayWhatTheyAre) {
  const auto title = [](const std::string& bytes) {
    return FactsOf(PhotoNotes{.first = {{support::kDescriptionTag, bytes}}}).title;
  };
  EXPECT_EQ(title("L\xC3\xA4ke"), "L\xC3\xA4ke");
  EXPECT_EQ(title("L\xE4ke"), "L\xE4ke") << "in a code page";
  EXPECT_EQ(title("\xEF\xBB\xBFL\xC3\xA4ke"), "L\xC3\xA4ke");
  EXPECT_EQ(title("\xFF\xFE" + Utf16Bytes("L\xC3\xA4ke")), "L\xC3\xA4ke");
  EXPECT_EQ(title("\xFE\xFF" + Utf16Bytes("L\xC3\xA4ke", true)), "L\xC3\xA4ke");
  EXPECT_EQ(title(std::string("Lake\0more", 9)), "Lake");
  EXPECT_EQ(title("Sea"), "Sea") << "in the entry itself";
}

TEST(PictureFacts, ATextMayBeOfAnyTypeOfBytesAndOfNoOther) {
  for (int type = 0; type <= 130; ++type) {
    const bool isText = type == 1 || type == 2 || type == 7 || type == 129;
    const PhotoNote note{support::kDescriptionTag, "Lake at dawn", static_cast<std::uint16_t>(type)};
    EXPECT_EQ(FactsOf(PhotoNotes{.first = {note}}).title, isText ? "Lake at dawn" : "") << type;
  }
}

TEST(PictureFacts, TheLastEntryOfADirectoryCounts) {
  std::vector<PhotoNote> notes;
  for (std::uint16_t tag = 1; tag <= 40; ++tag) notes.push_back({tag, "nothing of use", 2});
  std::string block = support::TiffBlockBytes({.first = notes});
  EXPECT_EQ(FactsOf(PhotoNotes{.first = notes}).title, "");
  // Without orientation and pointer the title is the very last one.
  std::string tiff("II\x2A\0\x08\0\0\0\2\0\x0F\1\2\0\4\0\0\0Acme\x0E\1\2\0\4\0\0\0Lake\0\0\0\0", 38);
  const auto facts = FactsOf(support::JpegSegmentBytes(0xE1, std::string("Exif\0\0", 6) + tiff));
  EXPECT_EQ(facts.title, "Lake");
  tiff[8] = 1;  // the directory ends in front of it
  EXPECT_EQ(FactsOf(support::JpegSegmentBytes(0xE1, std::string("Exif\0\0", 6) + tiff)).title, "");
}

TEST(PictureFacts, ABlockThatIsNoTiffSaysNothing) {
  const PhotoNotes notes{.first = {Ascii(support::kDescriptionTag, "Lake")}};
  const std::string whole = NotesSegment(notes);
  EXPECT_EQ(FactsOf(whole).title, "Lake");
  const std::size_t tiff = whole.find("II");
  for (const auto& [at, value] :
       {std::pair(0, 'M'), std::pair(1, 'M'), std::pair(2, '\x2B'), std::pair(3, '\x01')}) {
    std::string broken = whole;
    broken[tiff + static_cast<std::size_t>(at)] = value;
    EXPECT_EQ(FactsOf(broken).title, "") << at;
  }
}

TEST(PictureFacts, NotesOfTheThumbnailAndOfTheWrongDirectoryAreNotThePictures) {
  EXPECT_EQ(FactsOf(PhotoNotes{.first = {Ascii(support::kTakenTag, "2019:07:14 18:05:09")},
                               .exif = {Ascii(support::kDescriptionTag, "Lake")}}),
            PictureFacts());
  // First directory: no entry, the second one at 14: the thumbnail's.
  const std::string tiff("II\x2A\0\x08\0\0\0\0\0\x0E\0\0\0\1\0\x0E\1\2\0\4\0\0\0Lake\0\0\0\0", 32);
  EXPECT_EQ(FactsOf(support::JpegSegmentBytes(0xE1, std::string("Exif\0\0", 6) + tiff)).title, "");
}

TEST(PictureFacts, ALaterBlockSaysWhatTheFirstOneDoesNot) {
  const std::string first = NotesSegment({.first = {Ascii(support::kMakeTag, "Acme")}});
  const std::string second =
      NotesSegment({.first = {Ascii(support::kMakeTag, "Other"), Ascii(support::kDescriptionTag, "Lake")}});
  const PictureFacts facts = FactsOf(first + second);
  EXPECT_EQ(facts.camera, "Acme");
  EXPECT_EQ(facts.title, "Lake");
}

// A block whose parts stand in an order of the test's choice, as makers have theirs.
class LaidOutBlock {
 public:
  explicit LaidOutBlock(bool bigEndian) : bigEndian_(bigEndian) {
    bytes_ = (bigEndian ? "MM" : "II") + number(42, 2) + number(0, 4);
  }

  std::uint32_t put(const std::string& part) {
    const std::size_t at = bytes_.size();
    bytes_ += part;
    return static_cast<std::uint32_t>(at);
  }

  std::uint32_t putDirectory(const std::vector<std::string>& entries) {
    std::string all = number(static_cast<std::uint32_t>(entries.size()), 2);
    for (const std::string& entry : entries) all += entry;
    return put(all + number(0, 4));
  }

  std::string entry(std::uint16_t tag, std::uint16_t type, std::size_t count, std::uint32_t value) const {
    return number(tag, 2) + number(type, 2) + number(static_cast<std::uint32_t>(count), 4) + number(value, 4);
  }

  std::string withFirst(std::uint32_t directory) const {
    return bytes_.substr(0, 4) + number(directory, 4) + bytes_.substr(8);
  }

 private:
  std::string number(std::uint32_t value, int width) const {
    return support::NumberBytes(value, width, bigEndian_);
  }

  bool bigEndian_;
  std::string bytes_;
};

TEST(PictureFacts, AreFoundInEveryOrderInWhichMakersLayThem) {
  const std::string make("Acme Camera\0", 12);
  const std::string model("X100     \0", 10);  // padded
  const std::string taken("2019:07:14 18:05:09\0", 20);
  for (int layout = 0; layout < 16; ++layout) {
    const bool valuesFirst = (layout & 1) != 0;
    const bool exifFirst = (layout & 2) != 0;
    const bool oddOffsets = (layout & 4) != 0;
    LaidOutBlock block((layout & 8) != 0);
    if (oddOffsets) block.put("x");
    const auto far = [&](const std::string& value) { return block.put(value); };
    std::uint32_t exif = 0;
    const auto putExif = [&] {
      const std::uint32_t maker = far(std::string(5000, 'm'));  // notes of the maker's own
      const std::uint32_t at = far(taken);
      exif = block.putDirectory({block.entry(0x829A, 5, 1, maker), block.entry(support::kTakenTag, 2, 20, at),
                                 block.entry(0x927C, 7, 5000, maker)});
    };
    if (exifFirst) putExif();
    std::uint32_t makeAt = valuesFirst ? far(make) : 0;
    std::uint32_t modelAt = valuesFirst ? far(model) : 0;
    if (!exifFirst) putExif();
    if (!valuesFirst) {
      modelAt = far(model);
      makeAt = far(make);
    }
    const std::uint32_t first = block.putDirectory(
        {block.entry(support::kMakeTag, 2, 12, makeAt), block.entry(support::kModelTag, 2, 10, modelAt),
         block.entry(0x0112, 3, 1, 0), block.entry(0x8769, 4, 1, exif)});
    const std::string jfif = support::JpegSegmentBytes(0xE0, std::string("JFIF\0\1\1\0\0\1\0\1\0\0", 14));
    const std::string segment =
        support::JpegSegmentBytes(0xE1, std::string("Exif\0\0", 6) + block.withFirst(first));
    const PictureFacts facts = FactsOf(oddOffsets ? jfif + segment : segment);
    EXPECT_EQ(facts.camera, "Acme Camera X100") << layout;
    EXPECT_EQ(facts.date, (os::LocalTime{2019, 7, 14, 18, 5, 9, 0})) << layout;
  }
}

TEST(PictureFacts, NotesBehindTheBeginningOfThePixelsAreNotLookedAt) {
  const std::string head =
      JpegHead("", kSize) + NotesSegment({.first = {Ascii(support::kDescriptionTag, "Lake")}});
  EXPECT_EQ(ReadPictureFacts(head), PictureFacts());
  const std::string scan("\0\x08\1\1\0\0\x3F\0", 8);  // its head, as long as it says
  EXPECT_EQ(ReadPictureFacts(JpegHead("", kSize) + scan +
                             NotesSegment({.first = {Ascii(support::kDescriptionTag, "Lake")}})),
            PictureFacts());
}

TEST(PictureFacts, ATextAsLongAsASegmentCanHoldIsRead) {
  const std::size_t overhead =
      NotesSegment({.first = {{support::kDescriptionTag, std::string(5, 'x')}}}).size() - 5;
  const std::string longest(65537 - overhead, 'x');  // with the marker a segment has 65,537 bytes
  EXPECT_EQ(FactsOf(PhotoNotes{.first = {{support::kDescriptionTag, longest}}}).title, longest);
  const std::string packet = XmpPacket(XmpProperty("dc:title", "@"));
  std::string title(65533 - 29 - packet.size() + 1, 'y');
  EXPECT_EQ(FactsOf(XmpSegment(XmpPacket(XmpProperty("dc:title", title)))).title, title);
}

TEST(PictureFacts, ATextThatATiffFileHasBeyondThatIsNone) {
  for (const std::size_t length : {std::size_t{65533}, std::size_t{65534}}) {
    const std::string file =
        support::TiffBlockBytes({.first = {{support::kDescriptionTag, std::string(length, 'x')}}});
    EXPECT_EQ(ReadPictureFacts(file).title.size(), length == 65533 ? length : 0);
    EXPECT_EQ(ReadPictureFacts(file), support::PlainPictureFacts(file));
  }
}

TEST(PictureFacts, CutShortAnywhereEachIsReadWholeOrNotAtAll) {
  const std::string whole = JpegHead(
      NotesSegment({.first = {Ascii(support::kDescriptionTag, "Lake at dawn"),
                              Ascii(support::kMakeTag, "Acme"), Ascii(support::kModelTag, "Model X100")},
                    .exif = {Ascii(support::kTakenTag, "2019:07:14 18:05:09")},
                    .bigEndian = true}) +
          XmpSegment(XmpPacket(XmpProperty("dc:title", "Lake Geneva"))),
      kSize);
  const auto isOneOf = [](const std::string& text, const std::vector<std::string>& allowed) {
    return std::ranges::find(allowed, text) != allowed.end();
  };
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    const std::string head(whole, 0, length);  // a copy of its own, so that a read beyond the end is caught
    const PictureFacts facts = ReadPictureFacts(head);
    ASSERT_TRUE(isOneOf(facts.title, {"", "Lake at dawn", "Lake Geneva"})) << length;
    ASSERT_TRUE(isOneOf(facts.camera, {"", "Acme", "Model X100", "Acme Model X100"})) << length;
    ASSERT_TRUE(!facts.date || *facts.date == (os::LocalTime{2019, 7, 14, 18, 5, 9, 0})) << length;
    ASSERT_EQ(facts, support::PlainPictureFacts(head)) << length;
  }
  EXPECT_EQ(ReadPictureFacts(whole).title, "Lake Geneva");
}

TEST(PictureFacts, AnyByteMayBeWrong) {
  const std::string whole =
      JpegHead(NotesSegment({.first = {Ascii(support::kDescriptionTag, "Lake at dawn"),
                                       Ascii(support::kMakeTag, "Acme"), XpTitle(Utf16Bytes("Title"))},
                             .exif = {Ascii(support::kTakenTag, "2019:07:14 18:05:09")}}) +
                   XmpSegment("<r:RDF><r:Description xmlns:d='http://purl.org/dc/elements/1.1/' d:title='A'>"
                              "<d:title><a><li>B</li></a></d:title></r:Description></r:RDF>"),
               kSize);
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const int value : {0, 1, 2, 7, 8, 0x22, 0x3C, 0x3E, 0x2F, 0x7F, 0xFF}) {
      std::string broken = whole;
      broken[at] = static_cast<char>(value);
      ASSERT_EQ(ReadPictureFacts(broken), support::PlainPictureFacts(broken)) << at << ' ' << value;
    }
  }
}

}  // namespace
}  // namespace pictures
