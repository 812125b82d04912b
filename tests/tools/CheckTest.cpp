#include "tests/support/TemporaryFolder.h"
#include "tools/CheckDictionaries.h"
#include "tools/CheckKeyboards.h"
#include "tools/CheckOptions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// "line: reason" of the findings in one file, in order.
std::vector<Text> Of(TextView file, CheckReport report) {
    std::sort(report.begin(), report.end());
    std::vector<Text> found;
    for (const auto& finding : report)
        if (finding.file == file)
            found.push_back(std::to_string(finding.line) + ": " + finding.reason);
    return found;
}

class Check : public testing::Test {
  protected:
    using CheckOf = void (*)(const DataFolder&, const std::vector<Text>&, CheckReport&);
    CheckReport With(CheckOf check, const std::vector<Text>& profiles = {"generico", "ana"}) {
        CheckReport report;
        check(data, profiles, report);
        return report;
    }
    CheckReport Dictionaries() { return With(CheckDictionaries, {"generico"}); }
    CheckReport Options() { return With(CheckOptions); }
    CheckReport Keyboards() { return With(CheckKeyboards); }

    TemporaryFolder folder;
    DataFolder data{folder.Path()};
};

TEST_F(Check, FindsNothingInASoundFolder) {
    for (const auto* stem : {"geral", "generico"})
        for (const auto* extension : {".pal", ".par", ".frs", ".paf", ".abr"})
            folder.Write(std::string(stem) + extension, "");
    folder.Write("geral.pal", "___ 4\nbom|dia 2 N\ncasa 12 N\nárvore\n"_w);
    folder.Write("geral.par", "___ casa 3\n___ árvore 1\ncasa bom|dia 2\n"_w);
    folder.Write("geral.cg", "N 10\nV 2\n");
    folder.Write("geral.pcg", "N V 3\r\nV N 1\r\n");
    folder.Write("geral.frs", "Bom|dia! 2\ncomo|estás?\n"_w);
    folder.Write("generico.par", "casa casa 1\n");
    folder.Write("generico.abr", "bd bom dia a todos\n");
    folder.Write("generico.cfg",
                 "# nota\n\nNOME_TECLADO letras\nTIPO_LETRA Comic;;;Sans\nLETRAS_NAO_PRETENDIDAS \n");
    folder.Write("base.cfg", "");
    folder.Write("Letras.tec", "// nota\n\nALTURA_TECLAS 60\nLINHA l\nGRUPO g\nTECLA TECLA_VAZIA\n"
                               "TECLA TECLA_NORMAL a a letras.tec 1 -1 -1\n"
                               "TECLA TECLA_NORMAL a a {Ctrl+c} 1 -1 -1\n"
                               "TECLA TECLA_NORMAL a a [Alterar-Perfil-Utilizador;;;ana]\n");
    folder.Write("letras.tec", "");
    EXPECT_THAT(Of("geral.pal", Dictionaries()), IsEmpty());
    EXPECT_EQ(Dictionaries().size() + Options().size() + Keyboards().size(), 0U);
}

TEST_F(Check, TellsOutOfPlaceWordsAndCountsThatDoNotRead) {
    folder.Write("geral.pal", "casa 12\nabrir 2\nabrir 3\nbom dia 4\ndado -1\nerva 99999999999 N x\n");
    EXPECT_THAT(Of("geral.pal", Dictionaries()),
                ElementsAre(HasSubstr("2: \"abrir\" does not sort after \"casa\""),
                            HasSubstr("3: \"abrir\" does not sort after \"abrir\""),
                            HasSubstr("4: count: \"dia\""), HasSubstr("5: count: \"-1\" is negative"),
                            HasSubstr("6: count: \"99999999999\" is read as"),
                            HasSubstr("6: what follows \"N\" is lost")));
}

