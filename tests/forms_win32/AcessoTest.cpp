// What a screen reader of Windows is told of the dialogs.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "Auxiliares.hpp"

#include <oleacc.h>

namespace OryUtils {
namespace {

// IID_IAccessible; oleacc.dll refuses the one that the compiler's libraries bring.
constexpr IID CInterface{0x618736e0, 0x3c3d, 0x11cf, {0x81, 0x0c, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71}};

std::string ParaTexto(BSTR ATexto) {
    const std::string texto = ATexto ? ParaUtf8(Interno::DeWide(ATexto)) : "";
    ::SysFreeString(ATexto);
    return texto;
}

/// The name of a window, asked as a screen reader asks from another program, after its role; that of an alert is
/// followed by its description. Wine gives every other control one role, the one of a window's inside.
std::string Ouvir(HWND AJanela) {
    IAccessible* objeto = nullptr;
    if (::AccessibleObjectFromWindow(AJanela, static_cast<DWORD>(OBJID_CLIENT), CInterface,
                                     reinterpret_cast<void**>(&objeto)) != S_OK)
        return "(nothing)";
    VARIANT eu{}, papel{};
    eu.vt = VT_I4;
    BSTR nome = nullptr, descricao = nullptr;
    objeto->get_accRole(eu, &papel);
    objeto->get_accName(eu, &nome);
    objeto->get_accDescription(eu, &descricao);
    objeto->Release();
    const std::string falado = ParaTexto(nome), explicado = ParaTexto(descricao);
    switch (papel.lVal) {
        case ROLE_SYSTEM_TEXT:
            return "edit " + falado;
        case ROLE_SYSTEM_GRAPHIC:
            return "graphic " + falado;
        case ROLE_SYSTEM_ALERT:
            return "alert " + falado + ": " + explicado;
        default:
            return falado;
    }
}

struct TCasoFalado {
    void (*Mostrar)(TOryUtilsDialogs&);
    std::vector<std::string> Esperado;
};
const TCasoFalado CFalados[] = {
    {[](auto& d) { d.Confirmacao(u"Excluir?", btNo); },
     {"alert Confirmação: Excluir?", "graphic Pergunta", "Excluir?", "Sim", "Não"}},
    {[](auto& d) { d.InputBox(u"T", u"CNPJ:", u"1"); }, {"T", "CNPJ:", "edit CNPJ:", "OK", "Cancelar"}},
    {[](auto& d) {
         std::vector<std::int32_t> escolhidos;
         d.PedirEscolha({.Titulo = u"T", .Pergunta = u"Cidade?", .Itens = {u"Santos"}}, escolhidos);
     },
     {"T", "Cidade?", "Localizar:", "edit Localizar:", "Opções: ", "Opções: ", "OK", "Cancelar"}},
    {[](auto&) {
         TFormulario f;
         f.SetTitulo(u"T");
         auto& memorando = f.Adicionar<TMemorando>();
         memorando.SetNome(u"Detalhe");
         auto& grupo = f.Adicionar<TGrupoOpcoes>();
         grupo.SetTexto(u"Opções: ");
         grupo.SetRetangulo({0, 0, 120, 60});
         grupo.AdicionarItem(u"uma &opção que não cabe nesta largura");
         f.ExecutarModal();
     },
     {"T", "edit Detalhe", "Opções: ", "uma opção que não cabe nesta largura"}},
};

TEST_F(FormsWin32, LeitoresDeTelaOuvemNomes) {
    ::CoInitialize(nullptr);
    for (const TCasoFalado& c : CFalados) {
        TOryUtilsDialogs dialogos;
        std::vector<std::string> ouvido;
        const auto ouvir = [&] {
            const HWND formulario = ::GetActiveWindow();
            ouvido.push_back(Ouvir(formulario));
            for (const HWND filho : Filhos(formulario)) ouvido.push_back(Ouvir(filho));
            FecharJanela();
        };
        Conduzir(TPassos{ouvir}, [&] { c.Mostrar(dialogos); });
        EXPECT_EQ(ouvido, c.Esperado);
    }
    ::CoUninitialize();
}

}  // namespace
}  // namespace OryUtils
