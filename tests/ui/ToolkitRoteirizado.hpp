#pragma once

#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/runtime/Formatos.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace OryUtils {

inline constexpr int CLarguraLetra = 6;
inline constexpr int CAlturaLinha = 13;

/// Shows nothing: each modal run takes the next step of the script, which sees the form as a user would and acts on it.
/// A run without a step, or whose step leaves the form open, is closed by the window's button. Every character is
/// 6 x 13 pixels, the screen 800 x 600, the font 8 points.
class TToolkitRoteirizado final : public TToolkit {
public:
    using TPasso = std::function<void(TFormulario&)>;

    std::deque<TPasso> Roteiro;
    std::vector<std::u16string> Titulos;  ///< of every form shown
    int MensagensProcessadas = 0;
    std::function<void()> AoProcessar;
    TFormulario* Exibido = nullptr;  ///< shown without a run of its own
    std::map<std::uintptr_t, std::pair<int, std::function<void()>>> Temporizadores;
    std::vector<TPedidoDeCaminho> Pedidos;  ///< of the pickers
    std::optional<std::u16string> Escolha;  ///< answer of the pickers
    std::u16string AreaDeTransferencia;
    int Bipes = 0;
    bool DaInterface = true;
    bool HaQuemResponda = true;

    TToolkitRoteirizado() { InstalarToolkit(this); }
    ~TToolkitRoteirizado() override { InstalarToolkit(nullptr); }

    /// Fires the only timer.
    void VencerTempo() {
        ASSERT_EQ(Temporizadores.size(), 1U);
        const auto acao = Temporizadores.begin()->second.second;
        acao();
    }

    const char* GetNome() const noexcept override { return "roteirizado"; }
    bool EhThreadDaInterface() const override { return DaInterface; }
    int ExecutarModal(TFormulario& AFormulario) override {
        TJanelaVazia janela(AFormulario);
        Titulos.push_back(AFormulario.GetTitulo());
        AFormulario.OnShow(&AFormulario);
        if (!Roteiro.empty()) {
            const TPasso passo = std::move(Roteiro.front());
            Roteiro.pop_front();
            passo(AFormulario);
        }
        AFormulario.Fechar();
        return AFormulario.GetModalResult();
    }
    void ProcessarMensagens() override {
        ++MensagensProcessadas;
        if (AoProcessar) AoProcessar();
    }
    std::shared_ptr<void> Exibir(TFormulario& AFormulario) override {
        Exibido = &AFormulario;
        return std::make_shared<TJanelaVazia>(AFormulario);
    }
    bool PodePerguntar() const override { return HaQuemResponda; }
    TTamanho MedirTexto(std::u16string_view ATexto, int ALarguraMaxima) const override {
        TTamanho tamanho{0, CAlturaLinha};
        int largura = 0;
        int palavra = 0;
        const auto quebrar = [&](int ANova) {
            tamanho.Altura += CAlturaLinha;
            largura = ANova;
        };
        for (const char16_t c : ATexto) {
            if (c == u'\r') continue;
            if (c == u'\n') {
                quebrar(palavra = 0);
                continue;
            }
            largura += CLarguraLetra;
            palavra = c == u' ' ? 0 : palavra + CLarguraLetra;
            if (ALarguraMaxima > 0 && largura > ALarguraMaxima && palavra < largura) quebrar(palavra);
            tamanho.Largura = std::max(tamanho.Largura, largura);
        }
        return tamanho;
    }
    int GetTamanhoFonte() const override { return 8; }
    int GetPixelsPorPolegada() const override { return 96; }
    TRetangulo GetAreaDeTrabalho() const override { return {0, 0, 800, 600}; }
    std::uintptr_t LigarTemporizador(int AMilissegundos, std::function<void()> AAcao) override {
        Temporizadores[++FUltimo] = {AMilissegundos, std::move(AAcao)};
        return FUltimo;
    }
    void DesligarTemporizador(std::uintptr_t ATemporizador) override {
        EXPECT_EQ(Temporizadores.erase(ATemporizador), 1U) << "timer switched off twice";
    }
    std::vector<std::u16string> EscolherCaminhos(const TPedidoDeCaminho& APedido) override {
        Pedidos.push_back(APedido);
        return Escolha ? std::vector{*Escolha} : std::vector<std::u16string>{};
    }
    void SetCursor(TCursorTela) override {}
    bool EstahPressionada(std::uint16_t) const override { return false; }
    void Bipar() override { ++Bipes; }
    void CopiarParaAreaDeTransferencia(std::u16string_view ATexto) override { AreaDeTransferencia = ATexto; }

private:
    struct TJanelaVazia final : TJanela {
        explicit TJanelaVazia(TFormulario& AFormulario) : Formulario(AFormulario) { Formulario.SetJanela(this); }
        ~TJanelaVazia() override { Formulario.SetJanela(nullptr); }
        void Mudou(TControleFormulario&, TMudanca) override {}
        void MudouFormulario(TMudanca) override {}
        void ResultadoMudou() override {}
        TFormulario& Formulario;
    };
    std::uintptr_t FUltimo = 0;
};

/// A test of dialogs: a scripted toolkit, Brazilian formats, an instance of the dialogs.
class TesteDialogos : public testing::Test {
protected:
    TFormatosTemporarios Formatos{BuscarFormatosBrasileiros()};
    TToolkitRoteirizado Toolkit;
    TOryUtilsDialogs Dialogos;
};

inline TBotao& BuscarBotao(const TFormulario& AFormulario, std::u16string_view ACaption) {
    for (TBotao* botao : AFormulario.GetBotoes())
        if (botao->GetTexto() == ACaption) return *botao;
    throw std::runtime_error("no such button");
}

/// Presses a key and tells whether the form spent it.
inline bool Teclar(TFormulario& AFormulario, std::uint16_t ACodigo, bool ACtrl = false, bool AShift = false,
                   bool AAlt = false) {
    TTecla tecla{.Codigo = ACodigo, .Shift = AShift, .Ctrl = ACtrl, .Alt = AAlt};
    return AFormulario.TratarTecla(tecla);
}

inline std::u16string BuscarTexto(const TFormulario& AFormulario, std::u16string_view ANome) {
    const auto* controle = AFormulario.BuscarControle(ANome);
    return controle ? controle->GetTexto() : u"";
}

}  // namespace OryUtils
