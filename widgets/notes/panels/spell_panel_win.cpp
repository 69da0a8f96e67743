#include "widgets/notes/panels/spell_panel_win.h"

#include <algorithm>

#include "resources/control_ids.h"
#include "win/graphics/system_rect.h"
#include "win/windows/hourglass.h"

namespace varnel {
namespace {

// Lengths at 96 dpi.
constexpr int kListWidth = 120;
constexpr int kLeastBesideList = 240;
constexpr int kBoxHeight = 22;
constexpr int kListRows = 2;  // of the panel, that a list asks for
constexpr wchar_t kDrawnByPanel[] = L" ";

// In pixels of the form that it stands on; empty while it is hidden.
Rect PlaceInForm(HWND control) {
  RECT place = {};
  if ((::GetWindowLongPtrW(control, GWL_STYLE) & WS_VISIBLE) == 0) return {};
  ::GetWindowRect(control, &place);
  ::MapWindowPoints(nullptr, ::GetParent(control), reinterpret_cast<POINT*>(&place), 2);
  return FromSystem(place);
}

struct Option {
  int id;
  const Setting& setting;
  const wchar_t* word;
  const wchar_t* face;
};
const Option kOptions[] = {
    {chkCUSTNOS, kSpellNumbers, L"Accept words with digits", L"12"},
    {chkCUSTUPCASE, kSpellCapitals, L"Accept words that begin with a capital", L"Aa"},
    {chkCUSTCHARS, kSpellCharacters, L"Accept words with signs and accents", L"@-"},
};

const Option* OptionOf(int id) {
  const auto* option = std::ranges::find(kOptions, id, &Option::id);
  return option == std::end(kOptions) ? nullptr : option;
}

std::wstring SelectedRow(HWND list) {
  const LRESULT row = ::SendMessageW(list, LB_GETCURSEL, 0, 0);
  const LRESULT length = ::SendMessageW(list, LB_GETTEXTLEN, static_cast<WPARAM>(row), 0);
  if (row == LB_ERR || length == LB_ERR) return {};
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  ::SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
  text.pop_back();
  return text;
}

void FillList(HWND list, std::span<const std::wstring> words) {
  ::SendMessageW(list, LB_RESETCONTENT, 0, 0);
  for (const std::wstring& word : words) {
    ::SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(word.c_str()));
  }
}

}  // namespace

SpellPanel::SpellPanel(NotePanelHost& host, EditedNote& note, clsNOTsp& checker)
    : NotePanel(host), voice_(host), checker_(checker), desk_(checker, note, voice_) {}

