// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_registration_form.h"
#include "tests/protocols/xmpp_parsing.h"

#include <QTest>

namespace {

const QByteArray fixedFields =
    "<instructions>Please.</instructions><key>k1</key><username/><password/><email>a@b</email>"
    "<zip/><shoesize/>";

/// A form with every kind of field, two without a name, and what nobody knows.
const QByteArray dataForm =
    "<instructions>Not these.</instructions><x xmlns='jabber:x:data' type='form'>"
    "<title>Join &lt;us&gt;</title><instructions>First line.</instructions><instructions>Second line.</instructions>"
    "<field type='hidden' var='FORM_TYPE'><value>jabber:iq:register</value></field>"
    "<field type='hidden' var='many'><value>one</value><value>two</value></field>"
    "<field type='fixed'><value>About</value><value>you</value></field>"
    "<field type='fixed' label='Heading'/>"
    "<field type='text-single' var='username' label='Name'><required/><desc>A short one.</desc></field>"
    "<field type='text-private' var='password' label='Secret'><required/></field>"
    "<field type='boolean' var='news' label='News'><value>true</value></field>"
    "<field type='boolean' var='rules' label='Rules'><value>0</value></field>"
    "<field type='list-single' var='colour' label='Colour'><value>b</value>"
    "<option label='Red'><value>r</value></option><option><value>b</value></option></field>"
    "<field type='list-multi' var='pets' label='Pets'><value>cat</value>"
    "<option label='Dog'><value>dog</value></option><option label='Cat'><value>cat</value></option></field>"
    "<field type='text-multi' var='story' label='Story'><value>one</value><value>two</value></field>"
    "<field type='jid-multi' var='friends'><value>a@b</value></field>"
    "<field type='jid-single' var='address'><value>c@d</value></field>"
    "<field type='x-unheard-of' var='odd' label='Odd'><value>as it was</value></field>"
    "<field var='untyped'/></x>";

QByteArray reply(const QByteArray &query, const QByteArray &besides = QByteArray())
{
    return "<iq xmlns='jabber:client' type='result'><query xmlns='jabber:iq:register'>" + query + "</query>" + besides
        + "</iq>";
}

KirvXmppRegistrationForm form(const QByteArray &query, const QByteArray &besides = QByteArray())
{
    return KirvXmppRegistrationForm(parsed(reply(query, besides)).documentElement());
}

KirvField fieldOf(const KirvXmppRegistrationForm &form, const QString &id)
{
    for (const KirvField &field : form.fields()) {
        if (field.getId() == id)
            return field;
    }
    return KirvField::note("missing", "missing", "missing", QString());
}

/// The fields of \a form with \a text in the one called \a id.
QList<KirvField> filled(QList<KirvField> fields, const QString &id, const QString &text, bool isChecked = false)
{
    for (KirvField &field : fields) {
        if (field.getId() == id) {
            field.setText(text);
            field.setChecked(isChecked);
        }
    }
    return fields;
}

/// The values of the field \a name in the data form that is sent; "absent" when it is not there.
QStringList sentValues(const QDomDocument &query, const QString &name)
{
    const QDomElement form = query.documentElement().firstChildElement("x");
    for (QDomElement field = form.firstChildElement("field"); !field.isNull();
         field = field.nextSiblingElement("field")) {
        if (field.attribute("var") != name)
            continue;
        QStringList values;
        for (QDomElement value = field.firstChildElement("value"); !value.isNull();
             value = value.nextSiblingElement("value"))
            values << value.text();
        return values;
    }
    return { "absent" };
}

} // namespace

/// The form of a server as fields, and what is sent back.
class tst_XmppRegistrationForm : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fixedFieldsBecomeRequiredLines();
    void fixedFieldsAreSentAsTheyCame();
    void everyKindOfFieldIsShown_data();
    void everyKindOfFieldIsShown();
    void notesHaveNamesOfTheirOwn();
    void textsAboveTheFieldsAreRead();
    void everyKindOfFieldIsSent_data();
    void everyKindOfFieldIsSent();
    void notesAreNotSent();
    void theFormIsMarkedAsSubmitted();
    void severalOptionsBecomeBoxes();
    void picturesAreFound_data();
    void picturesAreFound();
    void theAddressOfAPageIsRead();
    void aReplyWithoutAFormHasNoFields();
    void whatWasTypedIsKept();
    void onlyWhatWasTypedIsKept();
    void whatTheServerKnowsOnceIsSentOnce_data();
    void whatTheServerKnowsOnceIsSentOnce();
    void whatIsMissingIsReported_data();
    void whatIsMissingIsReported();
    void userNameIsTheFirstPartOfAnAddress();
};

