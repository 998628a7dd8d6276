#include "oryutils/readers/TabelaDeMontagens.hpp"

#include <algorithm>
#include <array>
#include <set>

namespace OryUtils::Interno {
namespace {

constexpr std::array<std::string_view, 12> CServidores{
    "nfs", "nfs4", "cifs", "smb3", "9p", "virtiofs", "ceph", "afs", "glusterfs", "zfs", "fuse.sshfs", "fuse.glusterfs"};
constexpr std::array<std::string_view, 2> CImagens{"squashfs", "erofs"};

template <std::size_t ATamanho>
bool Contem(const std::array<std::string_view, ATamanho>& ALista, std::string_view ATexto) {
    return std::find(ALista.begin(), ALista.end(), ATexto) != ALista.end();
}

bool EhOctal(char ACaractere) { return ACaractere >= '0' && ACaractere <= '7'; }

// Blanks and backslashes of a name come as three octal digits.
std::string Decodificar(std::string_view ATexto) {
    std::string texto;
    for (std::size_t i = 0; i < ATexto.size(); ++i) {
        const bool codigo = ATexto[i] == '\\' && i + 3 < ATexto.size() && EhOctal(ATexto[i + 1]) &&
                            EhOctal(ATexto[i + 2]) && EhOctal(ATexto[i + 3]);
        if (!codigo) {
            texto += ATexto[i];
            continue;
        }
        texto += static_cast<char>((ATexto[i + 1] - '0') * 64 + (ATexto[i + 2] - '0') * 8 + (ATexto[i + 3] - '0'));
        i += 3;
    }
    return texto;
}

std::vector<std::string_view> SepararCampos(std::string_view ALinha) {
    std::vector<std::string_view> campos;
    while (!ALinha.empty()) {
        const std::size_t fim = std::min(ALinha.find(' '), ALinha.size());
        if (fim > 0) campos.push_back(ALinha.substr(0, fim));
        ALinha.remove_prefix(std::min(fim + 1, ALinha.size()));
    }
    return campos;
}

}  // namespace

std::vector<TMontagem> LerTabelaDeMontagens(std::string_view ATabela) {
    std::vector<TMontagem> lista;
    std::set<std::string_view> dispositivos;
    TMontagem raiz{"/", {}};
    while (!ATabela.empty()) {
        const std::size_t fim = std::min(ATabela.find('\n'), ATabela.size());
        // id parent major:minor root mount-point options [more]... - type source options
        const std::vector<std::string_view> campos = SepararCampos(ATabela.substr(0, fim));
        ATabela.remove_prefix(std::min(fim + 1, ATabela.size()));
        const auto traco = std::find(campos.begin(), campos.end(), "-");
        if (campos.size() < 6 || campos.end() - traco < 3 || traco - campos.begin() < 6) continue;
        const std::string_view dispositivo = campos[2];
        const std::string_view tipo = traco[1];
        const std::string origem = Decodificar(traco[2]);
        const std::string pasta = Decodificar(campos[4]);
        if (pasta == "/") {  // the last one lies over the others
            raiz.Origem = origem;
            dispositivos.insert(dispositivo);
            continue;
        }
        const bool disco = origem.starts_with('/') && !Contem(CImagens, tipo);
        if (disco || Contem(CServidores, tipo))
            lista.push_back({pasta, origem});
        else
            continue;
        if (!dispositivos.insert(dispositivo).second) lista.pop_back();
    }
    std::sort(lista.begin(), lista.end(), [](const TMontagem& A, const TMontagem& B) { return A.Pasta < B.Pasta; });
    lista.insert(lista.begin(), std::move(raiz));
    return lista;
}

}  // namespace OryUtils::Interno
