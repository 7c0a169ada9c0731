#include "comma_list.h"
#include "order_tokens.h"
#include "quoting.h"
#include "row.h"

class TestProtocol : public QObject
{
    Q_OBJECT

private slots:
    void readsOrders_data()
    {
        // Of the tokens a letter each, upper case where a space follows.
        const Columns<QString, QString> row("order", "tokens");
        row("all, flags joined", "%c %o%e %d%j %s ", "CoEdJS");
        row("two", "%s %c ", "SC");
        row("none", "", "");
        row("text without a percent sign", "code", "c");
        row("more than one letter", "%es%jo", "ej");
        row("an unknown letter", "%x%c ", "C");
        row("an eighth section", "%s%s%s%s%s%s%c", "ssssss");
    }
    void readsOrders()
    {
        QFETCH(QString, order);
        QString tokens;
        for (const OrderToken &token : parseOrderString(order)) {
            const QChar letter = QLatin1Char(static_cast<char>(token.part));
            tokens += token.spaceFollows ? letter.toUpper() : letter;
        }
        QTEST(tokens, "tokens");
    }

    void splitsLists_data()
    {
        const Columns<QString, QStringList> row("list", "items");
        row("spaces", " ONE,TWO=2, THREE=3 ", {"ONE", "TWO=2", "THREE=3"});
        row("parameters", "F(a,b)=a,G", {"F(a,b)=a", "G"});
        row("string", "S=\"a,(b\",G", {"S=\"a,(b\"", "G"});
        row("stray parentheses", "A=),B=(,C", {"A=)", "B=(", "C"});
        row("quotation mark", "C='\"',G", {"C='\"'", "G"});
        row("comma", "C=',',D='\\\\',E=U'a,b',N=1'0,G",
            {"C=','", "D='\\\\'", "E=U'a,b'", "N=1'0", "G"});
        row("mark in a string", "S=\"\\\",\\\\\",T=\\\"1,\\\\\\\"2\\\",G",
            {"S=\"\\\",\\\\\"", "T=\\\"1,\\\\\\\"2\\\"", "G"});
        row("folder", "-IC:\\O'Brien,-DA", {"-IC:\\O'Brien", "-DA"});
        row("handed on", "-Wa,-adhln,-Wl,-Map,x.map,-O2,-Wl,--gc-sections,-Wl, -c",
            {"-Wa,-adhln", "-Wl,-Map,x.map", "-O2", "-Wl,--gc-sections", "-Wl", "-c"});
        row("list for a value", "-fsanitize=address,undefined,-DA=1, LARGE",
            {"-fsanitize=address,undefined", "-DA=1", "LARGE"});
        row("options in marks", "-std=c99,\"-IC:\\a b\",-DA=1,\"b c\",-DB",
            {"-std=c99", "\"-IC:\\a b\"", "-DA=1,\"b c\"", "-DB"});
        row("nothing", ",, ,", {});
    }
    void splitsLists()
    {
        QFETCH(QString, list);
        QTEST(splitCommaList(list), "items");
    }

    void splitsCommands_data()
    {
        // Of the words each is behind a "|".
        const Columns<QString, QString, bool> row("command", "words", "isReadable");
        row("white space", " cc \t-a ", "|cc|-a", true);
        row("text", "\"C:\\a b\\cc\" -I\"x y\"/z \"\"", "|C:\\a b\\cc|-Ix y/z|", true);
        row("marks that stay",
            "-DV=\\\"1.2\\\" \"-DW=\\\"a \\\\\\\"b\\\"\" -DX=\\\"c \\\\\\\"d\\\"",
            "|-DV=\"1.2\"|-DW=\"a \\\"b\"|-DX=\"c \\\"d\"", true);
        row("backslashes", "\\\\server\\x \"\\\\a\\\\\" \\\\\"b c\"",
            "|\\\\server\\x|\\\\a\\|\\b c", true);
        row("constants", "-DA='\"' -DB=' ' '\\'' 'it", "|-DA='\"'|-DB=' '|'\\''|'it", true);
        row("not closed", "cc \"-a b", "|cc|\"-a b", false);
        row("closed by a mark that stays", "\"C:\\a b\\\" -c", "|\"C:\\a b\\\" -c", false);
        row("another kind of end", "-DV=\\\"a b\" c", "|-DV=\\\"a b\" c", false);
        row("in apostrophes", "-DV='\"1.2\"'", "|-DV='\"1.2\"'", false);
    }
    void splitsCommands()
    {
        QFETCH(QString, command);
        QString words;
        for (const QString &word : splitCommand(command))
            words += '|' + word;
        QTEST(words, "words");
        QTEST(quotingProblem(command).isEmpty(), "isReadable");
    }
};

QTEST_APPLESS_MAIN(TestProtocol)
#include "test_protocol.moc"