TEST_F(Check, TellsPairsThatWouldBeDroppedOrUnsorted) {
    folder.Write("geral.pal", "a 1\nb 1\nc 1\n");
    folder.Write("ana.pal", "d 1\n");
    folder.Write("geral.par", "a b 1\na d 1\nb c 1\nb a 1\na c 1\nb c\n");
    folder.Write("ana.par", "d a 1\na d 1\na e 2\n");
    EXPECT_THAT(Of("geral.par", Dictionaries()),
                ElementsAre(HasSubstr("2: \"d\" is in no dictionary"),
                            HasSubstr("4: \"a\" does not sort after \"c\""),
                            HasSubstr("5: pairs of \"a\" stand in two places"),
                            HasSubstr("6: not two entries")));
    EXPECT_THAT(Of("ana.par", Dictionaries()), ElementsAre(HasSubstr("3: \"e\" is in no dictionary")));
}

TEST_F(Check, TellsLongLinesOnceAndLinesInAnotherEncoding) {
    folder.Write("geral.pal", Text(2500, 'a') + "\nárvore 2\n");
    folder.Write("generico.abr", "bd\nbb bom dia\nbb outra\n");
    EXPECT_THAT(Of("geral.pal", Dictionaries()),
                testing::Contains(HasSubstr("1: longer than 999 bytes")).Times(1));
    EXPECT_THAT(Of("geral.pal", Dictionaries()), testing::Contains(HasSubstr("2: is UTF-8")));
    EXPECT_THAT(Of("generico.abr", Dictionaries()),
                ElementsAre(HasSubstr("1: not an abbreviation"), HasSubstr("3: replaces line 2")));
}

TEST_F(Check, TellsClassesThatShiftTheTotals) {
    folder.Write("geral.cg", "N 10\n\nV x\nN 3\n");
    folder.Write("geral.pcg", "N X 3\nN N\n");
    EXPECT_THAT(Of("geral.cg", Dictionaries()),
                ElementsAre(HasSubstr("2: not a class"), HasSubstr("3: not a class"),
                            HasSubstr("4: class \"N\" is already on line 1")));
    EXPECT_THAT(Of("geral.pcg", Dictionaries()),
                ElementsAre(HasSubstr("1: class \"X\" is not in"), HasSubstr("2: not two classes")));
}

TEST_F(Check, TellsOptionsThatAreUnknownUnreadableOrOutOfRange) {
    folder.Write("ana.cfg",
                 "CHAVE 1\nALTURA_TECLAS\nALTURA_TECLAS 900\nTEMPO_DE_PREDICAO 250\nTECLAS_COMPLETAR 60\n"
                 "TECLA_MANIPULO1 F13\nMETODO_VARRIMENTO Outro\nNOME_TECLADO nenhum\n"
                 "INTERVALOS_TEMPO_SABADO 08:30-25:00\nLATITUDE_LOCAL_FISICO 1,5\nTIPO_LETRA Comic Sans\n");
    EXPECT_THAT(
        Of("ana.cfg", Options()),
        ElementsAre(HasSubstr("1: \"CHAVE\" is no option"), HasSubstr("2: ALTURA_TECLAS has no value"),
                    HasSubstr("3: \"900\" is outside 1 to 500"), HasSubstr("3: replaces line 2"),
                    HasSubstr("4: \"250\" is no multiple of 100"), HasSubstr("5: \"60\" is neither"),
                    HasSubstr("6: \"F13\" is no key name"), HasSubstr("7: \"Outro\" is no scanning method"),
                    HasSubstr("8: there is no keyboard \"nenhum\""),
                    HasSubstr("9: \"08:30-25:00\" is no list of time spans"),
                    HasSubstr("10: \"1,5\" is read as 1.0"),
                    HasSubstr("11: what follows \"Comic\" is lost")));
}

