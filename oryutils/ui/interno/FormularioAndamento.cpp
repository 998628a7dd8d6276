#include "oryutils/ui/interno/FormularioAndamento.hpp"

#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"
#include "oryutils/ui/interno/FormularioMensagem.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

constexpr int CLarguraAndamento = 250;  // client area, dialog units
// No line has more characters; of a longer word only so many are measured at a time.
constexpr std::size_t CMaiorLinha = 1024;

// How many characters of APalavra stand on a line of ALargura: one at least, and no half of a character.
std::size_t ContarCabem(const TToolkit& AToolkit, std::u16string_view APalavra, int ALargura) {
    std::size_t cabem = 1;
    std::size_t excede = std::min(APalavra.size(), CMaiorLinha);
    while (excede - cabem > 1) {
        const std::size_t meio = (cabem + excede) / 2;
        (AToolkit.MedirTexto(APalavra.substr(0, meio), 0).Largura <= ALargura ? cabem : excede) = meio;
    }
    const bool parte = (APalavra[cabem - 1] & 0xFC00) == 0xD800;
    return !parte ? cabem : cabem > 1 ? cabem - 1 : 2;
}

}  // namespace

std::u16string QuebrarPalavrasLongas(const TToolkit& AToolkit, std::u16string_view ATexto, int ALargura) {
    std::u16string texto;
    while (!ATexto.empty()) {
        const std::size_t fim = std::min(ATexto.find_first_of(u" \r\n"), ATexto.size());
        std::u16string_view palavra = ATexto.substr(0, fim);
        while (palavra.size() > 1 && AToolkit.MedirTexto(palavra.substr(0, CMaiorLinha), 0).Largura > ALargura) {
            const std::size_t cabem = ContarCabem(AToolkit, palavra, ALargura);
            texto.append(palavra.substr(0, cabem)).append(u"\r\n");
            palavra.remove_prefix(cabem);
        }
        texto += palavra;
        const std::size_t seguinte = std::min(ATexto.find_first_not_of(u" \r\n", fim), ATexto.size());
        texto += ATexto.substr(fim, seguinte - fim);
        ATexto.remove_prefix(seguinte);
    }
    return texto;
}

TFormularioAndamento::TFormularioAndamento(const TOryUtilsDialogsAndamentoIOP& AParametros)
    : FToolkit(ExigirToolkit()), FTexto(AParametros.Mensagem), FRitmo(std::chrono::steady_clock::now()) {
    SetTitulo(AParametros.Titulo);
    OnAjuda = EventoDeAjuda();
    FPartes.Mensagem = &Adicionar<TRotulo>();
    FPartes.Mensagem->SetNome(CNomeDaMensagem);
    FPartes.Mensagem->SetQuebraLinha(true);
    FPartes.Progresso = &Adicionar<TProgresso>();
    FPartes.Progresso->SetNome(u"Andamento");
    if (AParametros.PermiteCancelar) {
        FCancelar = &Adicionar<TBotao>();
        FCancelar->SetNome(CNomesBotao[mbCancel]);
        FCancelar->SetTexto(CCaptionsBotao[mbCancel]);
        FCancelar->SetModalResult(mrCancel);
        FCancelar->SetCancelar(true);
    }
    FPartes.LarguraMinima = CLarguraAndamento;
    FPartes.TextoNaLargura = true;
    DisporDialogo(*this, FPartes);
    MostrarTexto();
    FExibicao = FToolkit.Exibir(*this);
    if (!FExibicao) throw Exception(u"Este ambiente não mostra andamento.");
}

// What was noted last is what a terminal, or a log, keeps.
TFormularioAndamento::~TFormularioAndamento() {
    FPartes.Progresso->SetPercentual(FPercentual);
    FPartes.Progresso->SetTexto(FTexto);
}

void TFormularioAndamento::Atualizar() {
    if (!FToolkit.EhThreadDaInterface())
        throw Exception(u"Formulários só podem ser mostrados pela thread da interface do usuário.");
    // A handler of the host may come back here while its message is let through.
    if (FAtualizando || !FRitmo.Permite(std::chrono::steady_clock::now())) return;
    struct TMarca {
        bool& Marca;
        ~TMarca() { Marca = false; }
    } marca{FAtualizando = true};
    FPartes.Progresso->SetPercentual(FPercentual);
    if (FPartes.Progresso->GetTexto() != FTexto) MostrarTexto();
    FToolkit.ProcessarMensagens();
    if (FoiCancelado()) FCancelar->SetHabilitado(false);
}

// The bar is called as the text; the label has it in lines. The form grows with a longer text and never shrinks, so
// that short and long texts in turn do not make it jump.
void TFormularioAndamento::MostrarTexto() {
    FPartes.Progresso->SetTexto(FTexto);
    const int largura = FPartes.Mensagem->GetWidth();
    FPartes.Mensagem->SetTexto(QuebrarPalavrasLongas(FToolkit, FTexto, largura));
    const TTamanho medido = FToolkit.MedirTexto(FPartes.Mensagem->GetTexto(), largura);
    if (FPartes.Rolagem || medido.Altura > FPartes.Mensagem->GetHeight()) DisporDialogo(*this, FPartes);
}

void TFormularioAndamento::AoMudarTela(int, int) {
    DisporDialogo(*this, FPartes);
    MostrarTexto();
}

}  // namespace OryUtils
