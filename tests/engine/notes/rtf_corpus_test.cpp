// Files of other makers' programs are read as their sources say, and go through a round of opening,
// editing and saving without loss.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/rtf_corpus.h"
#include "widgets/notes/rtf/rtf_edits.h"
#include "widgets/notes/rtf/rtf_mend.h"
#include "widgets/notes/rtf/rtf_pictures.h"
#include "widgets/notes/rtf/rtf_writer.h"

namespace varnel {
namespace {

// What a control that keeps no picture and no letter beyond ASCII would write of the document.
std::string AsSpoiled(RtfDocument document) {
  for (RtfPicture& picture : document.pictures) {
    picture.kind = PictureKind::kEmf;
    picture.bytes = "other";
  }
  for (wchar_t& unit : document.text) {
    if (unit > L'~' && unit != kObject) unit = L'?';
  }
  return WriteRtf(document);
}

TEST(RtfCorpus, FilesOfOtherMakersAreOpenedEditedAndSavedWithoutLoss) {
  const std::vector<test::RtfSample> samples = test::RtfSamples();
  EXPECT_GE(samples.size(), 60U);
  for (const test::RtfSample& sample : samples) {
    SCOPED_TRACE(sample.name);
    const SafeRtfResult opened = TakePicturesOut(test::LoadCorpus(sample.name));
    ASSERT_EQ(opened.fault, RtfFault::kNone);
    RtfDocument document = opened.safe.document;
    test::ExpectAsClaimed(document, sample);

    const auto whole = PutPicturesBack(AsSpoiled(document), document.pictures);
    ASSERT_TRUE(whole);
    const auto mended = MendRtf(*whole, {document.text, {}});
    ASSERT_TRUE(mended);
    test::ExpectSame(ReadRtf(*mended).document, document);

    // A word of one's own in front of the second letter leaves all else as it was.
    const std::size_t at = document.text.find(sample.paragraphs[0]) + 1;
    const TextEdit edit{at, 1, std::wstring(L"ne\u0142w") + document.text[at]};
    ApplyEdits(document, {&edit, 1});
    test::ExpectAsClaimed(ReadRtf(WriteRtf(document)).document, test::Edited(sample, L"ne\u0142w"));
  }
}

}  // namespace
}  // namespace varnel
