#include "widgets/notes/editor/note_editor_win.h"

#include <algorithm>
#include <utility>

#include "widgets/notes/rtf/rtf_writer.h"
#include "win/system/code_page.h"

namespace varnel {
namespace {

constexpr int kHundredthsPerInch = 2540;  // of a millimetre
constexpr int kLeastPage = 1000;
constexpr int kTwipsPerHalfPoint = 10;

class SystemPage final : public SystemEncoding {
 public:
  std::wstring Read(std::string_view bytes) const override { return WideFromCodePage(bytes); }
  std::string Write(std::wstring_view text) const override { return CodePageFromWide(text); }
};

class SystemPairs final : public DoubleByteReader {
 public:
  std::wstring Character(int page, std::string_view pair) const override {
    return CharacterOfPage(page, pair);
  }
};

std::wstring_view FaultNotice(RtfFault fault) {
  switch (fault) {
    case RtfFault::kNone:
    case RtfFault::kNotRtf:
      return {};
    case RtfFault::kTooBig:
    case RtfFault::kTooDeep:
    case RtfFault::kTooMuch:
      return L"The note's formats are too large or too deep; it is shown as plain text";
    case RtfFault::kUnbalanced:
    case RtfFault::kBinaryCut:
      break;
  }
  return L"The note's file is damaged; it is shown as plain text";
}

}  // namespace

RtfOrigin SystemRtfOrigin() {
  static const SystemPairs pairs;
  return {SystemCodePage(), &pairs};
}

const SystemEncoding& SystemTextEncoding() {
  static const SystemPage page;
  return page;
}

NoteEditor::NoteEditor(const FileStore& files, Events events)
    : files_(files), events_(std::move(events)), edit_(ControlEvents()) {}

NoteEditor::Events NoteEditor::Silent() {
  return {.on_edit = [] {},
          .on_select = [] {},
          .on_notice = [](const std::wstring&) {},
          .on_documents = [](const auto&) {},
          .on_address = [](const std::wstring&) {},
          .on_zoom = [](int) {}};
}

RichEdit::Events NoteEditor::ControlEvents() {
  return {.on_change = [this] { OnChange(); },
          .on_select =
              [this](RichRange) {
                if (!loading()) events_.on_select();
              },
          .on_link = [this](RichRange range, UINT message) { OnLink(range, message); },
          .on_paste = [this] { Paste(); },
          .on_copy = [this](bool) { return OnCopy(); },
          .on_files = [this](auto paths, int position) { OnFiles(paths, position); },
          .may_drop = [](const std::string&) { return false; },
          .on_zoom = [this](int notches) { events_.on_zoom(notches); }};
}

bool NoteEditor::Load(HWND parent, int id, const CharacterFormat& base) {
  base_ = base;
  if (!edit_.Create(parent, id, WS_VISIBLE | WS_VSCROLL | WS_TABSTOP, base)) return false;
  edit_.MarkAddresses(true);
  return true;
}

void NoteEditor::SetBase(const CharacterFormat& base) {
  base_ = base;
  const Loading loading(*this);
  edit_.SetDefaultFormat(base);
  const bool empty = edit_.Length() == 0;
  if (empty || !rich()) {
    edit_.SetFormat(base, RichEdit::Scope::kAll);
  } else {
    edit_.SetFormat({.colour = base.colour}, RichEdit::Scope::kAll);
  }
  edit_.Select({0, 0});
}

// --- what the user does

void NoteEditor::OnChange() {
  if (loading()) return;
  text_is_old_ = true;
  if (edit_.Length() <= kSmallText) TakeText();
  events_.on_edit();
}

void NoteEditor::TakeText() {
  text_.Assign(edit_.Units({0, edit_.Length()}));
  text_is_old_ = false;
}

void NoteEditor::OnLink(RichRange range, UINT message) {
  if (message == WM_LBUTTONUP && ::GetKeyState(VK_CONTROL) < 0) {
    events_.on_address(edit_.Units(range));
  }
}

// --- the note's file

void NoteEditor::StartEmpty(NoteType type) {
  type_ = type;
  form_ = {};
  ShowText({});
}

void NoteEditor::ShowText(const std::wstring& text) {
  pictures_.Clear();
  hides_ = false;
  const auto put = [&](const RichEdit::GoOn&) {
    edit_.PutText({});
    edit_.SetDefaultFormat(base_);
    edit_.Select({0, 0});
    edit_.SetParagraph({.alignment = RichAlignment::kLeft,
                        .start_indent = 0,
                        .offset = 0,
                        .right_indent = 0,
                        .space_before = 0,
                        .space_after = 0,
                        .line_spacing = LineSpacing{},
                        .numbering = RichNumbering::kNone});
    edit_.SetFormat(base_, RichEdit::Scope::kAll);
    if (!text.empty()) {
      const RichEdit::Unwrapped unwrapped(edit_);
      edit_.PutText(text);
      edit_.SetFormat(base_, RichEdit::Scope::kAll);
      edit_.Select({0, 0});
    }
  };
  PutIn(put, nullptr);
}

NoteContent::Shown NoteEditor::Show(NoteType type, const std::string& bytes) {
  type_ = type;
  form_ = {};
  if (type == NoteType::kRtf) {
    const SafeRtfResult result = TakePicturesOut(bytes, SystemRtfOrigin());
    if (result.fault == RtfFault::kNone) {
      ShowSafe(result.safe, nullptr);
      return {type, {}};
    }
    // Its very bytes are kept where it is no more than a text.
    if (result.fault != RtfFault::kNotRtf) type_ = NoteType::kTxt;
    const TextFile file = ReadText(bytes, SystemTextEncoding());
    form_ = file.form;
    ShowText(file.text);
    return {type_, std::wstring(FaultNotice(result.fault))};
  }
  const TextFile file = ReadText(bytes, SystemTextEncoding());
  form_ = file.form;
  ShowText(file.text);
  return {type, file.exact ? L"" : L"Some characters of this file cannot be kept when it is saved"};
}

// The control's text without what stands for pictures.
std::wstring NoteEditor::PlainText() const {
  std::wstring text = edit_.Units({0, edit_.Length()});
  const std::vector<RichPicture> pictures = edit_.Pictures();
  for (auto picture = pictures.rbegin(); picture != pictures.rend(); ++picture) {
    const auto position = static_cast<std::size_t>(picture->position);
    if (position < text.size()) text.erase(position, 1);
  }
  return text;
}

std::optional<std::string> NoteEditor::Bytes(NoteType type) {
  if (type == NoteType::kTxt) {
    return WriteText(PlainText(), rich() ? TextForm{} : form_, SystemTextEncoding());
  }
  const std::vector<RichPicture> pictures = edit_.Pictures();
  const auto whole = Whole(edit_.Rtf(), pictures);
  if (!whole) return std::nullopt;
  const std::wstring text = edit_.Units({0, edit_.Length()});
  return MendRtf(*whole, {text, {}, RichEdit::WritesRaisedInTwips(), RichEdit::SwapsIndents()},
                 SystemRtfOrigin());
}

std::optional<std::string> NoteEditor::Whole(std::string rtf,
                                             std::span<const RichPicture> pictures) const {
  if (pictures.empty()) return rtf;
  const auto kept = pictures_.Of(pictures);
  return kept ? PutPicturesBack(rtf, *kept, SystemRtfOrigin()) : std::nullopt;
}

// --- formatted text on its way in

void NoteEditor::FinishRtf(const SafeRtf& safe, int begin) {
  SetLostFormats(safe.document, begin);
  PlacePictures(safe, begin);
}

void NoteEditor::SetLostFormats(const RtfDocument& document, int begin) {
  const auto place = [begin](std::size_t at) { return begin + static_cast<int>(at); };
  for (std::size_t i = 0; i < document.paragraphs.size(); ++i) {
    const std::uint32_t format = document.paragraphs[i].format;
    std::size_t last = i;
    while (last + 1 < document.paragraphs.size() &&
           document.paragraphs[last + 1].format == format) {
      ++last;
    }
    const ParagraphFormat& wanted = document.paragraph_formats[format];
    const bool spaced = wanted.line_rule != LineRule::kSingle;
    const bool justified = wanted.alignment == Alignment::kJustified;
    if (spaced || justified) {
      edit_.Select({place(document.paragraphs[i].begin), place(document.paragraphs[last].begin)});
      RichParagraph lost;
      if (spaced) {
        lost.line_spacing = LineSpacing{static_cast<int>(wanted.line_rule), wanted.line_spacing};
      }
      if (justified) {
        edit_.UseAdvancedTypography();
        lost.alignment = RichAlignment::kJustified;
      }
      edit_.SetParagraph(lost);
    }
    i = last;
  }
  for (std::size_t i = 0; i < document.runs.size(); ++i) {
    const CharFormat& wanted = document.char_formats[document.runs[i].format];
    if (wanted.raised == 0) continue;
    const std::size_t end =
        i + 1 < document.runs.size() ? document.runs[i + 1].begin : document.text.size();
    edit_.Select({place(document.runs[i].begin), place(end)});
    edit_.SetFormat({.offset = wanted.raised * kTwipsPerHalfPoint});
  }
}

void NoteEditor::PlacePictures(const SafeRtf& safe, int begin) {
  int from = begin;
  for (const RtfPicture& picture : safe.document.pictures) {
    // It stands where the document has it; behind that only where the control reads the text
    // otherwise, and to look there costs a copy of all of it.
    const int expected = begin + static_cast<int>(picture.at);
    std::size_t found = edit_.Units({from, expected + 1}).find(safe.placeholder);
    if (found == std::wstring::npos) {
      found = edit_.Units({from, edit_.Length()}).find(safe.placeholder);
    }
    if (found == std::wstring::npos) return;
    const int at = from + static_cast<int>(found);
    const PictureLook look = LookOf(picture, PageWidth());
    edit_.Select({at, at + 1});
    edit_.InsertPicture(look.look, look.size, pictures_.Add(picture));
    from = at + 1;
  }
}

// In hundredths of a millimetre.
int NoteEditor::PageWidth() const {
  RECT client = {};
  ::GetClientRect(handle(), &client);
  const int dpi = static_cast<int>(::GetDpiForWindow(handle()));
  const int margins = dpi / 4;
  const int width = static_cast<int>(client.right) - margins;
  return std::max(::MulDiv(width, kHundredthsPerInch, std::max(dpi, 1)), kLeastPage);
}

bool NoteEditor::InsertRtf(std::string_view rtf) {
  SafeRtfResult result = TakePicturesOut(rtf, SystemRtfOrigin());
  if (result.fault != RtfFault::kNone) return false;
  SafeRtf& safe = result.safe;
  // The ground of another program's text would stand out from this one's paper.
  for (CharFormat& format : safe.document.char_formats) format.ground = kAutomaticColour;
  std::size_t bytes = pictures_.Bytes(edit_.Pictures());
  for (const RtfPicture& picture : safe.document.pictures) bytes += picture.bytes.size();
  if (bytes > kMostPicturesBytes) {
    events_.on_notice(L"The pictures of a note can be 7 MB together; nothing was put in");
    return true;
  }
  if (!rich()) return InsertText(safe.document.text);
  {
    const Loading loading(*this);
    hides_ = hides_ || HidesText(safe.document);
    const RichParagraph paragraph = edit_.SelectionParagraph();
    const int begin = edit_.Selection().from;
    const int former = edit_.Length() - (edit_.Selection().to - begin);
    edit_.PutRtf(WriteRtf(safe.document, safe.placeholder), RichEdit::Scope::kSelection);
    int end = begin + edit_.Length() - former;
    // The control ends what is put in by a line end of its own.
    if (end - begin > static_cast<int>(safe.document.text.size())) {
      edit_.Select({end - 1, end});
      edit_.Replace(L"");
      --end;
    }
    FinishRtf(safe, begin);
    if (safe.document.paragraphs.size() == 1) {
      // Words put into a paragraph leave it as it is.
      edit_.Select({begin, begin});
      edit_.SetParagraph(paragraph);
    }
    edit_.Select({end, end});
  }
  OnChange();
  events_.on_select();
  edit_.ScrollToCaret();
  return true;
}

bool NoteEditor::InsertText(const std::wstring& text) {
  std::wstring units = text;
  std::erase(units, L'\0');
  edit_.Replace(units);
  return true;
}

void NoteEditor::InsertFile(const std::string& bytes) {
  if (!InsertRtf(bytes)) InsertText(ReadText(bytes, SystemTextEncoding()).text);
}

bool NoteEditor::InsertPicture(std::optional<RtfPicture> picture) {
  if (!rich()) {
    events_.on_notice(L"A plain text note holds no pictures");
    return false;
  }
  if (!picture) {
    events_.on_notice(L"This is no picture that can be read");
    return false;
  }
  if (pictures_.Bytes(edit_.Pictures()) + picture->bytes.size() > kMostPicturesBytes) {
    events_.on_notice(L"The pictures of a note can be 7 MB together; this one is too large");
    return false;
  }
  const PictureLook look = LookOf(*picture, PageWidth());
  const int begin = edit_.Selection().from;
  if (!edit_.InsertPicture(look.look, look.size, pictures_.Add(std::move(*picture)))) return false;
  edit_.Select({begin + 1, begin + 1});
  OnChange();
  edit_.ScrollToCaret();
  return true;
}

}  // namespace varnel
