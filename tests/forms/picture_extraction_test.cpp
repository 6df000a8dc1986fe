// Picture records: metafiles and enhanced metafiles written into the .frx
// byte for byte (a bitmap's record, in a .frx and in a report's .dsx, is in
// the golden files), offsets of records that follow each other, the size
// limit, refused kinds, and tblPict emptied only when a picture went
// through.
#include "forms/picture_extraction.h"

#include <gtest/gtest.h>

#include "platform/support_db.h"
#include "tests/forms/writer_harness.h"

namespace morvane {
namespace {

using test::FormText;
using test::HexProperty;
using test::PictureBytes;

uint32_t LongAt(const std::string& data, size_t at) {
  uint32_t v = 0;
  for (int i = 3; i >= 0; --i) v = (v << 8) | static_cast<unsigned char>(data[at + i]);
  return v;
}

std::string Bytes(std::initializer_list<int> bytes) {
  std::string out;
  for (int b : bytes) out += static_cast<char>(b);
  return out;
}

const std::string kMark = Bytes({0x6C, 0x74, 0x00, 0x00});
const std::string kPlaceable =
    Bytes({0xD7, 0xCD, 0xC6, 0x9A, 0x00, 0x00, 0xF8, 0xFF, 0xF8, 0xFF, 0x78,
           0x08, 0xE8, 0x07, 0x3F, 0x02, 0x00, 0x00, 0x00, 0x00, 0xBE, 0x5A});

class PictureExtraction : public test::WriterHarness {
 protected:
  // A form "frmPics" whose images carry the given pictures, named img0,
  // img1, ... in order; the form itself carries `formPicture` when given.
  void Pictures(const std::vector<std::string>& pictures, const std::string& formPicture = "") {
    std::string controls;
    for (size_t i = 0; i < pictures.size(); ++i)
      controls += "Begin Image\nName =\"img" + std::to_string(i) + "\"\n" +
                  HexProperty("PictureData", pictures[i]) + "End\n";
    AddForm("frmPics",
            FormText(controls, formPicture.empty() ? "" : HexProperty("PictureData", formPicture)));
    w_.Text().OwnerFormName = "frmPics";
  }
  std::string Extract(int image) {
    return ExtractPicture(w_, "frmPics", "img" + std::to_string(image), false);
  }
  std::string Frx() { return s_.Form().Binary; }
};

TEST_F(PictureExtraction, RecordsFollowEachOther) {
  // The bytes of a bitmap's record are in the golden forms' .frx.
  const std::string data = PictureBytes(40, 100, 60);
  Pictures({data, data});
  EXPECT_EQ(Extract(0), "0000");
  EXPECT_EQ(Frx().size(), 126u);
  EXPECT_EQ(Extract(1), "007E");
  EXPECT_EQ(Frx().size(), 252u);
  EXPECT_EQ(Frx().substr(126 + 26), data);
  EXPECT_EQ(w_.Text().PictureReference, "007E");
}

TEST_F(PictureExtraction, MetafileDropsItsHeadAndGetsAPlaceableHeader) {
  const std::string data = PictureBytes(3, 1000);
  Pictures({data});
  EXPECT_EQ(Extract(0), "0000");
  const std::string frx = Frx();
  ASSERT_EQ(frx.size(), 1036u);
  EXPECT_EQ(LongAt(frx, 0), 1018u);
  EXPECT_EQ(frx.substr(4, 4), kMark);
  EXPECT_EQ(LongAt(frx, 8), 1010u);
  EXPECT_EQ(frx.substr(12, 22), kPlaceable);
  EXPECT_EQ(frx.substr(34, 976), data.substr(24));
  EXPECT_EQ(frx.substr(1010), std::string(26, '\0'));
}

TEST_F(PictureExtraction, EnhancedMetafileTakesHalfItsBytesFrom144) {
  const std::string data = PictureBytes(14, 2000);
  Pictures({data});
  EXPECT_EQ(Extract(0), "0000");
  const std::string frx = Frx();
  ASSERT_EQ(frx.size(), 916u);
  EXPECT_EQ(LongAt(frx, 0), 898u);
  EXPECT_EQ(LongAt(frx, 8), 890u);
  EXPECT_EQ(frx.substr(12, 22), kPlaceable);
  EXPECT_EQ(frx.substr(34, 856), data.substr(144, 856));
  EXPECT_EQ(frx.substr(890), std::string(26, '\0'));
}

TEST_F(PictureExtraction, SizeLimitAndKinds) {
  struct Row {
    unsigned char first;
    size_t size;
    bool written;
  };
  const Row rows[] = {
      {40, 64000, true},  {40, 64001, false},  {3, 64000, true},   {3, 64001, false},
      {14, 128000, true}, {14, 128002, false}, {0x42, 100, false}, {0, 100, false},
      {40, 20, false},    {3, 20, false},      {14, 280, false},
  };
  std::vector<std::string> pictures;
  for (const Row& r : rows) pictures.push_back(PictureBytes(r.first, r.size, 0));
  Pictures(pictures);
  for (size_t i = 0; i < std::size(rows); ++i) {
    const auto before = Frx().size();
    const std::string offset = Extract(static_cast<int>(i));
    EXPECT_EQ(!offset.empty(), rows[i].written)
        << "first byte " << int(rows[i].first) << ", " << rows[i].size << " bytes";
    if (!rows[i].written) {
      EXPECT_EQ(Frx().size(), before) << "row " << i;
    }
  }
}

TEST_F(PictureExtraction, FormPictureAndMissingHolders) {
  Pictures({}, PictureBytes(40, 100, 60));
  EXPECT_EQ(ExtractPicture(w_, "frmPics", "", false), "0000");
  EXPECT_EQ(Frx().size(), 126u);
  // No such control, no such form: nothing to carry.
  EXPECT_EQ(ExtractPicture(w_, "frmPics", "imgNone", false), "");
  EXPECT_EQ(ExtractPicture(w_, "frmNone", "", false), "");
  // A session whose options were never unpacked writes nothing.
  s_.OptionWordLength = 0;
  EXPECT_EQ(ExtractPicture(w_, "frmPics", "", false), "");
  EXPECT_EQ(Frx().size(), 126u);
}

TEST_F(PictureExtraction, TblPictHoldsThePictureOnlyOnItsWay) {
  std::string err;
  auto db = SupportDatabase::Open(dir_ / "morvane.db", MORVANE_DATA_DIR, &err);
  ASSERT_NE(db, nullptr) << err;
  s_.SupportDb = db.get();
  Pictures({PictureBytes(40, 100, 60), PictureBytes(40, 64001, 0), PictureBytes(3, 100)});
  EXPECT_EQ(Extract(0), "0000");
  EXPECT_EQ(db->CountRows("tblPict"), 0);
  // A refused picture stays staged until the next one clears it.
  EXPECT_EQ(Extract(1), "");
  EXPECT_EQ(db->CountRows("tblPict"), 1);
  EXPECT_EQ(Extract(2), "007E");
  EXPECT_EQ(db->CountRows("tblPict"), 0);
  EXPECT_EQ(Frx().size(), 126u + 12 + 22 + 76 + 26);
}

}  // namespace
}  // namespace morvane