TEST_F(Check, TellsAccessOptionsThatWouldNotHoldAsTheyStand) {
    folder.Write("ana.acs", "# nota\nTEMPO_PERMANENCIA 10100\nTEMPO_PERMANENCIA 250\nCHAVE 1\n"
                            "TEMPO_PERMANENCIA 2s\nTOM_FALA 101\nVOZ_PISTAS Voz Baixa\n");
    folder.Write("rui.acs", "TEMPO_PERMANENCIA 10000\nVOLUME_PISTAS -100\nVOZ_PISTAS Voz;;;Baixa\n");
    EXPECT_THAT(Of("ana.acs", Options()),
                ElementsAre(HasSubstr("2: \"10100\" is outside 0 to 10000"),
                            HasSubstr("3: \"250\" is no multiple of 100"), HasSubstr("3: replaces line 2"),
                            HasSubstr("4: \"CHAVE\" is no option"), HasSubstr("5: \"2s\" is"),
                            HasSubstr("5: replaces line 2"), HasSubstr("6: \"101\" is outside -100 to 100"),
                            HasSubstr("7: what follows \"Voz\" is lost")));
    EXPECT_THAT(Of("rui.acs", Options()), IsEmpty());
}

TEST_F(Check, TellsProfilesThatAreNamedButNotThere) {
    folder.Write("configsis", "PERFIL_UTILIZADOR_ARRANQUE eva\nFOO 1\nADAPTACAO_CONTEXTO sim\n"
                              "LISTA_PRIORIDADES_ADAPTACAO_CONTEXTO ana;;;rui\n");
    folder.Write("utils", "ana ana\n");
    folder.Write("ana.cfg", "");
    EXPECT_THAT(Of("configsis", Options()),
                ElementsAre(HasSubstr("1: \"eva\" is no profile"), HasSubstr("2: \"FOO\""),
                            HasSubstr("3: \"sim\""), HasSubstr("4: \"rui\" is no profile")));
    EXPECT_THAT(Of("utils", Options()), ElementsAre("1: \"ana\" is in the list already"));
}

TEST_F(Check, TellsKeyLinesThatLoseWordsAndOutputsThatLeadNowhere) {
    folder.Write("t.tec", "LINHA l\nGRUPO g\nFOO bar\nTECLA TECLA_NORMAL a b\n"
                          "TECLA TECLA_NORMAL a b [Foo] 1 -1\nTECLA TECLA_NORMAL a b nada.tec 1 -1 -1\n"
                          "TECLA TECLA_OUTRA\nTECLA TECLA_NORMAL a b {Ctrl+Foo} 1 -1 -1\n"
                          "TECLA TECLA_IMAGEM CAT_IMG_X\\p.bmp b c 1 -1 -1\n"
                          "TECLA TECLA_NORMAL a b [Alterar-Perfil-Utilizador;;;eva]\nALTURA_TECLAS x\n");
    EXPECT_THAT(
        Of("t.tec", Keyboards()),
        ElementsAre(HasSubstr("3: \"FOO\" begins no line"), HasSubstr("4: only the first 2 of 4 words"),
                    HasSubstr("5: \"Foo\" is no command"), HasSubstr("5: only the first 6 of 7 words"),
                    HasSubstr("6: there is no keyboard \"nada.tec\""), HasSubstr("7: \"TECLA_OUTRA\""),
                    HasSubstr("8: \"Foo\" is no key name"), HasSubstr("9: there is no picture"),
                    HasSubstr("10: \"eva\" is no profile"), HasSubstr("11: \"x\" is no number")));
}

TEST_F(Check, TellsWhereTheReadingOfAKeyboardEnds) {
    folder.Write("a.tec", "LINHA l\nTECLA TECLA_VAZIA\nFOO bar\n");
    Text lines;
    for (int i = 0; i < 25; ++i)
        lines += "LINHA l\n";
    folder.Write("b.tec", lines);
    EXPECT_THAT(Of("a.tec", Keyboards()),
                ElementsAre("2: a key before its group", HasSubstr("2: the program stops")));
    EXPECT_THAT(Of("b.tec", Keyboards()),
                ElementsAre("21: more than 20 lines", HasSubstr("21: the program stops")));
}

} // namespace
} // namespace ondrilo