void tst_XmppRegistrationForm::fixedFieldsBecomeRequiredLines()
{
    const KirvXmppRegistrationForm fixed = form(fixedFields);
    QStringList ids;
    for (const KirvField &field : fixed.fields()) {
        ids << field.getId();
        QVERIFY2(field.isRequired(), qPrintable(field.getId()));
    }
    QCOMPARE(ids, QStringList({ "username", "password", "email", "zip", "shoesize" }));
    QCOMPARE(fieldOf(fixed, "username").getLabel(), QString("User name"));
    QCOMPARE(fieldOf(fixed, "password").getKind(), KirvField::Password);
    QCOMPARE(fieldOf(fixed, "email").getText(), QString("a@b"));
    QCOMPARE(fieldOf(fixed, "shoesize").getLabel(), QString("shoesize"));
    QCOMPARE(fixed.instructions(), QString("Please."));
    QVERIFY(fixed.hasPassword());
}

void tst_XmppRegistrationForm::fixedFieldsAreSentAsTheyCame()
{
    const KirvXmppRegistrationForm fixed = form(fixedFields);
    QList<KirvField> fields = filled(fixed.fields(), "username", "romeo@localhost");
    fields = filled(fields, "password", "a<b");
    const QDomDocument query = fixed.toQuery(fields);
    const QDomElement root = query.documentElement();
    QCOMPARE(root.namespaceURI(), QString("jabber:iq:register"));
    QCOMPARE(textAt(root, "key"), QString("k1"));
    QCOMPARE(textAt(root, "username"), QString("romeo"));
    QCOMPARE(textAt(root, "password"), QString("a<b"));
    QCOMPARE(textAt(root, "email"), QString("a@b"));
    QVERIFY(!root.firstChildElement("zip").isNull());
    QVERIFY(root.firstChildElement("instructions").isNull());
}

void tst_XmppRegistrationForm::everyKindOfFieldIsShown_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isChecked");
    QTest::newRow("line") << "username" << int(KirvField::Text) << "Name"
                          << "" << false;
    QTest::newRow("password") << "password" << int(KirvField::Password) << "Secret"
                              << "" << false;
    QTest::newRow("ticked box") << "news" << int(KirvField::CheckBox) << "News"
                                << "" << true;
    QTest::newRow("box") << "rules" << int(KirvField::CheckBox) << "Rules"
                         << "" << false;
    QTest::newRow("choice") << "colour" << int(KirvField::Choice) << "Colour"
                            << "b" << false;
    QTest::newRow("option") << "pets/0" << int(KirvField::CheckBox) << "Dog"
                            << "" << false;
    QTest::newRow("chosen option") << "pets/1" << int(KirvField::CheckBox) << "Cat"
                                   << "" << true;
    QTest::newRow("lines") << "story" << int(KirvField::MultiLine) << "Story"
                           << "one\ntwo" << false;
    QTest::newRow("addresses") << "friends" << int(KirvField::MultiLine) << "friends"
                               << "a@b" << false;
    QTest::newRow("address") << "address" << int(KirvField::Text) << "Address"
                             << "c@d" << false;
    QTest::newRow("unknown kind") << "odd" << int(KirvField::Text) << "Odd"
                                  << "as it was" << false;
    QTest::newRow("no kind") << "untyped" << int(KirvField::Text) << "untyped"
                             << "" << false;
}