void SpellPanel::AddList(int id, const wchar_t* word) {
  ::CreateWindowExW(
      0, L"LISTBOX", word,
      WS_CHILD | WS_BORDER | WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT, 0, 0, 0,
      0, host().PanelParent(), reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
}

void SpellPanel::Load() {
  txtSUGG_.Load(host().PanelParent(), txtSUGG,
                {.most = static_cast<int>(kLongestListWord), .bordered = true});
  AddWindow(txtSUGG, txtSUGG_.handle(), {112});
  AddButton(btnCHANGE, L"Change", 0, {58});
  AddButton(btnIGNORE, L"Ignore", 0, {54});
  AddButton(btnINCLUDE, L"Include", 0, {56});
  AddButton(btnSPELLRCHK, L"Check", 0, {50});
  AddButton(btnCHANGEALL, L"Change all", 0, {78, 1, true});
  AddButton(btnIGNORENOTE, L"Ignore in note", 0, {98, 1});
  AddButton(optDICTUSA, L"US", 0, {32, 2, true});
  AddButton(optDICTUK, L"UK", 0, {32, 2});
  for (const Option& option : kOptions) {
    AddButton(option.id, option.word, *kDrawnByPanel, {30, 2, option.id == chkCUSTNOS});
  }
  AddButton(btnOWNWORDS, L"Own words", 0, {80, 3, true});
  AddButton(btnREMOVEWORD, L"Remove", 0, {62, 3});
  AddList(lstSUGGESTIONS, L"Suggestions");
  AddList(lstOWNWORDS, L"Own words");
  EnableButtons();
}

// --- places

int SpellPanel::ListWidth() const {
  return Scaled(kListWidth, host().PanelDpi());
}

int SpellPanel::Rows(int width) const {
  const int beside = width - ListWidth();
  if (beside < Scaled(kLeastBesideList, host().PanelDpi())) return NotePanel::Rows(width);
  return std::max(NotePanel::Rows(beside), kListRows);
}

void SpellPanel::Place(const Rect& box) {
  const int dpi = host().PanelDpi();
  const int edge = Scaled(kPanelEdge, dpi);
  Rect cells = box;
  list_ = {};
  if (box.height() >= Scaled(PanelHeight(kListRows), dpi) &&
      box.width() - ListWidth() >= Scaled(kLeastBesideList, dpi)) {
    list_ = {box.left + edge, box.top + edge, box.left + ListWidth(), box.bottom - edge};
    cells.left = list_.right;
  }
  NotePanel::Place(cells);
  for (const int id : {lstSUGGESTIONS, lstOWNWORDS}) {
    ::SendMessageW(Control(id), WM_SETFONT, reinterpret_cast<WPARAM>(host().PanelFont()), TRUE);
  }
  // The box is as high as its text asks, in the middle of its row.
  const Rect row = PlaceInForm(txtSUGG_.handle());
  const int spare = row.height() - Scaled(kBoxHeight, dpi);
  if (!row.empty()) {
    txtSUGG_.Place({row.left, row.top + spare / 2, row.right, row.bottom - (spare - spare / 2)},
                   host().PanelBoxStyle());
  }
  ShowLists();
}

void SpellPanel::ShowLists() {
  for (const int id : {lstSUGGESTIONS, lstOWNWORDS}) {
    const bool shown = !list_.empty() && own_words_ == (id == lstOWNWORDS);
    if (shown) PlaceWindow(Control(id), list_);
    ::ShowWindow(Control(id), shown ? SW_SHOWNA : SW_HIDE);
  }
}

// --- what is pressed

bool SpellPanel::OnControl(int id, int code) {
  switch (id) {
    case txtSUGG:
      if (code == EN_CHANGE) EnableButtons();
      return true;
    case lstSUGGESTIONS:
      if (code == LBN_SELCHANGE) TakeSuggestion();
      if (code == LBN_DBLCLK) Change(&SpellDesk::Change);
      return true;
    case lstOWNWORDS:
      if (code == LBN_SELCHANGE) EnableButtons();
      return true;
    case btnCHANGE:
      Change(&SpellDesk::Change);
      return true;
    case btnCHANGEALL:
      Change(&SpellDesk::ChangeAll);
      return true;
    case btnIGNORE:
      Ignore(IgnoreScope::kCheck);
      return true;
    case btnIGNORENOTE:
      Ignore(IgnoreScope::kNote);
      return true;
    case btnINCLUDE:
      Step(&SpellDesk::Include);
      return true;
    case btnSPELLRCHK:
      Step(&SpellDesk::Check);
      return true;
    case optDICTUSA:
      UseDictionary(kAmericanDictionary);
      return true;
    case optDICTUK:
      UseDictionary(kBritishDictionary);
      return true;
    case btnOWNWORDS:
      own_words_ = !own_words_;
      ShowOwnWords();
      return true;
    case btnREMOVEWORD:
      RemoveOwnWord();
      return true;
    default:
      break;
  }
  const Option* option = OptionOf(id);
  if (option) Toggle(option->setting, id);
  return option != nullptr;
}

bool SpellPanel::Has(HWND control) const {
  return control && (NotePanel::Has(control) || control == Control(lstSUGGESTIONS) ||
                     control == Control(lstOWNWORDS));
}

bool SpellPanel::OnKey(const MSG& message) {
  if (message.message != WM_KEYDOWN) return false;
  const int id = ::GetDlgCtrlID(message.hwnd);
  if (message.wParam == VK_RETURN && (id == txtSUGG || id == lstSUGGESTIONS)) {
    if (desk_.word().empty()) {
      Step(&SpellDesk::Check);
    } else {
      Change(&SpellDesk::Change);
    }
    return true;
  }
  // From the box straight to the suggestions.
  if (message.wParam == VK_DOWN && id == txtSUGG && ::IsWindowVisible(Control(lstSUGGESTIONS))) {
    ::SetFocus(Control(lstSUGGESTIONS));
    return true;
  }
  if (message.wParam == VK_DELETE && id == lstOWNWORDS) {
    RemoveOwnWord();
    return true;
  }
  return false;
}

void SpellPanel::Step(void (SpellDesk::*step)()) {
  {
    const HourglassPointer pointer;
    (desk_.*step)();
  }
  ShowStep(true);
}

void SpellPanel::Change(void (SpellDesk::*step)(const std::wstring& replacement)) {
  {
    const HourglassPointer pointer;
    (desk_.*step)(txtSUGG_.text());
  }
  ShowStep(true);
}

void SpellPanel::Ignore(IgnoreScope scope) {
  desk_.Ignore(scope);
  ShowStep(true);
}

void SpellPanel::OnNoteShown(const std::wstring& path) {
  desk_.NoteShown(path);
  ShowStep(false);
}

// --- what is shown

void SpellPanel::ShowStep(bool take_focus) {
  HWND list = Control(lstSUGGESTIONS);
  std::vector<std::wstring> words = desk_.suggestions().words;
  if (words.empty() && !desk_.word().empty()) words.emplace_back(kNoSuggestion);
  FillList(list, words);
  txtSUGG_.SetText(desk_.suggestions().proposed);
  const auto proposed = std::ranges::find(words, desk_.suggestions().proposed);
  if (proposed != words.end()) {
    ::SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(proposed - words.begin()), 0);
  }
  if (own_words_) FillList(Control(lstOWNWORDS), checker_.own_words());
  if (take_focus && ::IsWindowVisible(txtSUGG_.handle())) {
    ::SetFocus(txtSUGG_.handle());
    txtSUGG_.SelectAll();
  }
  EnableButtons();
}

