#include "widgets/notes/panels/paragraph_panel_win.h"

#include <algorithm>

#include "base/number_text.h"
#include "resources/control_ids.h"

namespace varnel {
namespace {

constexpr std::size_t kCustom = 5;  // the last named spacing
constexpr double kMostLines = 100;
constexpr double kMostSpace = 500;

constexpr const wchar_t* kLines[] = {L"1", L"1.15", L"1.25", L"1.5", L"2", L"2.5", L"3"};
constexpr const wchar_t* kSpaces[] = {L"0", L"1", L"2", L"3", L"4", L"6", L"8", L"12"};

// Names and glyphs by the options' numbers.
constexpr std::pair<const wchar_t*, wchar_t> kAlignments[] = {{L"Left", L'\xE244'},
                                                              {L"Right", L'\xE246'},
                                                              {L"Centred", L'\xE245'},
                                                              {L"Justified", L'\xE247'}};

}  // namespace

void ParagraphPanel::Load() {
  // Left, centred, right, justified, as everywhere.
  for (const int option : {0, 2, 1, 3}) {
    AddButton(optALIGN + option, kAlignments[option].first, kAlignments[option].second, {24, 0});
  }
  AddButton(btnINDDEC, L"Less indent", L'\xE24B', {24, 1, true});
  AddButton(btnINDINC, L"More indent", L'\xE24A', {24, 1});
  AddButton(chkBULLETS, L"Bullets", L'\xE248', {24, 0});
  AddCombo(cboRULES, CBS_DROPDOWNLIST, L"Line spacing", {148, 1, true});
  AddCombo(cboLINCUST, CBS_DROPDOWN, L"Lines", {56, 2});
  AddLabel(labPGRAPH, L"Before", {42, 4, true});
  AddCombo(cboPARBEFORE, CBS_DROPDOWN, L"Space before", {52, 3});
  AddLabel(labPGRAPH + 1, L"After", {34, 4});
  AddCombo(cboPARAFTER, CBS_DROPDOWN, L"Space after", {52, 3});
  const auto add = [this](int id, const std::wstring& text) {
    ::SendMessageW(Control(id), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
  };
  for (const NamedSpacing& spacing : kNamedSpacings) add(cboRULES, std::wstring(spacing.name));
  for (const wchar_t* lines : kLines) add(cboLINCUST, lines);
  for (const wchar_t* space : kSpaces) {
    add(cboPARBEFORE, space);
    add(cboPARAFTER, space);
  }
}

void ParagraphPanel::Refresh() {
  const RichParagraph now = host().Formats().paragraph();
  TextLineSpacingGet(now);
  if (now == shown_) return;
  shown_ = now;
  for (int i = 0; i < 4; ++i) host().PanelButtons().Repaint(optALIGN + i);
  host().PanelButtons().Repaint(chkBULLETS);
}

void ParagraphPanel::TextLineSpacingGet(const RichParagraph& now) {
  showing_ = true;
  const LineSpacing lines = now.line_spacing.value_or(LineSpacing{});
  const SpacingShown shown =
      ShownSpacing({static_cast<LineRule>(std::clamp(lines.rule, 0, 5)), lines.spacing,
                    now.space_before.value_or(0), now.space_after.value_or(0)});
  ::SendMessageW(Control(cboRULES), CB_SETCURSEL, now.line_spacing ? shown.named : WPARAM(-1), 0);
  const std::wstring_view named = kNamedSpacings[shown.named].lines;
  ShowInBox(cboLINCUST, shown.lines ? *shown.lines : std::wstring(named));
  ShowInBox(cboPARBEFORE, now.space_before ? shown.before : L"");
  ShowInBox(cboPARAFTER, now.space_after ? shown.after : L"");
  showing_ = false;
}

ButtonCheck ParagraphPanel::CheckOf(int id) const {
  if (id == chkBULLETS) {
    const auto bullets = [](RichNumbering kind) { return kind == RichNumbering::kBullets; };
    return Checked(shown_.numbering ? std::optional(bullets(*shown_.numbering)) : std::nullopt);
  }
  return Checked(shown_.alignment && id - optALIGN + 1 == static_cast<int>(*shown_.alignment));
}

bool ParagraphPanel::OnControl(int id, int code) {
  if (id >= cboRULES && id <= cboPARAFTER) {
    if (!showing_ && (code == CBN_SELCHANGE || code == CBN_EDITCHANGE)) {
      TextLineSpacingApply(id, code);
    }
    return true;
  }
  if (code != BN_CLICKED) return false;
  NoteFormats& formats = host().Formats();
  if (id >= optALIGN && id < optALIGN + 4) {
    formats.TextAlignmentSet(id - optALIGN);
  } else if (id == btnINDINC) {
    formats.TextIndentIncr();
  } else if (id == btnINDDEC) {
    formats.TextIndentDecr();
  } else if (id == chkBULLETS) {
    formats.TextBullets();
  } else {
    return false;
  }
  host().AfterCommand();
  return true;
}

void ParagraphPanel::TextLineSpacingApply(int id, int code) {
  const auto number = [&](int box, double most) {
    return std::clamp(LeadingNumber(BoxText(box, box == id ? code : 0)), 0.0, most);
  };
  const LRESULT chosen = ::SendMessageW(Control(cboRULES), CB_GETCURSEL, 0, 0);
  std::size_t named = chosen < 0 ? 0 : static_cast<std::size_t>(chosen);
  // Who types a number of lines wants that.
  if (id == cboLINCUST) named = kCustom;
  const NamedSpacing& spacing = kNamedSpacings[std::min(named, kCustom)];
  const double own = number(cboLINCUST, kMostLines);
  const double lines = named == kCustom ? (own > 0 ? own : 1) : spacing.line;
  showing_ = true;
  if (id == cboLINCUST) ::SendMessageW(Control(cboRULES), CB_SETCURSEL, kCustom, 0);
  if (named != kCustom) ShowInBox(cboLINCUST, std::wstring(spacing.lines));
  showing_ = false;
  host().Formats().TextLineSpacingSet(spacing.rule, lines, number(cboPARBEFORE, kMostSpace),
                                      number(cboPARAFTER, kMostSpace));
  host().Formatted();
}

}  // namespace varnel