void tst_XmppRegistrationForm::everyKindOfFieldIsShown()
{
    QFETCH(QString, id);
    const KirvField field = fieldOf(form(dataForm), id);
    QTEST(int(field.getKind()), "kind");
    QTEST(field.getLabel(), "label");
    QTEST(field.getText(), "text");
    QTEST(field.isChecked(), "isChecked");
    QCOMPARE(field.isRequired(), id == "username" || id == "password");
    QCOMPARE(field.getToolTip(), id == "username" ? QString("A short one.") : QString());
    if (id == "colour") {
        QCOMPARE(field.getValues(), QStringList({ "r", "b" }));
        QCOMPARE(field.getDisplays(), QStringList({ "Red", "b" }));
    }
}

void tst_XmppRegistrationForm::notesHaveNamesOfTheirOwn()
{
    QStringList ids;
    QStringList texts;
    for (const KirvField &field : form(dataForm).fields()) {
        QVERIFY2(!ids.contains(field.getId()) && !field.getId().isEmpty(), qPrintable(field.getId()));
        ids << field.getId();
        if (field.getKind() == KirvField::Label)
            texts << field.getLabel() + '|' + field.getText();
    }
    QCOMPARE(texts, QStringList({ "|About\nyou", "Heading|", "|Pets" }));
    QVERIFY(!ids.contains("FORM_TYPE") && !ids.contains("many"));
}

void tst_XmppRegistrationForm::textsAboveTheFieldsAreRead()
{
    QCOMPARE(form(dataForm).title(), QString("Join <us>"));
    QCOMPARE(form(dataForm).instructions(), QString("First line.\nSecond line."));
    QCOMPARE(form("<instructions>Only here.</instructions><x xmlns='jabber:x:data'/>").instructions(),
             QString("Only here."));
}

void tst_XmppRegistrationForm::everyKindOfFieldIsSent_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("isChecked");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("values");
    QTest::newRow("line") << "username"
                          << "romeo" << false << "username" << QStringList { "romeo" };
    QTest::newRow("password") << "password"
                              << " s <&> " << false << "password" << QStringList { " s <&> " };
    QTest::newRow("box on") << "rules"
                            << "" << true << "rules" << QStringList { "1" };
    QTest::newRow("box off") << "news"
                             << "" << false << "news" << QStringList { "0" };
    QTest::newRow("choice") << "colour"
                            << "r" << false << "colour" << QStringList { "r" };
    QTest::newRow("options") << "pets/0"
                             << "" << true << "pets" << QStringList { "dog", "cat" };
    QTest::newRow("no option") << "pets/1"
                               << "" << false << "pets" << QStringList();
    QTest::newRow("lines") << "story"
                           << "a\nb\nc" << false << "story" << QStringList { "a", "b", "c" };
    QTest::newRow("unknown kind") << "odd"
                                  << "new" << false << "odd" << QStringList { "new" };
    QTest::newRow("hidden") << ""
                            << "" << false << "FORM_TYPE" << QStringList { "jabber:iq:register" };
    QTest::newRow("several hidden") << ""
                                    << "" << false << "many" << QStringList { "one", "two" };
}

void tst_XmppRegistrationForm::everyKindOfFieldIsSent()
{
    QFETCH(QString, id);
    QFETCH(QString, typed);
    QFETCH(bool, isChecked);
    QFETCH(QString, name);
    const KirvXmppRegistrationForm shown = form(dataForm);
    const QDomDocument query = shown.toQuery(filled(shown.fields(), id, typed, isChecked));
    QTEST(sentValues(query, name), "values");
}

void tst_XmppRegistrationForm::notesAreNotSent()
{
    const KirvXmppRegistrationForm shown = form(dataForm);
    const QByteArray sent = shown.toQuery(shown.fields()).toByteArray(-1);
    QVERIFY2(!sent.contains("note/") && !sent.contains("About") && !sent.contains("fixed"), sent.constData());
}

void tst_XmppRegistrationForm::theFormIsMarkedAsSubmitted()
{
    const KirvXmppRegistrationForm shown = form(dataForm);
    const QDomDocument query = shown.toQuery(shown.fields());
    const QDomElement sent = query.documentElement().firstChildElement("x");
    QCOMPARE(sent.attribute("type"), QString("submit"));
    QCOMPARE(sent.namespaceURI(), QString("jabber:x:data"));
}