void SpellPanel::EnableButtons() {
  const bool word = !desk_.word().empty();
  const bool replacement = word && !txtSUGG_.text().empty();
  TextButtons& buttons = host().PanelButtons();
  for (const int id : {btnCHANGE, btnCHANGEALL}) buttons.Enable(id, replacement);
  for (const int id : {btnIGNORE, btnIGNORENOTE, btnINCLUDE}) buttons.Enable(id, word);
  buttons.Enable(btnREMOVEWORD, own_words_ && !SelectedRow(Control(lstOWNWORDS)).empty());
}

void SpellPanel::TakeSuggestion() {
  const std::wstring chosen = SelectedRow(Control(lstSUGGESTIONS));
  if (!chosen.empty() && !desk_.suggestions().words.empty()) {
    txtSUGG_.SetText(chosen);
  }
  EnableButtons();
}

void SpellPanel::ShowOwnWords() {
  if (own_words_) {
    checker_.DatabaseLoadCheck();
    FillList(Control(lstOWNWORDS), checker_.own_words());
    if (checker_.own_words().empty()) voice_.Notice(L"There are no own words yet");
  }
  ShowLists();
  host().PanelButtons().Repaint(btnOWNWORDS);
  EnableButtons();
}

void SpellPanel::RemoveOwnWord() {
  const std::wstring word = SelectedRow(Control(lstOWNWORDS));
  if (word.empty()) return;
  if (desk_.RemoveOwnWord(word)) voice_.Notice(L"Removed: " + word);
  FillList(Control(lstOWNWORDS), checker_.own_words());
  ::SetFocus(Control(lstOWNWORDS));
  EnableButtons();
}

void SpellPanel::UseDictionary(std::wstring_view name) {
  desk_.UseDictionary(name, host().PanelServices().settings);
  for (const int id : {optDICTUSA, optDICTUK}) host().PanelButtons().Repaint(id);
}

void SpellPanel::Toggle(const Setting& option, int id) {
  Settings& settings = host().PanelServices().settings;
  WriteCheck(settings, option, !ReadCheck(settings, option));
  host().PanelButtons().Repaint(id);
}

ButtonCheck SpellPanel::CheckOf(int id) const {
  const Settings& settings = host().PanelServices().settings;
  if (id == optDICTUSA) return Checked(settings.Read(kSpellDictionary) == kAmericanDictionary);
  if (id == optDICTUK) return Checked(settings.Read(kSpellDictionary) == kBritishDictionary);
  if (id == btnOWNWORDS) return Checked(own_words_);
  const Option* option = OptionOf(id);
  return Checked(option && ReadCheck(settings, option->setting));
}

void SpellPanel::DrawOnButton(const ButtonPainting& painting) {
  if (const Option* option = OptionOf(painting.button.id)) DrawFace(painting, option->face);
}

}  // namespace varnel
