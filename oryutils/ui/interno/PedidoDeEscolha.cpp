// Items of a list, found by typing.
#include "oryutils/characters/Acentos.hpp"
#include "oryutils/characters/Caixa.hpp"
#include "oryutils/ui/interno/FormularioPedido.hpp"
#include "oryutils/ui/interno/Pedidos.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

constexpr int CMenosLinhas = 4, CMaisLinhas = 12;
constexpr int CMenorLargura = 190, CMaiorLargura = 380;  // client area, dialog units
constexpr int CUnidadesPorLetra = 4, CFolgaDaLista = 40;
constexpr std::uint16_t CTeclaAbaixo = 40;

std::u16string Normalizar(std::u16string_view ATexto) {
    std::u16string texto(ATexto);
    std::ranges::transform(texto, texto.begin(), [](char16_t c) { return MinusculaDe(Interno::SemAcento(c)); });
    return texto;
}

class TFormularioEscolha final : public TFormularioPedido {
public:
    TFormularioEscolha(const TOryUtilsDialogsPedidoEscolhaIOP& AParametros, const std::vector<std::int32_t>& AIndices,
                       const TTextosDialogos& ATextos)
        : TFormularioPedido(AParametros.Titulo, AParametros.Pergunta, ATextos),
          FObrigatorio(AParametros.Obrigatorio || !AParametros.Varios),
          FItens(AParametros.Itens) {
        for (std::u16string& item : FItens) {
            std::ranges::replace_if(
                item, [](char16_t c) { return c < u' '; }, u' ');
            FNormalizados.push_back(Normalizar(item));
        }
        FPartes.RotuloDaEdicao = &AdicionarRotulo(ATextos.Buscar(tdLocalizar));
        FPartes.Edicao = &Adicionar<TCaixaEdicao>();
        FPartes.Edicao->SetNome(u"Localizar");
        FPartes.Edicao->SetAuxiliar(true);
        FPartes.Edicao->OnMudar = TEvento<TObjeto*>::De<&TFormularioEscolha::AoLocalizar>(*this);
        FPartes.RotuloDoCorpo = &AdicionarRotulo(ATextos.Buscar(tdOpcoes));
        FLista = &Adicionar<TListaEscolha>();
        FLista->SetNome(u"Lista");
        FLista->SetVarios(AParametros.Varios);
        FLista->OnEscolher = TEvento<TObjeto*>::De<&TFormularioEscolha::AoEscolher>(*this);
        if (!AParametros.Varios)
            FLista->OnDuploClique = TEvento<TObjeto*>::De<&TFormularioEscolha::AoClicarDuasVezes>(*this);
        FPartes.Corpo = FLista;
        FPartes.LinhasDoCorpo = std::clamp(static_cast<int>(FItens.size()), CMenosLinhas, CMaisLinhas);
        FEscolhidos.resize(FItens.size());
        for (const std::int32_t i : AIndices)
            if (i >= 0 && static_cast<std::size_t>(i) < FItens.size()) FEscolhidos[static_cast<std::size_t>(i)] = true;
        Mostrar(u"");
        std::size_t maior = 0;
        for (const std::u16string& item : FItens)
            maior = std::max(maior, std::min<std::size_t>(item.size(), CMaiorLargura));
        FPartes.LarguraMinima =
            std::clamp(static_cast<int>(maior) * CUnidadesPorLetra + CFolgaDaLista, CMenorLargura, CMaiorLargura);
        SetControleAtivo(FPartes.Edicao);
        OnKeyDown = TEvento<TObjeto*, TTecla&>::De<&TFormularioEscolha::AoTeclar>(*this);
        Concluir();
    }

    std::vector<std::int32_t> GetIndices() const {
        std::vector<std::int32_t> indices;
        for (std::size_t i = 0; i < FEscolhidos.size(); ++i)
            if (FEscolhidos[i]) indices.push_back(static_cast<std::int32_t>(i));
        return indices;
    }

protected:
    void Conferir() override {
        if (FObrigatorio && GetIndices().empty()) Recusar(*FLista, FTextos.Buscar(tdEscolha));
    }

private:
    /// The list holds the items that have AParte in them.
    void Mostrar(std::u16string_view AParte) {
        const std::u16string parte = Normalizar(AParte);
        FVisiveis.clear();
        std::vector<std::u16string> itens;
        std::vector<int> escolhidos;
        for (std::size_t i = 0; i < FItens.size(); ++i) {
            if (FNormalizados[i].find(parte) == std::u16string::npos) continue;
            if (FEscolhidos[i]) escolhidos.push_back(static_cast<int>(itens.size()));
            FVisiveis.push_back(i);
            itens.push_back(FItens[i]);
        }
        FLista->SetItens(std::move(itens));
        FLista->SetEscolhidos(std::move(escolhidos));
    }

    // Where one is chosen, it is the first that was found, so that Enter takes it.
    void AoLocalizar(TObjeto*) {
        const std::u16string& parte = FPartes.Edicao->GetTexto();
        Mostrar(parte);
        if (FLista->GetVarios() || parte.empty() || !FLista->GetEscolhidos().empty()) return;
        FEscolhidos.assign(FEscolhidos.size(), false);
        EscolherPrimeiro();
    }

    void EscolherPrimeiro() {
        if (FVisiveis.empty()) return;
        FLista->SetEscolhidos({0});
        FEscolhidos[FVisiveis.front()] = true;
    }

    void AoEscolher(TObjeto*) {
        if (!FLista->GetVarios()) FEscolhidos.assign(FEscolhidos.size(), false);
        for (const std::size_t i : FVisiveis) FEscolhidos[i] = false;
        for (const int i : FLista->GetEscolhidos()) FEscolhidos[FVisiveis[static_cast<std::size_t>(i)]] = true;
    }

    void AoClicarDuasVezes(TObjeto* ASender) { Confirmar(ASender); }

    // Down leads from the box into the list.
    void AoTeclar(TObjeto*, TTecla& ATecla) {
        if (ATecla.Codigo != CTeclaAbaixo || ATecla.Ctrl || ATecla.Alt || ATecla.Shift) return;
        if (GetControleAtivo() != FPartes.Edicao) return;
        ATecla.Tratada = true;
        if (!FLista->GetVarios() && FLista->GetEscolhidos().empty()) EscolherPrimeiro();
        FLista->ReceberFoco();
    }

    const bool FObrigatorio;
    std::vector<std::u16string> FItens, FNormalizados;
    std::vector<bool> FEscolhidos;
    std::vector<std::size_t> FVisiveis;  // by the rows of the list
    TListaEscolha* FLista = nullptr;
};

}  // namespace

bool ExecutarPedidoEscolha(const TOryUtilsDialogsPedidoEscolhaIOP& AParametros, std::vector<std::int32_t>& AIndices,
                           const TTextosDialogos& ATextos) {
    TFormularioEscolha formulario(AParametros, AIndices, ATextos);
    if (formulario.ExecutarModal() != mrOk) return false;
    AIndices = formulario.GetIndices();
    return true;
}

}  // namespace OryUtils