void tst_XmppRegistrationForm::severalOptionsBecomeBoxes()
{
    const QByteArray many = "<x xmlns='jabber:x:data'><field type='list-multi' var='a/b' label='Choose'>"
                            "<option><value>1</value></option><option><value>1</value></option></field></x>";
    const KirvXmppRegistrationForm shown = form(many);
    QCOMPARE(shown.fields().size(), 3);
    QCOMPARE(sentValues(shown.toQuery(filled(shown.fields(), "a/b/1", "", true)), "a/b"), QStringList { "1" });
}

void tst_XmppRegistrationForm::picturesAreFound_data()
{
    QTest::addColumn<QByteArray>("uris");
    QTest::addColumn<QByteArray>("insideData");
    QTest::addColumn<QByteArray>("besidesData");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("address");
    const QByteArray bits = "<data xmlns='urn:xmpp:bob' cid='x@bob'>QUJD</data>";
    QTest::newRow("in the query") << QByteArray("<uri>cid:x@bob</uri>") << bits << QByteArray() << QByteArray("ABC")
                                  << "cid:x@bob";
    QTest::newRow("besides") << QByteArray("<uri> cid:x@bob\n</uri>") << QByteArray() << bits << QByteArray("ABC")
                             << "cid:x@bob";
    QTest::newRow("address only") << QByteArray("<uri>https://example.org/a.png</uri>") << QByteArray() << QByteArray()
                                  << QByteArray() << "https://example.org/a.png";
    QTest::newRow("data is preferred") << QByteArray("<uri>https://a/</uri><uri>cid:x@bob</uri><uri>https://b/</uri>")
                                       << bits << QByteArray() << QByteArray("ABC") << "cid:x@bob";
    QTest::newRow("other data") << QByteArray("<uri>cid:y@bob</uri>") << bits << QByteArray() << QByteArray()
                                << "cid:y@bob";
}

void tst_XmppRegistrationForm::picturesAreFound()
{
    QFETCH(QByteArray, uris);
    QFETCH(QByteArray, insideData);
    QFETCH(QByteArray, besidesData);
    const KirvXmppRegistrationForm shown =
        form("<x xmlns='jabber:x:data'><field var='ocr' label='What is there?'><media xmlns='urn:xmpp:media-element'>"
                 + uris + "</media></field><field var='plain'/></x>" + insideData,
             besidesData);
    QCOMPARE(shown.pictures().size(), 1);
    QCOMPARE(shown.pictures().first().label, QString("What is there?"));
    QTEST(shown.pictures().first().data, "data");
    QTEST(shown.pictures().first().address, "address");
}

void tst_XmppRegistrationForm::theAddressOfAPageIsRead()
{
    const KirvXmppRegistrationForm shown = form("<instructions>Go there.</instructions><x "
                                                "xmlns='jabber:x:oob'><url>https://example.org/&lt;join&gt;</url></x>");
    QCOMPARE(shown.address(), QString("https://example.org/<join>"));
    QVERIFY(shown.fields().isEmpty());
    QVERIFY(!shown.hasPassword());
}

void tst_XmppRegistrationForm::aReplyWithoutAFormHasNoFields()
{
    QVERIFY(KirvXmppRegistrationForm(QDomElement()).fields().isEmpty());
    QVERIFY(form("").fields().isEmpty());
    QVERIFY(form("<registered/><instructions/>").fields().isEmpty());
    const QDomDocument other = parsed("<iq><query xmlns='urn:other'><username/></query></iq>");
    QVERIFY(KirvXmppRegistrationForm(other.documentElement()).fields().isEmpty());
}

void tst_XmppRegistrationForm::whatWasTypedIsKept()
{
    const KirvXmppRegistrationForm shown = form(dataForm);
    QList<KirvField> typed = filled(form(fixedFields).fields(), "username", "romeo");
    typed << KirvField::checkBox("", "news", false, "") << KirvField::textEdit("", "colour", "r", "");
    const QList<KirvField> fields = shown.fieldsWith(typed, form(fixedFields).fields());
    QCOMPARE(fields.size(), shown.fields().size());
    for (int i = 0; i < fields.size(); ++i) {
        const QString id = fields.at(i).getId();
        const KirvField before = shown.fields().at(i);
        QCOMPARE(fields.at(i).getText(), id == "username" ? QString("romeo") : before.getText());
        QCOMPARE(fields.at(i).isChecked(), id != "news" && before.isChecked()); // another kind is another field
        QCOMPARE(fields.at(i).isRequired(), before.isRequired());
    }
}

