#include "oryutils/forms/win32/interno/LeitorDeTela.hpp"

#include "oryutils/platform/BibliotecaDinamica.hpp"

#include <atomic>
#include <oleacc.h>

namespace OryUtils::Interno {
namespace {

/// The system's object for a window, with what we say of the window itself in front. It holds no window and no model:
/// a screen reader may keep it longer than both.
class TAcessivel final : public IAccessible {
public:
    TAcessivel(IAccessible& ADoSistema, TFalado AFalado) : FDoSistema(ADoSistema), FFalado(std::move(AFalado)) {
        FDoSistema.AddRef();
    }
    TAcessivel(const TAcessivel&) = delete;
    TAcessivel& operator=(const TAcessivel&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID AInterface, void** AObjeto) override {
        const bool nossa = AInterface == __uuidof(IUnknown) || AInterface == __uuidof(IDispatch) ||
                           AInterface == __uuidof(IAccessible);
        *AObjeto = nossa ? static_cast<IAccessible*>(this) : nullptr;
        if (!nossa) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++FReferencias; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG referencias = --FReferencias;
        if (referencias == 0) delete this;
        return referencias;
    }

    HRESULT STDMETHODCALLTYPE get_accName(VARIANT AFilho, BSTR* ANome) override {
        return Contar(FFalado.Nome, AFilho, ANome, &IAccessible::get_accName);
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT AFilho, BSTR* ADescricao) override {
        return Contar(FFalado.Descricao, AFilho, ADescricao, &IAccessible::get_accDescription);
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT AFilho, VARIANT* APapel) override {
        if (FFalado.Papel == 0 || !EhAJanela(AFilho)) return FDoSistema.get_accRole(AFilho, APapel);
        APapel->vt = VT_I4;
        APapel->lVal = FFalado.Papel;
        return S_OK;
    }

    // What the system answers.
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* A) override { return FDoSistema.GetTypeInfoCount(A); }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT A, LCID B, ITypeInfo** C) override {
        return FDoSistema.GetTypeInfo(A, B, C);
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID A, LPOLESTR* B, UINT C, LCID D, DISPID* E) override {
        return FDoSistema.GetIDsOfNames(A, B, C, D, E);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID A, REFIID B, LCID C, WORD D, DISPPARAMS* E, VARIANT* F, EXCEPINFO* G,
                                     UINT* H) override {
        return FDoSistema.Invoke(A, B, C, D, E, F, G, H);
    }
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** A) override { return FDoSistema.get_accParent(A); }
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* A) override { return FDoSistema.get_accChildCount(A); }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT A, IDispatch** B) override { return FDoSistema.get_accChild(A, B); }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT A, BSTR* B) override { return FDoSistema.get_accValue(A, B); }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT A, VARIANT* B) override { return FDoSistema.get_accState(A, B); }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT A, BSTR* B) override { return FDoSistema.get_accHelp(A, B); }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* A, VARIANT B, LONG* C) override {
        return FDoSistema.get_accHelpTopic(A, B, C);
    }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT A, BSTR* B) override {
        return FDoSistema.get_accKeyboardShortcut(A, B);
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* A) override { return FDoSistema.get_accFocus(A); }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* A) override { return FDoSistema.get_accSelection(A); }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT A, BSTR* B) override {
        return FDoSistema.get_accDefaultAction(A, B);
    }
    HRESULT STDMETHODCALLTYPE accSelect(LONG A, VARIANT B) override { return FDoSistema.accSelect(A, B); }
    HRESULT STDMETHODCALLTYPE accLocation(LONG* A, LONG* B, LONG* C, LONG* D, VARIANT E) override {
        return FDoSistema.accLocation(A, B, C, D, E);
    }
    HRESULT STDMETHODCALLTYPE accNavigate(LONG A, VARIANT B, VARIANT* C) override {
        return FDoSistema.accNavigate(A, B, C);
    }
    HRESULT STDMETHODCALLTYPE accHitTest(LONG A, LONG B, VARIANT* C) override { return FDoSistema.accHitTest(A, B, C); }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT A) override { return FDoSistema.accDoDefaultAction(A); }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT A, BSTR B) override { return FDoSistema.put_accName(A, B); }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT A, BSTR B) override { return FDoSistema.put_accValue(A, B); }

private:
    using TPergunta = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);

    ~TAcessivel() { FDoSistema.Release(); }

    static bool EhAJanela(const VARIANT& AFilho) { return AFilho.vt == VT_I4 && AFilho.lVal == CHILDID_SELF; }

    HRESULT Contar(const std::u16string& ATexto, const VARIANT& AFilho, BSTR* AResposta, TPergunta APergunta) {
        if (ATexto.empty() || !EhAJanela(AFilho)) return (FDoSistema.*APergunta)(AFilho, AResposta);
        *AResposta = ::SysAllocStringLen(Interno::ParaWide(ATexto), static_cast<UINT>(ATexto.size()));
        return *AResposta ? S_OK : E_OUTOFMEMORY;
    }

    IAccessible& FDoSistema;
    const TFalado FFalado;
    std::atomic<ULONG> FReferencias{1};
};

}  // namespace

LRESULT ResponderLeitorDeTela(HWND AJanela, WPARAM AW, TFalado AFalado) {
    static const TBibliotecaDinamica biblioteca(u"oleacc.dll");
    static auto* const criar = biblioteca.Buscar<decltype(::CreateStdAccessibleObject)>("CreateStdAccessibleObject");
    static auto* const entregar = biblioteca.Buscar<decltype(::LresultFromObject)>("LresultFromObject");
    if (!criar || !entregar) return 0;
    void* doSistema = nullptr;
    if (FAILED(criar(AJanela, OBJID_CLIENT, __uuidof(IAccessible), &doSistema)) || !doSistema) return 0;
    auto& sistema = *static_cast<IAccessible*>(doSistema);
    auto* const acessivel = new TAcessivel(sistema, std::move(AFalado));
    sistema.Release();
    const LRESULT resposta = entregar(__uuidof(IAccessible), AW, acessivel);
    acessivel->Release();
    return resposta;
}

}  // namespace OryUtils::Interno
