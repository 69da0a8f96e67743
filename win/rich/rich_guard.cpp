#include "win/rich/rich_guard.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "win/rich/rich_picture.h"
#include "win/system/clipboard.h"

namespace varnel {
namespace {

FORMATETC Wanted(UINT format) {
  return {static_cast<CLIPFORMAT>(format), nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

bool Offers(IDataObject& data, UINT format) {
  FORMATETC wanted = Wanted(format);
  return data.QueryGetData(&wanted) == S_OK;
}

std::string BytesOf(IDataObject& data, UINT format) {
  FORMATETC wanted = Wanted(format);
  STGMEDIUM medium = {};
  std::string bytes;
  if (data.GetData(&wanted, &medium) != S_OK) return bytes;
  const void* source = medium.tymed == TYMED_HGLOBAL ? ::GlobalLock(medium.hGlobal) : nullptr;
  if (source) {
    bytes.assign(static_cast<const char*>(source), ::GlobalSize(medium.hGlobal));
    bytes.resize(bytes.find_last_not_of('\0') + 1);
    ::GlobalUnlock(medium.hGlobal);
  }
  ::ReleaseStgMedium(&medium);
  return bytes;
}

class RichGuard final : public IRichEditOleCallback {
 public:
  explicit RichGuard(RtfGate gate) : gate_(std::move(gate)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool known = id == IID_IUnknown || id == IID_IRichEditOleCallback;
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

  // The control keeps a picture that is moved within the text in such a place.
  HRESULT STDMETHODCALLTYPE GetNewStorage(IStorage** storage) override {
    *storage = MakeObjectStorage().release();
    return *storage ? S_OK : E_OUTOFMEMORY;
  }
  HRESULT STDMETHODCALLTYPE QueryInsertObject(CLSID* id, IStorage*, LONG) override {
    const CLSID kPictures[] = {CLSID_Picture_EnhMetafile, CLSID_Picture_Metafile,
                               CLSID_Picture_Dib};
    return std::ranges::find(kPictures, *id) != std::end(kPictures) ? S_OK : E_ACCESSDENIED;
  }
  HRESULT STDMETHODCALLTYPE QueryAcceptData(IDataObject* data, CLIPFORMAT* format, DWORD,
                                            WINBOOL really, HGLOBAL) override {
    try {
      const bool rtf = Offers(*data, RtfFormat()) && (!really || LetsIn(*data));
      if (!rtf && !Offers(*data, CF_UNICODETEXT)) return E_ACCESSDENIED;
      *format = static_cast<CLIPFORMAT>(rtf ? RtfFormat() : CF_UNICODETEXT);
      return S_OK;
    } catch (...) {
      // Nothing may be thrown through the control. What cannot be looked at does not get in.
      return E_ACCESSDENIED;
    }
  }

  HRESULT STDMETHODCALLTYPE DeleteObject(IOleObject*) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE ShowContainerUI(WINBOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(WINBOOL) override { return S_OK; }
  // The control's own data, effects and (no) menu are right.
  HRESULT STDMETHODCALLTYPE GetClipboardData(CHARRANGE*, DWORD, IDataObject**) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetDragDropEffect(WINBOOL, DWORD, DWORD*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetContextMenu(WORD, IOleObject*, CHARRANGE*, HMENU*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetInPlaceContext(IOleInPlaceFrame**, IOleInPlaceUIWindow**,
                                              OLEINPLACEFRAMEINFO*) override {
    return E_NOTIMPL;
  }

 private:
  ~RichGuard() = default;

  bool LetsIn(IDataObject& data) const { return gate_ && gate_(BytesOf(data, RtfFormat())); }

  ULONG references_ = 1;  // used by one thread
  RtfGate gate_;
};

}  // namespace

ComPointer<IRichEditOleCallback> MakeRichGuard(RtfGate gate) {
  return ComPointer<IRichEditOleCallback>(new RichGuard(std::move(gate)));
}

}  // namespace varnel