void tst_XmppRegistrationForm::onlyWhatWasTypedIsKept()
{
    const QByteArray start = "<x xmlns='jabber:x:data'><field var='one'><value>";
    const QByteArray end = "</value></field><field var='ocr'><media xmlns='urn:xmpp:media-element'/></field></x>";
    const QList<KirvField> before = form(start + "old" + end).fields();
    const KirvXmppRegistrationForm shown = form(start + "new" + end);
    const auto textOf = [&](const QList<KirvField> &typed, int index) {
        return shown.fieldsWith(typed, before).at(index).getText();
    };
    QCOMPARE(textOf(before, 0), QString("new"));
    QCOMPARE(textOf(filled(before, "one", "mine"), 0), QString("mine"));
    QCOMPARE(textOf(filled(before, "one", ""), 0), QString());
    QCOMPARE(textOf(filled(before, "ocr", "what was in the old picture"), 1), QString());
}

void tst_XmppRegistrationForm::whatTheServerKnowsOnceIsSentOnce_data()
{
    QTest::addColumn<QByteArray>("query");
    QTest::addColumn<bool>("once");
    const QByteArray type = "<field type='hidden' var='FORM_TYPE'><value>jabber:iq:register</value></field>";
    const auto dataForm = [&type](const QByteArray &fields) {
        return "<x xmlns='jabber:x:data'>" + type + fields + "</x>";
    };
    QTest::newRow("name and password") << QByteArray("<username/><password/>") << false;
    QTest::newRow("key") << QByteArray("<username/><key>k</key>") << true;
    QTest::newRow("data form") << dataForm("<field var='username'/>") << false;
    QTest::newRow("hidden field") << dataForm("<field type='hidden' var='sid'><value>1</value></field>") << true;
    QTest::newRow("picture") << dataForm("<field var='ocr'><media xmlns='urn:xmpp:media-element'/></field>") << true;
}

void tst_XmppRegistrationForm::whatTheServerKnowsOnceIsSentOnce()
{
    QFETCH(QByteArray, query);
    QTEST(form(query).isSingleUse(), "once");
}

void tst_XmppRegistrationForm::whatIsMissingIsReported_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("part");
    QTest::newRow("nothing") << "story"
                             << "x"
                             << "";
    QTest::newRow("missing name") << "username"
                                  << ""
                                  << "Name";
    QTest::newRow("missing password") << "password"
                                      << ""
                                      << "Secret";
    QTest::newRow("control character") << "story" << QString("a") + QChar(7) << "cannot be sent";
    QTest::newRow("broken pair") << "untyped" << QString(QChar(0xdc00)) << "untyped";
}

void tst_XmppRegistrationForm::whatIsMissingIsReported()
{
    QFETCH(QString, id);
    QFETCH(QString, typed);
    QFETCH(QString, part);
    const KirvXmppRegistrationForm shown = form(dataForm);
    QList<KirvField> fields = filled(shown.fields(), "username", "romeo");
    fields = filled(filled(fields, "password", "secret"), id, typed);
    const QString problem = shown.problem(fields);
    QCOMPARE(problem.isEmpty(), part.isEmpty());
    QVERIFY2(problem.contains(part), qPrintable(problem));
}

void tst_XmppRegistrationForm::userNameIsTheFirstPartOfAnAddress()
{
    QList<KirvField> fields = filled(form(fixedFields).fields(), "username", " romeo@localhost");
    fields = filled(fields, "password", "a@b");
    QCOMPARE(KirvXmppRegistrationForm::userName(fields), QString("romeo"));
    QCOMPARE(KirvXmppRegistrationForm::password(fields), QString("a@b"));
    QCOMPARE(KirvXmppRegistrationForm::userName({}), QString());
}

QTEST_GUILESS_MAIN(tst_XmppRegistrationForm)
#include "tst_xmpp_registration_form.moc"
