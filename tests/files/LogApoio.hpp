#pragma once

#include "oryutils/characters/Utf.hpp"
#include "oryutils/files/UnOryUtilsArquivoLog.hpp"
#include "oryutils/files/UnOryUtilsArquivoLogAmbiente.hpp"
#include "oryutils/platform/TextoDoSistema.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include "files/ApoioArquivos.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// A world that counts what a save does. Its date stands until it is moved; the clock that spaces the looks at a file
/// moves so far at each question that every save looks.
struct TAmbienteDeTeste final : OryUtils::TAmbienteDoLog {
    OryUtils::TDateTime Agora = OryUtils::CodificarData(2026, 11, 15);
    int Tentativas = 0;
    std::size_t Bytes = 0;
    std::function<void(int)> AoTentar{};
    std::function<void()> AoEscreverBytes{};
    std::chrono::steady_clock::time_point Relogio{};
    std::chrono::milliseconds Passo{100};

    OryUtils::TDateTime BuscarAgora() override { return Agora; }
    std::chrono::steady_clock::time_point BuscarRelogio() override { return Relogio += Passo; }
    std::u16string BuscarAplicacao() override { return u"Importador.exe"; }
    std::u16string BuscarVersao() override { return u"7.2.0.15"; }
    std::u16string BuscarIP() override { return u"192.168.0.10"; }
    std::u16string BuscarNomeDaMaquina() override { return u"SERVIDOR"; }
    void AoTentarGravar(int ATentativa) override {
        ++Tentativas;
        if (AoTentar) AoTentar(ATentativa);
    }
    void AoEscrever(std::size_t ABytes) override {
        Bytes += ABytes;
        if (AoEscreverBytes) AoEscreverBytes();
    }

    void Marcar(int AAno, int AMes, int ADia, int AHora = 0, int AMinuto = 0, int ASegundo = 0) {
        Agora = OryUtils::CodificarData(AAno, AMes, ADia) + OryUtils::CodificarHora(AHora, AMinuto, ASegundo, 0);
    }
};

/// A log with its seams open.
class TLogDeTeste : public OryUtils::TOryUtilsArquivoLog {
public:
    using TOryUtilsArquivoLog::SalvarArquivoLog;

    TLogDeTeste(std::u16string_view AArquivo, TAmbienteDeTeste& AAmbiente)
        : TOryUtilsArquivoLog(AArquivo, AAmbiente), FAmbiente(AAmbiente) {}
    /// One in UTF-8.
    TLogDeTeste(std::u16string_view AArquivo, TAmbienteDeTeste& AAmbiente, OryUtils::TModoGravacao AModo)
        : TLogDeTeste(AArquivo, AAmbiente) {
        SetCodificacao(OryUtils::clUtf8);
        SetModoGravacao(AModo);
    }
    /// Of one save.
    int ContarTentativas() {
        FAmbiente.Tentativas = 0;
        EXPECT_NO_THROW(SalvarArquivoLog());
        return FAmbiente.Tentativas;
    }
    /// The bytes of a file in UTF-8 with every line that the memory holds.
    std::string Esperar() const {
        return OryUtils::ParaUtf8(GetTexto()) + OryUtils::ParaUtf8(OryUtils::Interno::BuscarQuebraDeLinha());
    }

private:
    TAmbienteDeTeste& FAmbiente;
};

using TLinhas = std::vector<std::u16string>;

/// What a log in tfmSomenteTexto writes by itself in that world.
inline const TLinhas CCabecalho{u"Início do processo",        u"Aplicação executora: Importador.exe",
                                u"Versão: 7.2.0.15",          u"IP: 192.168.0.10",
                                u"Nome da máquina: SERVIDOR", std::u16string(78, u'*')};

/// The lines with the system's break behind each, in UTF-8: the file of a log in clUtf8.
inline std::string JuntarLinhas(const TLinhas& ALinhas) {
    std::string texto;
    for (const auto& linha : ALinhas)
        texto += OryUtils::ParaUtf8(linha) + OryUtils::ParaUtf8(OryUtils::Interno::BuscarQuebraDeLinha());
    return texto;
}

/// GetTexto of those lines: no break behind the last one.
inline std::u16string JuntarTexto(const TLinhas& ALinhas) {
    std::u16string texto = OryUtils::DeUtf8(JuntarLinhas(ALinhas));
    return texto.substr(0, texto.size() - (texto.empty() ? 0 : OryUtils::Interno::BuscarQuebraDeLinha().size()));
}

inline TLinhas Somar(TLinhas ALinhas, const TLinhas& AMais) {
    ALinhas.insert(ALinhas.end(), AMais.begin(), AMais.end());
    return ALinhas;
}

/// What a process does that will be killed: adds lines for ever, and confirms each that is saved.
[[noreturn]] inline void GravarAteMorrer(const std::filesystem::path& AArquivo, OryUtils::TModoGravacao AModo,
                                         const std::function<void(int)>& AConfirmar) {
    TAmbienteDeTeste ambiente;
    TLogDeTeste log(AArquivo.u16string(), ambiente, AModo);
    log.SetSalvarAutomaticamente(true);
    for (int i = 0;; ++i) {
        log.Adicionar(u"linha " + OryUtils::InteiroParaTexto(i) + u" " + std::u16string(2000, u'x'), OryUtils::clBlue);
        if (!log.EstahSalvo()) std::abort();
        AConfirmar(i);
    }
}

/// It was killed after it had confirmed AUltima: that line and all before it are in the file.
inline void ConferirLinhasConfirmadas(const std::filesystem::path& AArquivo, int AUltima) {
    const std::string texto = LerBytes(AArquivo);
    for (int i = 0; i <= AUltima; ++i)
        ASSERT_NE(texto.find("linha " + std::to_string(i) + " x"), std::string::npos)
            << "line " << i << " of " << AUltima << ", " << texto.size() << " bytes";
}

/// An existing log of AArquivo that ASoltar makes readable, and nothing else, is continued as soon as it can be read,
/// and stands untouched until then.
inline void ConferirQueEsperaOExistente(const std::filesystem::path& AArquivo, OryUtils::TModoGravacao AModo,
                                        const std::function<void()>& ASoltar) {
    TAmbienteDeTeste ambiente;
    TLogDeTeste log(AArquivo.u16string(), ambiente, AModo);
    log.SetUsarArquivoLogExistente(true);
    log.AdicionarEspacoEmBranco(3);  // the file's lines come in the place of these
    log.Adicionar(u"enquanto ninguém lê", OryUtils::clBlue);
    EXPECT_FALSE(log.EstahSalvo()) << "before the first save, too";
    EXPECT_EQ(log.ContarTentativas(), 14);
    EXPECT_FALSE(log.EstahSalvo());
    ambiente.AoTentar = [&](int ATentativa) {
        if (ATentativa == 5) ASoltar();
    };
    const std::u16string destaVez = log.GetTexto();
    EXPECT_EQ(log.ContarTentativas(), 5);
    EXPECT_TRUE(log.EstahSalvo());
    EXPECT_EQ(log.GetTexto(), JuntarTexto({u"de ontem", destaVez}));
    EXPECT_EQ(LerBytes(AArquivo), log.Esperar());
}
