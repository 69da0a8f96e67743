#include "win/rich/rich_picture.h"

#include <ole2.h>

#include <algorithm>
#include <utility>

#include "win/system/com.h"

namespace varnel {
namespace {

// A picture that is shown and saved and does nothing else. The control asks for what it needs by
// way of the metafile it offers; most of what an object may be asked is not for a picture.
class PictureObject final : public IOleObject, public IViewObject, public IDataObject {
 public:
  PictureObject(SharedMetafile look, SIZEL size) : look_(std::move(look)), size_(size) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    *object = nullptr;
    if (id == IID_IUnknown || id == IID_IOleObject) *object = static_cast<IOleObject*>(this);
    if (id == IID_IViewObject) *object = static_cast<IViewObject*>(this);
    if (id == IID_IDataObject) *object = static_cast<IDataObject*>(this);
    if (!*object) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) override {
    if (site) site->AddRef();
    site_ = ComPointer<IOleClientSite>(site);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** site) override {
    *site = site_.get();
    if (*site) (*site)->AddRef();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Close(DWORD) override { return SetClientSite(nullptr); }
  HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD, IDataObject** data) override {
    return QueryInterface(IID_IDataObject, reinterpret_cast<void**>(data));
  }
  HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID* id) override {
    *id = CLSID_Picture_EnhMetafile;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE SetExtent(DWORD, SIZEL* size) override {
    size_ = *size;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetExtent(DWORD, SIZEL* size) override {
    *size = size_;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD, DWORD* status) override {
    *status = OLEMISC_STATIC;
    return S_OK;
  }
  // What it shows never changes, so whoever wants to be told of changes never is.
  HRESULT STDMETHODCALLTYPE Advise(IAdviseSink*, DWORD* connection) override {
    *connection = 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE SetAdvise(DWORD, DWORD, IAdviseSink*) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR, LPCOLESTR) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE DoVerb(LONG, MSG*, IOleClientSite*, LONG, HWND, const RECT*) override {
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Update() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE IsUpToDate() override { return S_OK; }

  HRESULT STDMETHODCALLTYPE Draw(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, HDC dc,
                                 const RECTL* bounds, const RECTL*,
                                 BOOL(STDMETHODCALLTYPE*)(ULONG_PTR), ULONG_PTR) override {
    const RECT place = {bounds->left, bounds->top, bounds->right, bounds->bottom};
    return ::PlayEnhMetaFile(dc, look_->get(), &place) ? S_OK : E_FAIL;
  }

  HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override {
    if (QueryGetData(format) != S_OK) return DV_E_FORMATETC;
    *medium = {};
    medium->tymed = TYMED_ENHMF;
    medium->hEnhMetaFile = ::CopyEnhMetaFileW(look_->get(), nullptr);
    return medium->hEnhMetaFile ? S_OK : E_OUTOFMEMORY;
  }
  HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override {
    const bool offered = format->cfFormat == CF_ENHMETAFILE && (format->tymed & TYMED_ENHMF);
    return offered ? S_OK : DV_E_FORMATETC;
  }

  HRESULT STDMETHODCALLTYPE SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetUserType(DWORD, LPOLESTR*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC,
                                        LOGPALETTE**) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Freeze(DWORD, LONG, void*, DWORD*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Unfreeze(DWORD) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetAdvise(DWORD*, DWORD*, IAdviseSink**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD, IEnumFORMATETC**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
    return OLE_E_ADVISENOTSUPPORTED;
  }
  HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
  HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override {
    return OLE_E_ADVISENOTSUPPORTED;
  }

 private:
  ~PictureObject() = default;

  ULONG references_ = 1;  // used by one thread
  SharedMetafile look_;
  SIZEL size_;
  ComPointer<IOleClientSite> site_;
};

}  // namespace

ComPointer<IStorage> MakeObjectStorage() {
  ComPointer<ILockBytes> bytes;
  ComPointer<IStorage> storage;
  if (SUCCEEDED(::CreateILockBytesOnHGlobal(nullptr, TRUE, bytes.Receive()))) {
    ::StgCreateDocfileOnILockBytes(bytes.get(), STGM_SHARE_EXCLUSIVE | STGM_CREATE | STGM_READWRITE,
                                   0, storage.Receive());
  }
  return storage;
}

bool InsertRichPicture(IRichEditOle& control, const SharedMetafile& look, Size size,
                       std::uint32_t id) {
  ComPointer<IOleClientSite> site;
  const ComPointer<IStorage> storage = MakeObjectStorage();
  if (!look || !*look || !storage || FAILED(control.GetClientSite(site.Receive()))) return false;
  REOBJECT record = {};
  record.cbStruct = sizeof record;
  record.sizel = {size.width, size.height};
  const ComPointer<IOleObject> object(new PictureObject(look, record.sizel));
  record.cp = REO_CP_SELECTION;
  record.clsid = CLSID_Picture_EnhMetafile;
  record.poleobj = object.get();
  record.pstg = storage.get();
  record.polesite = site.get();
  record.dvaspect = DVASPECT_CONTENT;
  record.dwFlags = REO_BELOWBASELINE;
  record.dwUser = id;
  return SUCCEEDED(control.InsertObject(&record));
}

std::vector<RichPicture> RichPictures(IRichEditOle& control) {
  std::vector<RichPicture> pictures;
  const LONG count = control.GetObjectCount();
  for (LONG i = 0; i < count; ++i) {
    REOBJECT record = {};
    record.cbStruct = sizeof record;
    if (FAILED(control.GetObject(i, &record, REO_GETOBJ_NO_INTERFACES))) continue;
    const bool ours = record.clsid == CLSID_Picture_EnhMetafile;
    pictures.push_back({static_cast<int>(record.cp),
                        ours ? record.dwUser : 0,
                        {static_cast<int>(record.sizel.cx), static_cast<int>(record.sizel.cy)}});
  }
  std::ranges::sort(pictures, {}, &RichPicture::position);
  return pictures;
}

}  // namespace varnel
