#include "win/windows/accessible.h"

#include <oleacc.h>

#include <utility>

#include "win/system/com.h"
#include "win/system/late_function.h"

namespace varnel {
namespace {

constexpr wchar_t kLibrary[] = L"oleacc.dll";

BSTR Given(const std::wstring& text) {
  return text.empty() ? nullptr : ::SysAllocStringLen(text.c_str(), static_cast<UINT>(text.size()));
}

// One window and its parts, which are simple elements: numbers from 1 on. What it does not know
// itself it asks the system's object for the window.
class Element final : public IAccessible {
 public:
  Element(HWND window, std::weak_ptr<AccessibleSource> source)
      : window_(window), source_(std::move(source)) {
    auto* create = LateFunction<HRESULT WINAPI(HWND, LONG, REFIID, void**)>(
        kLibrary, "CreateStdAccessibleObject");
    if (create) create(window, OBJID_CLIENT, IID_IAccessible, system_.ReceiveAny());
  }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool known = id == IID_IUnknown || id == IID_IDispatch || id == IID_IAccessible;
    *object = known ? this : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  // Nobody calls by names.
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    return E_NOTIMPL;
  }

  HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override {
    return system_ ? system_->get_accParent(parent) : E_FAIL;
  }
  HRESULT STDMETHODCALLTYPE get_accChildCount(long* count) override {
    *count = Count();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accChild(VARIANT, IDispatch** child) override {
    *child = nullptr;
    return S_FALSE;  // parts are no objects of their own
  }
  HRESULT STDMETHODCALLTYPE get_accName(VARIANT which, BSTR* name) override {
    return Text(which, &AccessiblePart::name, name);
  }
  HRESULT STDMETHODCALLTYPE get_accValue(VARIANT, BSTR* value) override {
    *value = nullptr;
    return S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT which, BSTR* text) override {
    return Text(which, &AccessiblePart::description, text);
  }
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT which, VARIANT* role) override {
    const auto part = Find(which);
    if (!part) return E_INVALIDARG;
    role->vt = VT_I4;
    role->lVal = part->role;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accState(VARIANT which, VARIANT* state) override {
    const auto part = Find(which);
    if (!part) return E_INVALIDARG;
    VARIANT own = {};
    if (which.lVal == CHILDID_SELF && system_) system_->get_accState(which, &own);
    state->vt = VT_I4;
    state->lVal = part->state | (own.vt == VT_I4 ? own.lVal : 0);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT, BSTR* text) override {
    *text = nullptr;
    return S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT, long* topic) override {
    *file = nullptr;
    *topic = 0;
    return S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT which, BSTR* text) override {
    *text = nullptr;
    return system_ ? system_->get_accKeyboardShortcut(which, text) : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override {
    return system_ ? system_->get_accFocus(child) : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override {
    children->vt = VT_EMPTY;
    return S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT which, BSTR* text) override {
    return Text(which, &AccessiblePart::action, text);
  }
  HRESULT STDMETHODCALLTYPE accSelect(long flags, VARIANT which) override {
    return system_ && which.lVal == CHILDID_SELF ? system_->accSelect(flags, which) : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE accLocation(long* left, long* top, long* width, long* height,
                                        VARIANT which) override {
    const auto part = Find(which);
    if (!part) return E_INVALIDARG;
    if (which.lVal == CHILDID_SELF) {
      return system_ ? system_->accLocation(left, top, width, height, which) : E_FAIL;
    }
    POINT corner = {part->place.left, part->place.top};
    ::ClientToScreen(window_, &corner);
    *left = corner.x;
    *top = corner.y;
    *width = part->place.width();
    *height = part->place.height();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE accNavigate(long direction, VARIANT from, VARIANT* to) override {
    to->vt = VT_EMPTY;
    return system_ && from.lVal == CHILDID_SELF && Count() == 0
               ? system_->accNavigate(direction, from, to)
               : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE accHitTest(long x, long y, VARIANT* hit) override {
    POINT at = {x, y};
    ::ScreenToClient(window_, &at);
    hit->vt = VT_I4;
    hit->lVal = CHILDID_SELF;
    for (int i = 0; i < Count(); ++i) {
      const Rect place = Source()->part(i).place;
      if (place.Contains({static_cast<int>(at.x), static_cast<int>(at.y)})) hit->lVal = i + 1;
    }
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT which) override {
    const auto source = Source();
    if (!source || !source->act || which.lVal != CHILDID_SELF) return DISP_E_MEMBERNOTFOUND;
    source->act();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return E_NOTIMPL; }

 private:
  ~Element() = default;

  std::shared_ptr<AccessibleSource> Source() const {
    return ::IsWindow(window_) ? source_.lock() : nullptr;
  }
  int Count() const {
    const auto source = Source();
    return source && source->count ? source->count() : 0;
  }
  // Nothing for what there is not, or not any more.
  std::optional<AccessiblePart> Find(const VARIANT& which) const {
    const auto source = Source();
    if (!source || which.vt != VT_I4 || which.lVal < 0 || which.lVal > Count()) return {};
    return which.lVal == CHILDID_SELF ? source->whole()
                                      : source->part(static_cast<int>(which.lVal) - 1);
  }
  HRESULT Text(const VARIANT& which, std::wstring AccessiblePart::*text, BSTR* given) const {
    *given = nullptr;
    const auto part = Find(which);
    if (!part) return E_INVALIDARG;
    *given = Given((*part).*text);
    return *given ? S_OK : S_FALSE;
  }

  HWND window_;
  std::weak_ptr<AccessibleSource> source_;
  ComPointer<IAccessible> system_;
  ULONG references_ = 1;
};

}  // namespace

Accessible::Accessible(AccessibleSource source)
    : source_(std::make_shared<AccessibleSource>(std::move(source))) {}

Accessible::~Accessible() = default;

std::optional<LRESULT> Accessible::OnMessage(HWND window, UINT message, WPARAM wparam,
                                             LPARAM lparam) {
  if (message != WM_GETOBJECT || static_cast<LONG>(lparam) != OBJID_CLIENT) return {};
  auto* give =
      LateFunction<LRESULT WINAPI(REFIID, WPARAM, IUnknown*)>(kLibrary, "LresultFromObject");
  if (!give) return {};
  const ComPointer<IAccessible> element(new Element(window, source_));
  return give(IID_IAccessible, wparam, element.get());
}

}  // namespace varnel
