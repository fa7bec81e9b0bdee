<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Accounts</name>
    <message>
        <source>Accounts</source>
        <translation>Konten</translation>
    </message>
    <message>
        <source>The check box of an account tells whether it is enabled.</source>
        <translation>Das Häkchen eines Kontos zeigt, ob es eingeschaltet ist.</translation>
    </message>
    <message>
        <source>Add an account that you already have</source>
        <translation>Ein Konto hinzufügen, das Sie schon haben</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Change the selected account</source>
        <translation>Das gewählte Konto ändern</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Bearbeiten …</translation>
    </message>
    <message>
        <source>Remove the selected account and all its data</source>
        <translation>Das gewählte Konto mit allen Daten entfernen</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Entfernen …</translation>
    </message>
    <message>
        <source>Create a new account on a server</source>
        <translation>Ein neues Konto auf einem Server anlegen</translation>
    </message>
    <message>
        <source>Re&amp;gister…</source>
        <translation>&amp;Registrieren …</translation>
    </message>
    <message>
        <source>&amp;Main account:</source>
        <translation>Ha&amp;uptkonto:</translation>
    </message>
    <message>
        <source>The account that the rest of the program works with</source>
        <translation>Das Konto, mit dem das übrige Programm arbeitet</translation>
    </message>
    <message>
        <source>Main account</source>
        <translation>Hauptkonto</translation>
    </message>
</context>
<context>
    <name>AddAccount</name>
    <message>
        <source>Add Account</source>
        <translation>Konto hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Configuration:</source>
        <translation>&amp;Vorlage:</translation>
    </message>
    <message>
        <source>A ready-made configuration fills in the settings for you</source>
        <translation>Eine Vorlage füllt die Einstellungen für Sie aus</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>&amp;Login:</source>
        <translation>&amp;Anmeldename:</translation>
    </message>
    <message>
        <source>The name under which you log in</source>
        <translation>Der Name, unter dem Sie sich anmelden</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Anmeldename</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>If this is off, you are asked for the password when the account logs in</source>
        <translation>Sonst werden Sie nach dem Passwort gefragt, wenn sich das Konto anmeldet</translation>
    </message>
    <message>
        <source>&amp;Remember password</source>
        <translation>Passwort &amp;merken</translation>
    </message>
    <message>
        <source>S&amp;tart as:</source>
        <translation>S&amp;tarten als:</translation>
    </message>
    <message>
        <source>The presence that the account takes when it logs in</source>
        <translation>Der Status, den das Konto bei der Anmeldung annimmt</translation>
    </message>
    <message>
        <source>Start as</source>
        <translation>Starten als</translation>
    </message>
</context>
<context>
    <name>EditAccount</name>
    <message>
        <source>Edit Account</source>
        <translation>Konto bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>&amp;Konto</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Konto:</translation>
    </message>
    <message>
        <source>Picture:</source>
        <translation>Bild:</translation>
    </message>
    <message>
        <source>A&amp;lias:</source>
        <translation>A&amp;lias:</translation>
    </message>
    <message>
        <source>The name shown for the account</source>
        <translation>Der Name, der für das Konto angezeigt wird</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>If this is off, you are asked for the password when the account logs in</source>
        <translation>Sonst werden Sie nach dem Passwort gefragt, wenn sich das Konto anmeldet</translation>
    </message>
    <message>
        <source>&amp;Remember password</source>
        <translation>Passwort &amp;merken</translation>
    </message>
    <message>
        <source>The account takes the presence and description that it had last</source>
        <translation>Das Konto nimmt Status und Beschreibung an, die es zuletzt hatte</translation>
    </message>
    <message>
        <source>Restore the last pr&amp;esence</source>
        <translation>Letzten &amp;Status wiederherstellen</translation>
    </message>
    <message>
        <source>The account takes the description that it had last</source>
        <translation>Das Konto nimmt die Beschreibung an, die es zuletzt hatte</translation>
    </message>
    <message>
        <source>Restore the last descript&amp;ion</source>
        <translation>Letzte &amp;Beschreibung wiederherstellen</translation>
    </message>
    <message>
        <source>S&amp;tart as:</source>
        <translation>S&amp;tarten als:</translation>
    </message>
    <message>
        <source>The presence that the account takes when it logs in</source>
        <translation>Der Status, den das Konto bei der Anmeldung annimmt</translation>
    </message>
    <message>
        <source>Start as</source>
        <translation>Starten als</translation>
    </message>
    <message>
        <source>Descriptio&amp;n:</source>
        <translation>Beschreib&amp;ung:</translation>
    </message>
    <message>
        <source>What your contacts read beside the presence</source>
        <translation>Was Ihre Kontakte neben dem Status lesen</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>P&amp;ublic Directory</source>
        <translation>Öffentliches &amp;Verzeichnis</translation>
    </message>
    <message>
        <source>Ask the server for your entry; changes that are not saved are lost</source>
        <translation>Den Server nach Ihrem Eintrag fragen; nicht gespeicherte Änderungen gehen verloren</translation>
    </message>
    <message>
        <source>&amp;Fetch Again</source>
        <translation>Erneut &amp;abrufen</translation>
    </message>
    <message>
        <source>Take your entry out of the directory</source>
        <translation>Ihren Eintrag aus dem Verzeichnis nehmen</translation>
    </message>
    <message>
        <source>&amp;Delete Entry…</source>
        <translation>Eintrag &amp;löschen …</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Zustand:</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Presence</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Pages of the account</source>
        <translation>Seiten des Kontos</translation>
    </message>
</context>
<context>
    <name>KirvAccount</name>
    <message>
        <source>A password could not be kept in the keyring. It is used until the program ends, and is kept when the keyring can be used.</source>
        <translation>Ein Passwort konnte nicht im Schlüsselbund abgelegt werden. Es wird bis zum Ende des Programms verwendet und abgelegt, sobald der Schlüsselbund verwendet werden kann.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 = a sentence, %2 = what the keyring says</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>other accounts connect first</source>
        <translation>andere Konten verbinden sich zuerst</translation>
    </message>
    <message>
        <source>the next try is at %1</source>
        <extracomment>%1 = time of day</extracomment>
        <translation>der nächste Versuch ist um %1</translation>
    </message>
    <message>
        <source>A password could not be stored. It is used until the program ends. %1</source>
        <extracomment>%1 = the reason, a sentence</extracomment>
        <translation>Ein Passwort konnte nicht gespeichert werden. Es wird verwendet, bis das Programm beendet wird. %1</translation>
    </message>
</context>
<context>
    <name>KirvAccountActionsMenu</name>
    <message>
        <source>&amp;Server Account</source>
        <translation>Server&amp;konto</translation>
    </message>
</context>
<context>
    <name>KirvAccountCheckList</name>
    <message>
        <source>&amp;All accounts</source>
        <translation>&amp;Alle Konten</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Konten</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>an account; %1 = its alias, %2 = its login</extracomment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>KirvAccountCollection</name>
    <message>
        <source>The account &quot;%1&quot; (%2) exists already.</source>
        <translation>Das Konto „%1“ (%2) gibt es schon.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; could not be created: the protocol %2 is not loaded.</source>
        <translation>Das Konto „%1“ konnte nicht angelegt werden: Das Protokoll %2 ist nicht geladen.</translation>
    </message>
    <message>
        <source>An account needs a login.</source>
        <translation>Ein Konto braucht einen Anmeldenamen.</translation>
    </message>
    <message>
        <source>The accounts &quot;%1&quot; and &quot;%2&quot; (%3) are the same to the server. Both are kept; remove the one that is not needed.</source>
        <extracomment>%1 and %2 are logins, %3 is the name of a protocol</extracomment>
        <translation>Die Konten „%1“ und „%2“ (%3) sind für den Server dasselbe. Beide bleiben erhalten; entfernen Sie das, das nicht gebraucht wird.</translation>
    </message>
    <message numerus="yes">
        <source>The same is true of %n further logins.</source>
        <translation>
            <numerusform>Für %n weiteren Anmeldenamen gilt dasselbe.</numerusform>
            <numerusform>Für %n weitere Anmeldenamen gilt dasselbe.</numerusform>
        </translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) exists already: it is the same as &quot;%3&quot; to the server.</source>
        <extracomment>%1 and %3 are two spellings of a login, %2 is the name of a protocol</extracomment>
        <translation>Das Konto „%1“ (%2) gibt es schon: Für den Server ist es dasselbe wie „%3“.</translation>
    </message>
    <message>
        <source>The pictures of the accounts could not be written into a temporary file.</source>
        <translation>Die Bilder der Konten konnten nicht in eine temporäre Datei geschrieben werden.</translation>
    </message>
    <message>
        <source>There is no account &quot;%1&quot; (%2) any more.</source>
        <translation>Das Konto „%1“ (%2) gibt es nicht mehr.</translation>
    </message>
</context>
<context>
    <name>KirvAccountExport</name>
    <message>
        <source>The password of the account &quot;%1&quot; (%2) is left out: it is in the keyring and could not be read.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>Das Passwort des Kontos „%1“ (%2) wird ausgelassen: Es ist im Schlüsselbund und konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Secret settings of the account &quot;%1&quot; (%2) are left out: they are in the keyring and could not be read.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>Geheime Einstellungen des Kontos „%1“ (%2) werden ausgelassen: Sie sind im Schlüsselbund und konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) is left out: it has texts that cannot be exported.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>Das Konto „%1“ (%2) wird ausgelassen: Texte darin können nicht exportiert werden.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) is left out: it could not be read, or is too large.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>Das Bild des Kontos „%1“ (%2) wird ausgelassen: Es konnte nicht gelesen werden oder ist zu groß.</translation>
    </message>
</context>
<context>
    <name>KirvAccountFile</name>
    <message>
        <source>The file is damaged, or it is not a file of exported accounts.</source>
        <translation>Die Datei ist beschädigt oder keine Datei mit exportierten Konten.</translation>
    </message>
    <message>
        <source>The passwords in the file are damaged, so nothing is imported from it.</source>
        <translation>Die Passwörter in der Datei sind beschädigt; daher wird nichts daraus importiert.</translation>
    </message>
    <message>
        <source>The file is too large. Up to %1 MB are possible.</source>
        <translation>Die Datei ist zu groß. Bis zu %1 MB sind möglich.</translation>
    </message>
    <message>
        <source>The file was made by a newer version of the program. This one cannot read it.</source>
        <translation>Die Datei wurde von einer neueren Version des Programms erstellt. Diese hier kann sie nicht lesen.</translation>
    </message>
    <message>
        <source>The file has too many accounts. Up to %1 are possible.</source>
        <translation>Die Datei enthält zu viele Konten. Bis zu %1 sind möglich.</translation>
    </message>
    <message>
        <source>Account %1 in the file is damaged: &quot;%2&quot; cannot be used.</source>
        <extracomment>%1 = number of an account in a file, %2 = name of a value that is stored there</extracomment>
        <translation>Konto %1 in der Datei ist beschädigt: „%2“ ist nicht brauchbar.</translation>
    </message>
    <message>
        <source>The file contains the account &quot;%1&quot; (%2) twice.</source>
        <extracomment>%1 = login, %2 = name of a protocol</extracomment>
        <translation>Die Datei enthält das Konto „%1“ (%2) zweimal.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) in the file is too large.</source>
        <translation>Das Bild des Kontos „%1“ (%2) in der Datei ist zu groß.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) is left out: it is of a kind that cannot be used.</source>
        <translation>Das Bild des Kontos „%1“ (%2) wird ausgelassen: Bilder dieser Art können nicht verwendet werden.</translation>
    </message>
    <message>
        <source>The file is damaged: its main account is not in it.</source>
        <translation>Die Datei ist beschädigt: Ihr Hauptkonto ist nicht darin.</translation>
    </message>
    <message>
        <source>The file contains no passwords that the pass phrase could decrypt. If it should contain some, somebody has changed it.</source>
        <translation>Die Datei enthält keine Passwörter; die Passphrase hat also nichts zu öffnen. Wenn sie welche enthalten müsste, hat jemand sie verändert.</translation>
    </message>
    <message>
        <source>The passwords in the file are left out, as they need its pass phrase.</source>
        <translation>Die Passwörter in der Datei werden ausgelassen, weil dafür ihre Passphrase nötig ist.</translation>
    </message>
    <message>
        <source>Decrypting the passwords in the file needs more memory or time than is allowed, so nothing is imported from it.</source>
        <translation>Um die Passwörter in der Datei zu öffnen, ist mehr Speicher oder Zeit nötig als erlaubt; daher wird nichts daraus importiert.</translation>
    </message>
    <message>
        <source>There is not enough memory to decrypt the passwords in the file.</source>
        <translation>Der Speicher reicht nicht aus, um die Passwörter in der Datei zu öffnen.</translation>
    </message>
    <message>
        <source>The pass phrase does not decrypt the passwords in the file.</source>
        <translation>Die Passphrase öffnet die Passwörter in der Datei nicht.</translation>
    </message>
    <message>
        <source>The accounts in the file were changed after it was written. They do not belong to its passwords any more, so nothing is imported from it.</source>
        <translation>Die Konten in der Datei wurden verändert, nachdem sie geschrieben wurde. Sie gehören nicht mehr zu den Passwörtern darin; daher wird nichts aus der Datei importiert.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) has texts or a picture that cannot be exported.</source>
        <translation>Texte oder das Bild des Kontos „%1“ (%2) können nicht exportiert werden.</translation>
    </message>
    <message>
        <source>There is not enough memory to encrypt the passwords.</source>
        <translation>Der Speicher reicht nicht aus, um die Passwörter zu verschlüsseln.</translation>
    </message>
    <message>
        <source>The file would have more than %1 MB or %2 accounts. Export fewer accounts at once.</source>
        <translation>Die Datei hätte mehr als %1 MB oder %2 Konten. Exportieren Sie weniger Konten auf einmal.</translation>
    </message>
</context>
<context>
    <name>KirvAccountGroup</name>
    <message>
        <source>Disabling Accounts</source>
        <translation>Konten deaktivieren</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to disable %n accounts? They are logged out.</source>
        <translation>
            <numerusform>Möchten Sie ein Konto deaktivieren? Es wird abgemeldet.</numerusform>
            <numerusform>Möchten Sie %n Konten deaktivieren? Sie werden abgemeldet.</numerusform>
        </translation>
    </message>
    <message>
        <source>Removing Accounts</source>
        <translation>Konten entfernen</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to remove %n accounts and all related data?</source>
        <translation>
            <numerusform>Möchten Sie ein Konto mit allen zugehörigen Daten entfernen?</numerusform>
            <numerusform>Möchten Sie %n Konten mit allen zugehörigen Daten entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Disabling All Accounts</source>
        <translation>Alle Konten deaktivieren</translation>
    </message>
    <message>
        <source>Do you want to disable all accounts? They are logged out.</source>
        <translation>Möchten Sie alle Konten deaktivieren? Sie werden abgemeldet.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und eines mehr</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvAccountHistory</name>
    <message>
        <source>The account &quot;%1&quot; cannot be enabled again: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Das Konto „%1“ kann nicht wieder aktiviert werden: Es wurde entfernt.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be restored to what it was before the import: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Das Konto „%1“ kann nicht wieder werden, was es vor dem Import war: Es wurde entfernt.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be imported again: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Das Konto „%1“ kann nicht noch einmal importiert werden: Es wurde entfernt.</translation>
    </message>
</context>
<context>
    <name>KirvAccountImport</name>
    <message>
        <source>The file contains this login twice: &quot;%1&quot; is the same as &quot;%2&quot; to the server.</source>
        <extracomment>%1 and %2 are logins, which may be spelt the same</extracomment>
        <translation>Die Datei enthält diesen Anmeldenamen zweimal: „%1“ ist für den Server dasselbe wie „%2“.</translation>
    </message>
    <message>
        <source>The account has no login.</source>
        <translation>Das Konto hat keinen Anmeldenamen.</translation>
    </message>
    <message>
        <source>The protocol %1 is not loaded.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>Das Protokoll %1 ist nicht geladen.</translation>
    </message>
    <message>
        <source>Another account with this login was added or removed in the meantime.</source>
        <translation>Inzwischen wurde ein anderes Konto mit diesem Anmeldenamen hinzugefügt oder entfernt.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be imported. %2</source>
        <extracomment>%1 = login, %2 = a sentence</extracomment>
        <translation>Das Konto „%1“ kann nicht importiert werden. %2</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; was left out. %2</source>
        <extracomment>%1 = name of an account, %2 = a sentence</extracomment>
        <translation>Das Bild des Kontos „%1“ wurde ausgelassen. %2</translation>
    </message>
    <message>
        <source>Stored passwords of the account &quot;%1&quot; are not kept, because its settings in the file differ. They must be entered again.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Gespeicherte Passwörter des Kontos „%1“ werden nicht behalten, weil seine Einstellungen in der Datei andere sind. Sie müssen neu eingegeben werden.</translation>
    </message>
</context>
<context>
    <name>KirvAccountInvitation</name>
    <message>
        <source>Add an Account</source>
        <translation>Konto hinzufügen</translation>
    </message>
    <message>
        <source>Register a New One…</source>
        <translation>Neues registrieren …</translation>
    </message>
    <message>
        <source>Create a new account on a server</source>
        <translation>Ein neues Konto auf einem Server anlegen</translation>
    </message>
    <message>
        <source>Add an account that you already have</source>
        <translation>Ein Konto hinzufügen, das Sie schon haben</translation>
    </message>
    <message>
        <source>No protocol is loaded. Load one on the Plug-ins page.</source>
        <translation>Kein Protokoll ist geladen. Laden Sie eines auf der Seite „Module“.</translation>
    </message>
    <message>
        <source>Take accounts over from a file</source>
        <translation>Konten aus einer Datei übernehmen</translation>
    </message>
    <message>
        <source>Take the accounts of Pidgin over; its own file is only read</source>
        <translation>Die Konten von Pidgin übernehmen; dessen eigene Datei wird nur gelesen</translation>
    </message>
    <message>
        <source>There is no account yet. Add one that you already have, register a new one, or import accounts from a file.</source>
        <translation>Es gibt noch kein Konto. Fügen Sie eines hinzu, das Sie schon haben, registrieren Sie ein neues, oder importieren Sie Konten aus einer Datei.</translation>
    </message>
    <message>
        <source>There is no account yet. Add one that you already have, register a new one, or import accounts. There are accounts of Pidgin on this computer.</source>
        <translation>Es gibt noch kein Konto. Fügen Sie eines hinzu, das Sie schon haben, registrieren Sie ein neues, oder importieren Sie Konten. Auf diesem Rechner gibt es Konten von Pidgin.</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>Import from Pidgin…</source>
        <translation>Aus Pidgin importieren …</translation>
    </message>
</context>
<context>
    <name>KirvAccountLog</name>
    <message>
        <source>Off line</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Verbindet</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Logging out</source>
        <translation>Meldet sich ab</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>The program requests a log-in</source>
        <translation>Das Programm fordert eine Anmeldung an</translation>
    </message>
    <message>
        <source>The program changes the presence</source>
        <translation>Das Programm ändert den Status</translation>
    </message>
    <message>
        <source>The program requests a log-out</source>
        <translation>Das Programm fordert eine Abmeldung an</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>%1 erfolgt</translation>
    </message>
    <message>
        <source>%1 begins</source>
        <translation>%1 beginnt</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = an event, as &quot;Connected&quot;, %2 = more about it</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>KirvAccountLogWindow</name>
    <message>
        <source>Log of %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Ereignisprotokoll von %1</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copies the selected entries, or all when none is selected. They hold no passwords.</source>
        <translation>Kopiert die ausgewählten Einträge oder alle, wenn keiner ausgewählt ist. Sie enthalten keine Passwörter.</translation>
    </message>
    <message>
        <source>&amp;Report…</source>
        <translation>&amp;Bericht …</translation>
    </message>
    <message>
        <source>Puts the log and the versions of the program together for somebody who helps.</source>
        <translation>Stellt das Ereignisprotokoll und die Versionen des Programms für jemanden zusammen, der hilft.</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <extracomment>%1 = time of day, %2 = an event</extracomment>
        <translation>%1  %2</translation>
    </message>
</context>
<context>
    <name>KirvAccountNames</name>
    <message>
        <source>There is no account &quot;%1&quot;.</source>
        <translation>Es gibt kein Konto „%1“.</translation>
    </message>
    <message>
        <source>Several accounts are called &quot;%1&quot;. Name one of them with its protocol: %2</source>
        <extracomment>%1 = what was typed, %2 = names that could be meant</extracomment>
        <translation>Mehrere Konten heißen „%1“. Nennen Sie eines davon mit seinem Protokoll: %2</translation>
    </message>
</context>
<context>
    <name>KirvAccountRowStates</name>
    <message>
        <source>%1, %2</source>
        <extracomment>read aloud for a row: %1 = name of an account, %2 = its state</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>KirvAccountSearch</name>
    <message>
        <source>Search accounts</source>
        <translation>Konten suchen</translation>
    </message>
    <message>
        <source>Search accounts, or “%1”…</source>
        <extracomment>%1 = the word that finds accounts whose state needs attention</extracomment>
        <translation>Konten suchen, oder „%1“…</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Shows the accounts with these words in their alias, login, protocol or state</source>
        <translation>Zeigt die Konten mit diesen Wörtern in Alias, Anmeldename, Protokoll oder Zustand</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>how many accounts a search shows, as &quot;3 of 120&quot;</extracomment>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>KirvAccountStatus</name>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Logging out…</source>
        <translation>Meldet sich ab …</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Verbindet …</translation>
    </message>
    <message>
        <source>Off line</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Ausgeschaltet</translation>
    </message>
    <message>
        <source>Its plug-in is not loaded</source>
        <translation>Sein Modul ist nicht geladen</translation>
    </message>
    <message>
        <source>Waiting to connect…</source>
        <extracomment>other accounts connect first</extracomment>
        <translation>Wartet auf die Verbindung …</translation>
    </message>
    <message>
        <source>Waiting, next try in %1 s</source>
        <extracomment>%1 = number of seconds; keep it short</extracomment>
        <translation>Wartet, nächster Versuch in %1 s</translation>
    </message>
    <message>
        <source>Waiting, next try in %1 min</source>
        <extracomment>%1 = number of minutes; keep it short</extracomment>
        <translation>Wartet, nächster Versuch in %1 min</translation>
    </message>
    <message>
        <source>Waiting, next try at %1</source>
        <extracomment>%1 = time of day</extracomment>
        <translation>Wartet, nächster Versuch um %1</translation>
    </message>
    <message>
        <source>main account</source>
        <translation>Hauptkonto</translation>
    </message>
    <message>
        <source> · </source>
        <extracomment>between the parts of the line below the name of an account, as in &quot;Connected · Away · main account&quot;</extracomment>
        <translation> · </translation>
    </message>
    <message>
        <source>The account is logged out. It can be logged in with Reconnect.</source>
        <translation>Das Konto ist abgemeldet. Es kann mit „Neu verbinden“ angemeldet werden.</translation>
    </message>
    <message>
        <source>The account does not log in. It can be enabled with its check box.</source>
        <translation>Das Konto meldet sich nicht an. Es kann mit seinem Kästchen aktiviert werden.</translation>
    </message>
    <message>
        <source>The plug-in of the protocol %1 is not loaded. Load it on the Plug-ins page.</source>
        <translation>Das Modul des Protokolls %1 ist nicht geladen. Laden Sie es auf der Seite „Module“.</translation>
    </message>
    <message>
        <source>Other accounts connect first.</source>
        <translation>Andere Konten verbinden sich zuerst.</translation>
    </message>
    <message>
        <source>The next try is at %1.</source>
        <translation>Der nächste Versuch ist um %1.</translation>
    </message>
    <message>
        <source>The presence is %1.</source>
        <translation>Der Status ist %1.</translation>
    </message>
    <message>
        <source>Since %1.</source>
        <extracomment>%1 = time of day, or date and time, since when a connection has been in its state</extracomment>
        <translation>Seit %1.</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Falsches Passwort</translation>
    </message>
    <message>
        <source>Password needed</source>
        <translation>Passwort nötig</translation>
    </message>
    <message>
        <source>Server not found</source>
        <translation>Server nicht gefunden</translation>
    </message>
    <message>
        <source>Server not reachable</source>
        <translation>Server nicht erreichbar</translation>
    </message>
    <message>
        <source>No reply from the server</source>
        <translation>Keine Antwort vom Server</translation>
    </message>
    <message>
        <source>Certificate not trusted</source>
        <translation>Zertifikat nicht vertrauenswürdig</translation>
    </message>
    <message>
        <source>Encryption not offered</source>
        <translation>Keine Verschlüsselung angeboten</translation>
    </message>
    <message>
        <source>No usable log-in offered</source>
        <translation>Keine brauchbare Anmeldung angeboten</translation>
    </message>
    <message>
        <source>Server not available</source>
        <translation>Server nicht verfügbar</translation>
    </message>
    <message>
        <source>Connection lost</source>
        <translation>Verbindung verloren</translation>
    </message>
    <message>
        <source>Connection closed by the server</source>
        <translation>Verbindung vom Server geschlossen</translation>
    </message>
    <message>
        <source>Logged in elsewhere</source>
        <translation>Anderswo angemeldet</translation>
    </message>
    <message>
        <source>Name in use</source>
        <translation>Name vergeben</translation>
    </message>
    <message>
        <source>Name not allowed</source>
        <translation>Name nicht erlaubt</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Zugang verweigert</translation>
    </message>
    <message>
        <source>Settings cannot be used</source>
        <translation>Einstellungen nicht benutzbar</translation>
    </message>
    <message>
        <source>Not supported by the server</source>
        <translation>Vom Server nicht unterstützt</translation>
    </message>
    <message>
        <source>Log-in failed</source>
        <translation>Anmeldung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Enter the password again, or edit the account if the login is wrong.</source>
        <translation>Geben Sie das Passwort erneut ein, oder bearbeiten Sie das Konto, wenn der Anmeldename falsch ist.</translation>
    </message>
    <message>
        <source>Enter the password.</source>
        <translation>Geben Sie das Passwort ein.</translation>
    </message>
    <message>
        <source>Edit the account to change its settings.</source>
        <translation>Bearbeiten Sie das Konto, um seine Einstellungen zu ändern.</translation>
    </message>
    <message>
        <source>It can be logged in here again with Reconnect.</source>
        <translation>Es kann mit „Neu verbinden“ hier wieder angemeldet werden.</translation>
    </message>
    <message>
        <source>It can be tried again with Reconnect.</source>
        <translation>Mit „Neu verbinden“ kann es erneut versucht werden.</translation>
    </message>
    <message>
        <source>Protection: %1.</source>
        <translation>Schutz: %1.</translation>
    </message>
    <message>
        <source>Proxy not reachable</source>
        <translation>Proxy nicht erreichbar</translation>
    </message>
    <message>
        <source>No reply from the proxy</source>
        <translation>Keine Antwort vom Proxy</translation>
    </message>
    <message>
        <source>Log-in refused by the proxy</source>
        <translation>Anmeldung vom Proxy abgelehnt</translation>
    </message>
    <message>
        <source>Denied by the proxy</source>
        <translation>Vom Proxy verweigert</translation>
    </message>
    <message>
        <source>Proxy failed</source>
        <translation>Proxy fehlgeschlagen</translation>
    </message>
    <message>
        <source>Look at it with Show Certificate.</source>
        <translation>Sehen Sie es sich mit „Zertifikat anzeigen“ an.</translation>
    </message>
    <message>
        <source>It is another one than the one that you have trusted.</source>
        <translation>Es ist ein anderes als das, dem Sie vertraut haben.</translation>
    </message>
</context>
<context>
    <name>KirvAccountStrip</name>
    <message>
        <source>Enter Password…</source>
        <translation>Passwort eingeben …</translation>
    </message>
    <message>
        <source>Takes another password and logs the account in with it.</source>
        <translation>Nimmt ein anderes Passwort und meldet das Konto damit an.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Neu verbinden</translation>
    </message>
    <message>
        <source>Logs the account out and in again.</source>
        <translation>Meldet das Konto ab und wieder an.</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Bearbeiten …</translation>
    </message>
    <message>
        <source>Change the account</source>
        <translation>Das Konto ändern</translation>
    </message>
    <message>
        <source>Reason of the state of the account</source>
        <translation>Grund für den Zustand des Kontos</translation>
    </message>
    <message>
        <source>No account is selected.</source>
        <translation>Kein Konto ist ausgewählt.</translation>
    </message>
    <message>
        <source>State of %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Zustand von %1</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts are selected.</source>
        <translation>
            <numerusform>Ein Konto ist ausgewählt.</numerusform>
            <numerusform>%n Konten sind ausgewählt.</numerusform>
        </translation>
    </message>
    <message>
        <source>They can be enabled, disabled and removed with the context menu.</source>
        <translation>Sie können mit dem Kontextmenü aktiviert, deaktiviert und entfernt werden.</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Ereignisprotokoll</translation>
    </message>
    <message>
        <source>Shows what happened to the account&apos;s connection.</source>
        <translation>Zeigt, was mit der Verbindung des Kontos geschehen ist.</translation>
    </message>
    <message>
        <source>What Is Wrong?</source>
        <translation>Was stimmt nicht?</translation>
    </message>
    <message>
        <source>Tries each step of the log-in with what is stored, beside the account&apos;s own connection.</source>
        <translation>Versucht jeden Schritt der Anmeldung mit dem, was gespeichert ist, neben der eigenen Verbindung des Kontos.</translation>
    </message>
    <message>
        <source>Show Certificate…</source>
        <translation>Zertifikat anzeigen …</translation>
    </message>
    <message>
        <source>Shows the certificate of the server and asks whether it is trusted.</source>
        <translation>Zeigt das Zertifikat des Servers und fragt, ob ihm vertraut wird.</translation>
    </message>
</context>
<context>
    <name>KirvAccountUndo</name>
    <message numerus="yes">
        <source>&amp;Undo Removing %n Accounts</source>
        <translation>
            <numerusform>Entfernen eines Kontos &amp;rückgängig machen</numerusform>
            <numerusform>Entfernen von %n Konten &amp;rückgängig machen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Disabling %n Accounts</source>
        <translation>
            <numerusform>Deaktivieren eines Kontos &amp;rückgängig machen</numerusform>
            <numerusform>Deaktivieren von %n Konten &amp;rückgängig machen</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Undo Removing %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Entfernen von %1 &amp;rückgängig machen</translation>
    </message>
    <message>
        <source>&amp;Undo Disabling %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Deaktivieren von %1 &amp;rückgängig machen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were removed.</source>
        <translation>
            <numerusform>Ein Konto wurde entfernt.</numerusform>
            <numerusform>%n Konten wurden entfernt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were disabled.</source>
        <translation>
            <numerusform>Ein Konto wurde deaktiviert.</numerusform>
            <numerusform>%n Konten wurden deaktiviert.</numerusform>
        </translation>
    </message>
    <message>
        <source>The account %1 (%2) was removed.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>Das Konto %1 (%2) wurde entfernt.</translation>
    </message>
    <message>
        <source>The account %1 (%2) was disabled.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>Das Konto %1 (%2) wurde deaktiviert.</translation>
    </message>
    <message>
        <source>&amp;Undo Importing %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Importieren von %1 &amp;rückgängig machen</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Importing %n Accounts</source>
        <translation>
            <numerusform>Importieren eines Kontos &amp;rückgängig machen</numerusform>
            <numerusform>Importieren von %n Konten &amp;rückgängig machen</numerusform>
        </translation>
    </message>
    <message>
        <source>The account %1 (%2) was imported.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>Das Konto %1 (%2) wurde importiert.</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were imported.</source>
        <translation>
            <numerusform>Ein Konto wurde importiert.</numerusform>
            <numerusform>%n Konten wurden importiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Import Again</source>
        <translation>&amp;Erneut importieren</translation>
    </message>
    <message>
        <source>The import of the account %1 (%2) was undone.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>Der Import des Kontos %1 (%2) wurde rückgängig gemacht.</translation>
    </message>
    <message numerus="yes">
        <source>The import of %n accounts was undone.</source>
        <translation>
            <numerusform>Der Import von %n Konto wurde rückgängig gemacht.</numerusform>
            <numerusform>Der Import von %n Konten wurde rückgängig gemacht.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvAccountsCommand</name>
    <message>
        <source>The profile in &quot;%1&quot; is open in another program, which does not take commands.</source>
        <translation>Das Profil in „%1“ ist in einem anderen Programm geöffnet, das keine Befehle annimmt.</translation>
    </message>
    <message>
        <source>There is no profile in &quot;%1&quot; yet.</source>
        <translation>In „%1“ gibt es noch kein Profil.</translation>
    </message>
    <message>
        <source>The program that runs with this profile does not respond.</source>
        <translation>Das Programm, das mit diesem Profil läuft, antwortet nicht.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsOptions</name>
    <message>
        <source>Print one line of JSON.</source>
        <translation>Eine Zeile JSON ausgeben.</translation>
    </message>
    <message>
        <source>Export: put passwords into the file, encrypted with a pass phrase.</source>
        <translation>Export: Passwörter mit in die Datei schreiben, verschlüsselt mit einer Passphrase.</translation>
    </message>
    <message>
        <source>Export: overwrite a file that is there.</source>
        <translation>Export: eine vorhandene Datei überschreiben.</translation>
    </message>
    <message>
        <source>Import: leave out the passwords that are in the file.</source>
        <translation>Import: die Passwörter auslassen, die in der Datei sind.</translation>
    </message>
    <message>
        <source>Import: replace accounts that exist by those of the file.</source>
        <translation>Import: vorhandene Konten durch die aus der Datei ersetzen.</translation>
    </message>
    <message>
        <source>Import: say what would be done, and change nothing.</source>
        <translation>Import: ausgeben, was getan würde, und nichts ändern.</translation>
    </message>
    <message>
        <source>Export and import: the pass phrase is the first line of &lt;file&gt;.</source>
        <translation>Export und Import: Die Passphrase ist die erste Zeile von &lt;Datei&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Export and import: the pass phrase is the first line that can be read from the file descriptor &lt;number&gt;.</source>
        <translation>Export und Import: Die Passphrase ist die erste Zeile, die vom Dateideskriptor &lt;Nummer&gt; gelesen werden kann.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Lists, enables, disables, exports and imports accounts.
An account is named PROTOCOL:ID, or by its id when no other account has the same.

  accounts list [account…]
  accounts enable account…
  accounts disable account…
  accounts export file [account…]
  accounts import file

A file is called - where the standard output or input is meant.</source>
        <translation>Listet, aktiviert, deaktiviert, exportiert und importiert Konten.
Ein Konto wird als PROTOKOLL:ID angegeben oder nur mit seiner ID, wenn kein anderes Konto dieselbe hat.

  accounts list [Konto…]
  accounts enable Konto…
  accounts disable Konto…
  accounts export Datei [Konto…]
  accounts import Datei

Für die Standardausgabe oder -eingabe steht - anstelle einer Datei.</translation>
    </message>
    <message>
        <source>list, enable, disable, export or import.</source>
        <translation>list, enable, disable, export oder import.</translation>
    </message>
    <message>
        <source>A file or an account.</source>
        <translation>Eine Datei oder ein Konto.</translation>
    </message>
    <message>
        <source>[argument…]</source>
        <translation>[Argument…]</translation>
    </message>
    <message>
        <source>The command is missing: list, enable, disable, export or import.</source>
        <translation>Der Befehl fehlt: list, enable, disable, export oder import.</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; is not known: it can be list, enable, disable, export or import.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>Der Befehl „%1“ ist nicht bekannt: Möglich sind list, enable, disable, export und import.</translation>
    </message>
    <message>
        <source>The option --%1 does not belong to the command &quot;%2&quot;.</source>
        <extracomment>%1 = name of an option, %2 = name of a command</extracomment>
        <translation>Die Option --%1 gehört nicht zum Befehl „%2“.</translation>
    </message>
    <message>
        <source>The file is missing.</source>
        <translation>Die Datei fehlt.</translation>
    </message>
    <message>
        <source>The argument &quot;%1&quot; is not known.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>Das Argument „%1“ ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The account is missing.</source>
        <translation>Das Konto fehlt.</translation>
    </message>
    <message>
        <source>The option --json cannot be used when the file goes to the standard output.</source>
        <translation>Die Option --json kann nicht benutzt werden, wenn die Datei auf die Standardausgabe geschrieben wird.</translation>
    </message>
    <message>
        <source>A pass phrase is of no use when no passwords are exported or imported.</source>
        <translation>Eine Passphrase nützt nichts, wenn keine Passwörter mitgenommen werden.</translation>
    </message>
    <message>
        <source>The file with the pass phrase is missing.</source>
        <translation>Die Datei mit der Passphrase fehlt.</translation>
    </message>
    <message>
        <source>The option --pass-phrase-fd needs the number of a file descriptor.</source>
        <translation>Die Option --pass-phrase-fd braucht die Nummer eines Dateideskriptors.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsPageCompanion</name>
    <message>
        <source>The plug-in of the protocol %1 is not loaded. Load it on the Plug-ins page.</source>
        <translation>Das Modul des Protokolls %1 ist nicht geladen. Laden Sie es auf der Seite „Module“.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsService</name>
    <message>
        <source>The account is missing.</source>
        <translation>Das Konto fehlt.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsText</name>
    <message>
        <source>There are no accounts.</source>
        <translation>Es gibt keine Konten.</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Main</source>
        <translation>Hauptkonto</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>%1 is enabled now.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>%1 ist jetzt aktiviert.</translation>
    </message>
    <message>
        <source>%1 is disabled now.</source>
        <translation>%1 ist jetzt deaktiviert.</translation>
    </message>
    <message>
        <source>%1 was enabled already.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>%1 war schon aktiviert.</translation>
    </message>
    <message>
        <source>%1 was disabled already.</source>
        <translation>%1 war schon deaktiviert.</translation>
    </message>
    <message>
        <source>Accounts exported: %1, with the passwords that are stored.</source>
        <extracomment>%1 = number</extracomment>
        <translation>Exportierte Konten: %1, mit den gespeicherten Passwörtern.</translation>
    </message>
    <message>
        <source>Accounts exported: %1, without passwords.</source>
        <translation>Exportierte Konten: %1, ohne Passwörter.</translation>
    </message>
    <message>
        <source>new</source>
        <translation>neu</translation>
    </message>
    <message>
        <source>replaces %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>ersetzt %1</translation>
    </message>
    <message>
        <source>%1 is kept</source>
        <translation>%1 bleibt erhalten</translation>
    </message>
    <message>
        <source>Accounts that would be imported: %1. Nothing was changed.</source>
        <extracomment>%1 = number</extracomment>
        <translation>Konten, die importiert würden: %1. Nichts wurde geändert.</translation>
    </message>
    <message>
        <source>Accounts imported: %1.</source>
        <translation>Importierte Konten: %1.</translation>
    </message>
</context>
<context>
    <name>KirvAddWindowCompanion</name>
    <message>
        <source>Add %1 Account</source>
        <extracomment>%1 = the name of a protocol</extracomment>
        <translation>%1-Konto hinzufügen</translation>
    </message>
    <message>
        <source>Save Without a Password</source>
        <translation>Ohne Passwort speichern</translation>
    </message>
    <message>
        <source>The login is missing.</source>
        <translation>Der Anmeldename fehlt.</translation>
    </message>
    <message>
        <source>The login and the password are missing.</source>
        <translation>Anmeldename und Passwort fehlen.</translation>
    </message>
    <message>
        <source>The account can be used without a password.</source>
        <translation>Das Konto kann ohne Passwort verwendet werden.</translation>
    </message>
    <message>
        <source>The password is missing.</source>
        <translation>Das Passwort fehlt.</translation>
    </message>
</context>
<context>
    <name>KirvAdvancedSection</name>
    <message>
        <source>, </source>
        <comment>between names of settings</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>%1…</source>
        <extracomment>%1 = the names of the first settings</extracomment>
        <translation>%1…</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
</context>
<context>
    <name>KirvAliasEditor</name>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
</context>
<context>
    <name>KirvApplication</name>
    <message>
        <source>Kirv</source>
        <translation>Kirv</translation>
    </message>
</context>
<context>
    <name>KirvAvatarFolder</name>
    <message>
        <source>The picture &quot;%1&quot; could not be copied into the profile: %2</source>
        <translation>Das Bild „%1“ konnte nicht ins Profil kopiert werden: %2</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be written.</source>
        <translation>In den Ordner „%1“ kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>KirvAvatarQuickSetWidget</name>
    <message>
        <source>Picture of the account</source>
        <translation>Bild des Kontos</translation>
    </message>
    <message>
        <source>Click to choose a picture, or drop or paste one here</source>
        <translation>Klicken Sie, um ein Bild zu wählen, oder ziehen oder fügen Sie eines hier ein</translation>
    </message>
    <message>
        <source>&amp;Choose Picture…</source>
        <translation>Bild &amp;wählen …</translation>
    </message>
    <message>
        <source>&amp;Paste Picture</source>
        <translation>Bild &amp;einfügen</translation>
    </message>
    <message>
        <source>&amp;Remove Picture</source>
        <translation>Bild ent&amp;fernen</translation>
    </message>
    <message>
        <source>Choose Picture</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The picture cannot be stored on this computer.</source>
        <translation>Das Bild kann auf diesem Rechner nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Picture of the Account</source>
        <translation>Bild des Kontos</translation>
    </message>
</context>
<context>
    <name>KirvBoundedImage</name>
    <message>
        <source>The picture is too large: %1 × %2 pixels. Up to %3 million pixels are possible.</source>
        <translation>Das Bild ist zu groß: %1 × %2 Bildpunkte. Bis zu %3 Millionen sind möglich.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read.</source>
        <translation>Die Datei „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is too large. Up to %2 MB are possible.</source>
        <translation>Die Datei „%1“ ist zu groß. Bis zu %2 MB sind möglich.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is not a picture that can be used. Pictures in the formats PNG, JPEG, GIF, BMP and WebP are possible.</source>
        <translation>Die Datei „%1“ ist kein brauchbares Bild. Möglich sind Bilder in den Formaten PNG, JPEG, GIF, BMP und WebP.</translation>
    </message>
    <message>
        <source>The picture in the file &quot;%1&quot; is damaged.</source>
        <translation>Das Bild in der Datei „%1“ ist beschädigt.</translation>
    </message>
    <message>
        <source>There is no picture that can be used.</source>
        <translation>Es gibt kein brauchbares Bild.</translation>
    </message>
</context>
<context>
    <name>KirvCertificateQuestion</name>
    <message>
        <source>Trusted Certificate</source>
        <extracomment>%1 = name of a server</extracomment>
        <translation>Vertrautes Zertifikat</translation>
    </message>
    <message>
        <source>Certificate of %1</source>
        <translation>Zertifikat von %1</translation>
    </message>
    <message>
        <source>What is wrong with the certificate</source>
        <translation>Was an dem Zertifikat nicht stimmt</translation>
    </message>
    <message>
        <source>Somebody between you and the server could read your password.</source>
        <translation>Jemand zwischen Ihnen und dem Server könnte Ihr Passwort lesen.</translation>
    </message>
    <message>
        <source>You have chosen to trust this certificate for the account %1.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Sie haben sich entschieden, diesem Zertifikat für das Konto %1 zu vertrauen.</translation>
    </message>
    <message>
        <source>The server shows another certificate than the one that you have trusted for the account %1.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Der Server zeigt ein anderes Zertifikat als das, dem Sie für das Konto %1 vertraut haben.</translation>
    </message>
    <message>
        <source>The certificate of the server of the account %1 is not trusted.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Dem Zertifikat des Servers, auf dem das Konto %1 liegt, wird nicht vertraut.</translation>
    </message>
    <message>
        <source>Trusted so far</source>
        <extracomment>the fingerprint of the certificate that was trusted so far</extracomment>
        <translation>Bisher vertraut</translation>
    </message>
    <message>
        <source>%1:</source>
        <extracomment>the caption of a line: %1 = what it is about</extracomment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>&amp;Trust for This Account</source>
        <translation>Für dieses Konto &amp;vertrauen</translation>
    </message>
    <message>
        <source>&amp;Stop Trusting</source>
        <translation>Nicht mehr &amp;vertrauen</translation>
    </message>
    <message>
        <source>&amp;Do Not Connect</source>
        <translation>&amp;Nicht verbinden</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>KirvClient</name>
    <message>
        <source>Accounts</source>
        <translation>Konten</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Module</translation>
    </message>
    <message>
        <source>There is no folder %1, so no protocol is available.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation>Den Ordner %1 gibt es nicht, daher ist kein Protokoll verfügbar.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = name of an account, %2 = one or more sentences about it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The link cannot be opened: the protocol %1 is not available.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>Die Verknüpfung kann nicht geöffnet werden: Das Protokoll %1 ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>%1 is the main account now, because %2 was removed.</source>
        <translation>%1 ist jetzt das Hauptkonto, weil %2 entfernt wurde.</translation>
    </message>
    <message>
        <source>%1 is the main account now, because %2 was disabled.</source>
        <translation>%1 ist jetzt das Hauptkonto, weil %2 deaktiviert wurde.</translation>
    </message>
    <message>
        <source>One password was moved to your keyring.</source>
        <translation>Ein Passwort wurde in Ihren Schlüsselbund verschoben.</translation>
    </message>
    <message numerus="yes">
        <source>%n passwords were moved to your keyring.</source>
        <translation>
            <numerusform>Ein Passwort wurde in Ihren Schlüsselbund verschoben.</numerusform>
            <numerusform>%n Passwörter wurden in Ihren Schlüsselbund verschoben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n passwords were moved to your keyring, which is %1.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>
            <numerusform>Ein Passwort wurde in Ihren Schlüsselbund verschoben (%1).</numerusform>
            <numerusform>%n Passwörter wurden in Ihren Schlüsselbund verschoben (%1).</numerusform>
        </translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>The link was not opened because another window waits for an answer. Close that, and open the link again.</source>
        <translation>Die Verknüpfung wurde nicht geöffnet, weil ein anderes Fenster auf eine Antwort wartet. Schließen Sie dieses, und öffnen Sie die Verknüpfung erneut.</translation>
    </message>
    <message>
        <source>The link was not opened because it is too long.</source>
        <translation>Der Link wurde nicht geöffnet, weil er zu lang ist.</translation>
    </message>
</context>
<context>
    <name>KirvClientOptions</name>
    <message>
        <source>The option --%1 needs a folder.</source>
        <extracomment>%1 = name of an option</extracomment>
        <translation>Die Option --%1 braucht einen Ordner.</translation>
    </message>
    <message>
        <source>Keep accounts and settings in &lt;folder&gt; instead of the user&apos;s own profile.</source>
        <translation>Konten und Einstellungen in &lt;Ordner&gt; statt im eigenen Profil ablegen.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Load the protocol plug-ins of &lt;folder&gt;.</source>
        <translation>Die Protokollmodule aus &lt;Ordner&gt; laden.</translation>
    </message>
    <message>
        <source>Say whether the profile is damaged, list its copies and end: with 0 when it can be used, 2 when it is damaged, and 1 when it cannot be used for another reason.</source>
        <translation>Ausgeben, ob das Profil beschädigt ist, seine Kopien auflisten und enden: mit 0, wenn es benutzt werden kann, mit 2, wenn es beschädigt ist, und mit 1, wenn es aus einem anderen Grund nicht benutzt werden kann.</translation>
    </message>
    <message>
        <source>Put a copy in the place of the profile&apos;s database and end: the newest, or the one that is named. Passwords are in no copy.</source>
        <translation>Eine Kopie an die Stelle der Datenbank des Profils setzen und enden: die neueste oder die genannte. Passwörter sind in keiner Kopie.</translation>
    </message>
    <message>
        <source>Read what is still readable of the profile&apos;s damaged database, keep that, and end.</source>
        <translation>Lesen, was von der beschädigten Datenbank des Profils noch lesbar ist, es behalten und enden.</translation>
    </message>
    <message>
        <source>The copy to restore.</source>
        <translation>Die Kopie, die wiederhergestellt wird.</translation>
    </message>
    <message>
        <source>[copy]</source>
        <translation>[Kopie]</translation>
    </message>
    <message>
        <source>The options %1 and %2 cannot be used together.</source>
        <extracomment>%1, %2 = names of options</extracomment>
        <translation>Die Optionen %1 und %2 können nicht zusammen benutzt werden.</translation>
    </message>
    <message>
        <source>The argument &quot;%1&quot; is not known.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>Das Argument „%1“ ist nicht bekannt.</translation>
    </message>
    <message>
        <source>A link that begins with xmpp:, irc: or ircs: opens the window for a new account of that protocol.</source>
        <translation>Eine Verknüpfung, die mit xmpp:, irc: oder ircs: beginnt, öffnet das Fenster für ein neues Konto dieses Protokolls.</translation>
    </message>
    <message>
        <source>[link]</source>
        <translation>[Verknüpfung]</translation>
    </message>
    <message>
        <source>Accounts of several instant-messaging protocols in one place.
&quot;kirv accounts --help&quot; says how accounts are listed, enabled, disabled, exported and imported without windows.</source>
        <translation>Konten mehrerer Sofortnachrichten-Protokolle an einem Ort.
„kirv accounts --help“ zeigt, wie Konten ohne Fenster aufgelistet, aktiviert, deaktiviert, exportiert und importiert werden.</translation>
    </message>
</context>
<context>
    <name>KirvCommandFile</name>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2</source>
        <extracomment>%1 = path of a file, %2 = what the system says</extracomment>
        <translation>Die Datei „%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is too large to be a file of exported accounts.</source>
        <translation>Die Datei „%1“ ist zu groß, um eine mit Konten zu sein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file that can be overwritten.</source>
        <translation>„%1“ ist keine Datei, die überschrieben werden kann.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists already. Use --force to overwrite it.</source>
        <translation>Die Datei „%1“ gibt es schon. Mit --force wird sie überschrieben.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written.</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The standard output cannot be written.</source>
        <translation>Auf die Standardausgabe kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>KirvConnection</name>
    <message>
        <source>The account is not connected.</source>
        <translation>Das Konto ist nicht verbunden.</translation>
    </message>
</context>
<context>
    <name>KirvDamagedProfile</name>
    <message>
        <source>The copy of %1 was restored. Accounts: %2.</source>
        <extracomment>%1 = date and time, %2 = number of accounts</extracomment>
        <translation>Die Kopie vom %1 wurde wiederhergestellt. Konten: %2.</translation>
    </message>
    <message>
        <source>Passwords and other secret settings are in no copy and have to be entered again.</source>
        <translation>Passwörter und andere geheime Einstellungen sind in keiner Kopie und müssen neu eingegeben werden.</translation>
    </message>
    <message>
        <source>Everything could be read.</source>
        <translation>Alles konnte gelesen werden.</translation>
    </message>
    <message>
        <source>Only a part could be read. Accounts or settings are missing.</source>
        <translation>Nur ein Teil konnte gelesen werden. Konten oder Einstellungen fehlen.</translation>
    </message>
    <message>
        <source>Accounts: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Konten: %1</translation>
    </message>
    <message>
        <source>Settings of accounts: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Einstellungen von Konten: %1</translation>
    </message>
    <message>
        <source>Passwords and other secret settings: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Passwörter und andere geheime Einstellungen: %1</translation>
    </message>
    <message>
        <source>Settings of the program: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Einstellungen des Programms: %1</translation>
    </message>
    <message>
        <source>The profile has no accounts now.</source>
        <translation>Das Profil hat jetzt keine Konten.</translation>
    </message>
    <message>
        <source>The database that was there is kept in &quot;%1&quot;, with the passwords in it. Delete it when it is no longer needed.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Die bisherige Datenbank liegt in „%1“, mit den Passwörtern darin. Löschen Sie sie, wenn sie nicht mehr gebraucht wird.</translation>
    </message>
</context>
<context>
    <name>KirvDatabase</name>
    <message>
        <source>The SQLite driver of Qt, which the profile needs, is not installed.</source>
        <translation>Der SQLite-Treiber von Qt, den das Profil braucht, ist nicht installiert.</translation>
    </message>
    <message>
        <source>The profile is not open.</source>
        <translation>Das Profil ist nicht geöffnet.</translation>
    </message>
    <message>
        <source>There is no space left on the disk, so nothing was stored. Free some space and try again.</source>
        <translation>Auf dem Datenträger ist kein Platz mehr, daher wurde nichts gespeichert. Schaffen Sie Platz und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; could not be read or written (%2). The disk may be full or faulty.</source>
        <translation>Das Profil in „%1“ konnte nicht gelesen oder geschrieben werden (%2). Der Datenträger ist vielleicht voll oder fehlerhaft.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; cannot be written. Check its owner and permissions.</source>
        <translation>Das Profil in „%1“ kann nicht geschrieben werden. Prüfen Sie Besitzer und Rechte.</translation>
    </message>
    <message>
        <source>Another program is using the profile in &quot;%1&quot;.</source>
        <translation>Ein anderes Programm benutzt das Profil in „%1“.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; could not be used: %2</source>
        <translation>Das Profil in „%1“ konnte nicht benutzt werden: %2</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is damaged, so nothing was stored. Start the program again to see what can be done.</source>
        <translation>Das Profil in „%1“ ist beschädigt; daher wurde nichts gespeichert. Starten Sie das Programm neu, um zu sehen, was möglich ist.</translation>
    </message>
</context>
<context>
    <name>KirvDemo</name>
    <message>
        <source>No temporary folder for the profile can be made: %1</source>
        <translation>Für das Profil kann kein vorläufiger Ordner angelegt werden: %1</translation>
    </message>
    <message>
        <source>The demo needs the XMPP server Prosody (the package prosody), which did not start: %1</source>
        <translation>Die Vorführung braucht den XMPP-Server Prosody (das Paket prosody), der nicht startete: %1</translation>
    </message>
    <message>
        <source>This is a try-out with a profile of its own; nothing is kept. A private XMPP server runs on this computer. Add an XMPP account, choose the configuration &quot;Server on this computer&quot; and type the login %1 and the password %2.</source>
        <translation>Dies ist eine Vorführung mit eigenem Profil; nichts wird behalten. Auf diesem Rechner läuft ein privater XMPP-Server. Fügen Sie ein XMPP-Konto hinzu, wählen Sie die Vorlage „Server auf diesem Rechner“ und geben Sie den Anmeldenamen %1 und das Passwort %2 ein.</translation>
    </message>
    <message>
        <source>A private IRC server runs too: add an IRC account with the same configuration, with any nickname and any password.</source>
        <translation>Auch ein privater IRC-Server läuft: Fügen Sie ein IRC-Konto mit derselben Vorlage hinzu, mit beliebigem Spitznamen und Passwort.</translation>
    </message>
</context>
<context>
    <name>KirvDirectoryGuard</name>
    <message>
        <source>&amp;Fetch Again</source>
        <translation>Erneut &amp;abrufen</translation>
    </message>
    <message>
        <source>Publishing the directory entry…</source>
        <translation>Der Verzeichniseintrag wird veröffentlicht …</translation>
    </message>
    <message>
        <source>Requesting the directory entry…</source>
        <translation>Der Verzeichniseintrag wird abgerufen …</translation>
    </message>
    <message>
        <source>The account must be connected before its directory entry can be read or changed.</source>
        <translation>Das Konto muss verbunden sein, damit sein Verzeichniseintrag gelesen oder geändert werden kann.</translation>
    </message>
    <message>
        <source>The directory entry is not known. Fetch it again to change it.</source>
        <translation>Der Verzeichniseintrag ist nicht bekannt. Rufen Sie ihn erneut ab, um ihn zu ändern.</translation>
    </message>
    <message>
        <source>Nothing was saved, because the entry cannot be published like this. Correct what is marked.</source>
        <translation>Nichts wurde gespeichert, weil der Eintrag so nicht veröffentlicht werden kann. Berichtigen Sie, was markiert ist.</translation>
    </message>
    <message>
        <source>The account was saved, but its directory entry was not published, as the account is not connected. Save again when it is.</source>
        <translation>Das Konto wurde gespeichert, sein Verzeichniseintrag aber nicht veröffentlicht, da das Konto nicht verbunden ist. Speichern Sie noch einmal, wenn es verbunden ist.</translation>
    </message>
</context>
<context>
    <name>KirvEditWindowCompanion</name>
    <message>
        <source>&amp;Server Account</source>
        <translation>&amp;Serverkonto</translation>
    </message>
    <message>
        <source>What can be done with the account on its server.</source>
        <translation>Was mit dem Konto auf seinem Server getan werden kann.</translation>
    </message>
    <message>
        <source>Saving Account</source>
        <translation>Konto speichern</translation>
    </message>
    <message>
        <source>Nothing was changed. The window stays open, so that you can try again.</source>
        <translation>Nichts wurde geändert. Das Fenster bleibt offen, damit Sie es erneut versuchen können.</translation>
    </message>
    <message>
        <source>Picture of the Account</source>
        <translation>Bild des Kontos</translation>
    </message>
    <message>
        <source>The picture was not changed.</source>
        <translation>Das Bild wurde nicht geändert.</translation>
    </message>
    <message>
        <source>None is stored</source>
        <translation>Keines gespeichert</translation>
    </message>
</context>
<context>
    <name>KirvExportWindow</name>
    <message>
        <source>Export Accounts</source>
        <translation>Konten exportieren</translation>
    </message>
    <message>
        <source>Include &amp;passwords (encrypted)</source>
        <translation>&amp;Passwörter aufnehmen (verschlüsselt)</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Several words that are not related are easy to remember and hard to guess. Whoever has the file and guesses the pass phrase has your passwords; without it, nobody can read them, not even you.</source>
        <translation>Mehrere Wörter, die nicht zusammengehören, sind leicht zu merken und schwer zu erraten. Wer die Datei hat und die Passphrase errät, hat Ihre Passwörter; ohne sie kann niemand die Passwörter lesen, auch Sie nicht.</translation>
    </message>
    <message>
        <source>Pass p&amp;hrase:</source>
        <translation>Passp&amp;hrase:</translation>
    </message>
    <message>
        <source>&amp;Repeat pass phrase:</source>
        <translation>&amp;Wiederholen:</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren …</translation>
    </message>
    <message>
        <source>Choose the file to which the accounts are written.</source>
        <translation>Die Datei wählen, in die die Konten geschrieben werden.</translation>
    </message>
    <message>
        <source>The two pass phrases must be the same.</source>
        <translation>Die Passphrase und ihre Wiederholung müssen gleich sein.</translation>
    </message>
    <message>
        <source>Exported accounts (*.json)</source>
        <translation>Exportierte Konten (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The export was cancelled; nothing was written.</source>
        <translation>Der Export wurde abgebrochen; nichts wurde geschrieben.</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were exported to %1.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>
            <numerusform>Ein Konto wurde in %1 exportiert.</numerusform>
            <numerusform>%n Konten wurden in %1 exportiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file contains no passwords.</source>
        <translation>In der Datei sind keine Passwörter.</translation>
    </message>
    <message>
        <source>The following is not in the file:</source>
        <translation>Nicht in der Datei enthalten:</translation>
    </message>
    <message>
        <source>The stored passwords are in it, encrypted with the pass phrase.</source>
        <translation>Die gespeicherten Passwörter sind darin, mit der Passphrase verschlüsselt.</translation>
    </message>
</context>
<context>
    <name>KirvFailure</name>
    <message>
        <source>The server did not accept the login or the password.</source>
        <translation>Der Server hat Anmeldenamen oder Passwort nicht angenommen.</translation>
    </message>
    <message>
        <source>A password is needed to log in, and none is known.</source>
        <translation>Zur Anmeldung wird ein Passwort gebraucht, und es ist keines bekannt.</translation>
    </message>
    <message>
        <source>The server could not be found. Check its name and your network connection.</source>
        <translation>Der Server wurde nicht gefunden. Prüfen Sie seinen Namen und Ihre Netzverbindung.</translation>
    </message>
    <message>
        <source>The server does not accept connections. Check its name and port, or try again later.</source>
        <translation>Der Server nimmt keine Verbindungen an. Prüfen Sie Namen und Port, oder versuchen Sie es später.</translation>
    </message>
    <message>
        <source>The server did not answer in time.</source>
        <translation>Der Server hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted.</source>
        <translation>Dem Zertifikat des Servers wird nicht vertraut.</translation>
    </message>
    <message>
        <source>The account requires encryption, and the server does not offer it.</source>
        <translation>Das Konto verlangt Verschlüsselung, und der Server bietet sie nicht an.</translation>
    </message>
    <message>
        <source>The server offers no way to log in that this account can use.</source>
        <translation>Der Server bietet kein Anmeldeverfahren an, das dieses Konto nutzen kann.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>Die Verbindung zum Server ging verloren.</translation>
    </message>
    <message>
        <source>The server closed the connection.</source>
        <translation>Der Server hat die Verbindung beendet.</translation>
    </message>
    <message>
        <source>Another client logged in to the account and took its place.</source>
        <translation>Ein anderes Programm hat sich bei dem Konto angemeldet und seinen Platz eingenommen.</translation>
    </message>
    <message>
        <source>The name is already in use on the server.</source>
        <translation>Der Name wird auf dem Server schon benutzt.</translation>
    </message>
    <message>
        <source>The server does not allow this name.</source>
        <translation>Der Server lässt diesen Namen nicht zu.</translation>
    </message>
    <message>
        <source>The server denied access.</source>
        <translation>Der Server hat den Zugang verweigert.</translation>
    </message>
    <message>
        <source>The settings of the account cannot be used.</source>
        <translation>Die Einstellungen des Kontos sind nicht brauchbar.</translation>
    </message>
    <message>
        <source>The request failed.</source>
        <translation>Die Anfrage ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Ein unbekannter Fehler ist aufgetreten.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; could not be found. Check its name and your network connection.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>Der Server „%1“ wurde nicht gefunden. Prüfen Sie seinen Namen und Ihre Netzverbindung.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; does not accept connections. Check its name and port, or try again later.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>Der Server „%1“ nimmt keine Verbindungen an. Prüfen Sie Namen und Port, oder versuchen Sie es später.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not answer in time.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>Der Server „%1“ hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: %1</source>
        <extracomment>%1 is what is wrong with the certificate</extracomment>
        <translation>Dem Zertifikat des Servers wird nicht vertraut: %1</translation>
    </message>
    <message>
        <source>The connection to the server was lost: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>Die Verbindung zum Server ging verloren: %1</translation>
    </message>
    <message>
        <source>The server closed the connection: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>Der Server hat die Verbindung beendet: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is already in use on the server.</source>
        <extracomment>%1 is the name of a user</extracomment>
        <translation>Der Name „%1“ wird auf dem Server schon benutzt.</translation>
    </message>
    <message>
        <source>The server does not allow the name &quot;%1&quot;.</source>
        <extracomment>%1 is the name of a user</extracomment>
        <translation>Der Server lässt den Namen „%1“ nicht zu.</translation>
    </message>
    <message>
        <source>The server denied access: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>Der Server hat den Zugang verweigert: %1</translation>
    </message>
    <message>
        <source>The settings of the account cannot be used: %1</source>
        <extracomment>%1 says which setting and what is wrong with it</extracomment>
        <translation>Die Einstellungen des Kontos sind nicht brauchbar: %1</translation>
    </message>
    <message>
        <source>The request failed: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>Die Anfrage ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>An error occurred: %1</source>
        <extracomment>%1 is what the server or the network said</extracomment>
        <translation>Ein Fehler ist aufgetreten: %1</translation>
    </message>
    <message>
        <source>The server cannot log the account in at the moment.</source>
        <translation>Der Server kann das Konto zurzeit nicht anmelden.</translation>
    </message>
    <message>
        <source>The server does not offer what was requested.</source>
        <translation>Der Server bietet das Angeforderte nicht an.</translation>
    </message>
    <message>
        <source>The server cannot log the account in at the moment: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>Der Server kann das Konto zurzeit nicht anmelden: %1</translation>
    </message>
    <message>
        <source>The server does not offer what was requested: %1</source>
        <extracomment>%1 is what was requested</extracomment>
        <translation>Der Server bietet das Angeforderte nicht an: %1</translation>
    </message>
    <message>
        <source>Another client logged in to the account and took its place: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>Ein anderer Client hat sich mit dem Konto angemeldet und seinen Platz eingenommen: %1</translation>
    </message>
    <message>
        <source>The proxy cannot be reached. Check its name and port and your network connection.</source>
        <translation>Der Proxy ist nicht erreichbar. Prüfen Sie seinen Namen, den Port und Ihre Netzwerkverbindung.</translation>
    </message>
    <message>
        <source>The proxy did not connect to the server in time.</source>
        <translation>Der Proxy hat die Verbindung zum Server nicht rechtzeitig hergestellt.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user or the password.</source>
        <translation>Der Proxy hat den Benutzer oder das Passwort nicht angenommen.</translation>
    </message>
    <message>
        <source>The proxy does not allow a connection to the server.</source>
        <translation>Der Proxy erlaubt keine Verbindung zum Server.</translation>
    </message>
    <message>
        <source>The connection through the proxy failed.</source>
        <translation>Die Verbindung über den Proxy ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The system did not say in time which proxy to use, so no connection was made.</source>
        <translation>Das System hat nicht rechtzeitig angegeben, welcher Proxy zu verwenden ist; deshalb wurde keine Verbindung hergestellt.</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its name and port and your network connection.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>Der Proxy %1 ist nicht erreichbar. Prüfen Sie seinen Namen, den Port und Ihre Netzwerkverbindung.</translation>
    </message>
    <message>
        <source>The proxy %1 did not connect to the server in time.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>Der Proxy %1 hat die Verbindung zum Server nicht rechtzeitig hergestellt.</translation>
    </message>
    <message>
        <source>The proxy %1 did not accept the user or the password.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>Der Proxy %1 hat den Benutzer oder das Passwort nicht angenommen.</translation>
    </message>
    <message>
        <source>The proxy %1 does not allow a connection to the server.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>Der Proxy %1 erlaubt keine Verbindung zum Server.</translation>
    </message>
    <message>
        <source>The connection through the proxy failed: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>Die Verbindung über den Proxy ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>The connection ended before the server answered.</source>
        <translation>Die Verbindung endete, bevor der Server geantwortet hat.</translation>
    </message>
</context>
<context>
    <name>KirvFieldForm</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>This must be filled in.</source>
        <translation>Dies muss ausgefüllt werden.</translation>
    </message>
    <message>
        <source>This text is too long to be shown in full and to be changed here.</source>
        <translation>Dieser Text ist zu lang, um hier ganz gezeigt und geändert zu werden.</translation>
    </message>
    <message>
        <source>This must be a whole number from %1 to %2.</source>
        <translation>Dies muss eine ganze Zahl von %1 bis %2 sein.</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Erforderlich</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>Nicht gewählt</translation>
    </message>
    <message>
        <source>Invalid format.</source>
        <extracomment>%1 = a sentence that says what is valid</extracomment>
        <translation>Ungültiges Format.</translation>
    </message>
    <message>
        <source>Invalid format: %1</source>
        <translation>Ungültiges Format: %1</translation>
    </message>
    <message>
        <source>This text is too long to be shown in full. It is kept as long as nothing is changed here.</source>
        <translation>Dieser Text ist zu lang, um ganz gezeigt zu werden. Er bleibt erhalten, solange hier nichts geändert wird.</translation>
    </message>
</context>
<context>
    <name>KirvFileButton</name>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>Choose the file.</source>
        <translation>Die Datei wählen.</translation>
    </message>
    <message>
        <source>Choose the file for %1</source>
        <extracomment>%1 = what the file is, as &quot;Trusted certificate&quot;</extracomment>
        <translation>Datei für „%1“ wählen</translation>
    </message>
    <message>
        <source>Certificates and keys (*.pem *.crt *.cer *.key)</source>
        <translation>Zertifikate und Schlüssel (*.pem *.crt *.cer *.key)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>KirvGeneralPage</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>&amp;Language of the program:</source>
        <translation>&amp;Sprache des Programms:</translation>
    </message>
    <message>
        <source>As the system (%1)</source>
        <extracomment>entry of a list of languages; %1 = the language of the system in its own words, as &quot;Deutsch&quot;</extracomment>
        <translation>Wie das System (%1)</translation>
    </message>
    <message>
        <source>No native speaker has read these texts yet.</source>
        <translation>Diese Texte hat noch niemand gelesen, dessen Muttersprache das ist.</translation>
    </message>
    <message>
        <source>The language changes when the open windows are closed.</source>
        <translation>Die Sprache wechselt, wenn die offenen Fenster geschlossen sind.</translation>
    </message>
    <message>
        <source>Passwords</source>
        <translation>Passwörter</translation>
    </message>
    <message>
        <source>&amp;Unlock…</source>
        <translation>&amp;Entsperren …</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Your accounts and settings are in the folder %1.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation>Ihre Konten und Einstellungen sind im Ordner %1.</translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation>Ordner ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Shows the folder in the file manager.</source>
        <translation>Zeigt den Ordner in der Dateiverwaltung.</translation>
    </message>
    <message>
        <source>Copies of the profile</source>
        <translation>Kopien des Profils</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Konten</translation>
    </message>
    <message>
        <source>There are no copies of the profile yet.</source>
        <translation>Es gibt noch keine Kopien des Profils.</translation>
    </message>
    <message>
        <source>Copies of the profile, without passwords; one can be restored when the profile is damaged:</source>
        <translation>Kopien des Profils, ohne Passwörter; eine davon kann wiederhergestellt werden, wenn das Profil beschädigt ist:</translation>
    </message>
    <message>
        <source>&amp;Export Accounts…</source>
        <translation>Konten e&amp;xportieren …</translation>
    </message>
    <message>
        <source>Writes accounts to a file that can be imported on another computer.</source>
        <translation>Schreibt Konten in eine Datei, die auf einem anderen Rechner importiert werden kann.</translation>
    </message>
    <message>
        <source>&amp;Import Accounts…</source>
        <translation>Konten &amp;importieren …</translation>
    </message>
    <message>
        <source>Takes accounts over from such a file, or from Pidgin.</source>
        <translation>Übernimmt Konten aus einer solchen Datei oder von Pidgin.</translation>
    </message>
    <message>
        <source>The keyring asks you to unlock it. Then the passwords that accounts wait for are read, and those that are in a file are moved.</source>
        <translation>Der Schlüsselbund bittet Sie, ihn zu entsperren. Dann werden die Passwörter gelesen, auf die Konten warten, und die in einer Datei verschoben.</translation>
    </message>
</context>
<context>
    <name>KirvImportWindow</name>
    <message>
        <source>Import Accounts</source>
        <translation>Konten importieren</translation>
    </message>
    <message>
        <source>About the file</source>
        <translation>Über die Datei</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>Was geschieht</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Ausgelassen</translation>
    </message>
    <message>
        <source>&amp;Pass phrase:</source>
        <translation>&amp;Passphrase:</translation>
    </message>
    <message>
        <source>Choose Another &amp;File…</source>
        <translation>Andere &amp;Datei wählen …</translation>
    </message>
    <message>
        <source>&amp;Without Passwords</source>
        <translation>&amp;Ohne Passwörter</translation>
    </message>
    <message>
        <source>Lists the accounts; their passwords have to be entered here.</source>
        <translation>Listet die Konten auf; ihre Passwörter müssen hier eingegeben werden.</translation>
    </message>
    <message>
        <source>Exported accounts, accounts of Pidgin (*.json *.xml)</source>
        <translation>Exportierte Konten, Konten von Pidgin (*.json *.xml)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The file %1 is being read…</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Die Datei %1 wird gelesen …</translation>
    </message>
    <message>
        <source>The file %1 contains passwords. Enter the pass phrase with which they are encrypted.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Die Datei %1 enthält Passwörter. Geben Sie die Passphrase ein, mit der sie verschlüsselt sind.</translation>
    </message>
    <message>
        <source>The accounts in the file %1 cannot be imported.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Die Konten in der Datei %1 können nicht importiert werden.</translation>
    </message>
    <message>
        <source>The file %1 contains no accounts that can be imported.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>In der Datei %1 gibt es keine Konten, die importiert werden können.</translation>
    </message>
    <message>
        <source>The file %1 contains these accounts. Nothing is changed before you import them, and the import can be undone.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Diese Konten sind in der Datei %1. Nichts wird geändert, bevor Sie sie importieren, und der Import kann rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Import %n Accounts</source>
        <translation>
            <numerusform>Ein Konto &amp;importieren</numerusform>
            <numerusform>%n Konten &amp;importieren</numerusform>
        </translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>New, will be left out</source>
        <translation>Neu, wird ausgelassen</translation>
    </message>
    <message>
        <source>Exists, will be replaced</source>
        <translation>Hier vorhanden, wird ersetzt</translation>
    </message>
    <message>
        <source>Exists, will be kept</source>
        <translation>Hier vorhanden, bleibt erhalten</translation>
    </message>
    <message>
        <source>Exists as %1, will be replaced</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>Hier als %1 vorhanden, wird ersetzt</translation>
    </message>
    <message>
        <source>Exists as %1, will be kept</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>Hier als %1 vorhanden, bleibt erhalten</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = the login of an account, %2 = a sentence about it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The following is not imported:</source>
        <translation>Nicht importiert wird:</translation>
    </message>
    <message>
        <source>Exists, will be replaced; its passwords must be entered again</source>
        <translation>Hier vorhanden, wird ersetzt; seine Passwörter müssen neu eingegeben werden</translation>
    </message>
    <message>
        <source>Exists as %1, will be replaced; its passwords must be entered again</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>Hier als %1 vorhanden, wird ersetzt; seine Passwörter müssen neu eingegeben werden</translation>
    </message>
</context>
<context>
    <name>KirvInstanceMessage</name>
    <message>
        <source>The program that runs with this profile has another version. Quit it, and try again.</source>
        <translation>Das Programm, das mit diesem Profil läuft, hat eine andere Version. Beenden Sie es, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The message of the other program cannot be read.</source>
        <translation>Die Nachricht des anderen Programms kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The program that runs with this profile does not have that command.</source>
        <translation>Das Programm, das mit diesem Profil läuft, kennt diesen Befehl nicht.</translation>
    </message>
</context>
<context>
    <name>KirvIrcConnection</name>
    <message>
        <source>There is no certificate in the file &quot;%1&quot;.</source>
        <translation>In der Datei „%1“ ist kein Zertifikat.</translation>
    </message>
    <message>
        <source>The nick &quot;%1&quot; could not be had; you are &quot;%2&quot; on this server now.</source>
        <translation>Der Spitzname „%1“ war nicht zu bekommen; Sie heißen auf diesem Server jetzt „%2“.</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Abwesend</translation>
    </message>
    <message>
        <source>The server does not answer any more.</source>
        <translation>Der Server antwortet nicht mehr.</translation>
    </message>
    <message>
        <source>The server sent a line that is longer than lines can be.</source>
        <translation>Der Server hat eine Zeile gesendet, die länger ist, als Zeilen sein dürfen.</translation>
    </message>
    <message>
        <source>There is no private key that can be used in the file &quot;%1&quot;.</source>
        <translation>Die Datei „%1“ enthält keinen privaten Schlüssel, der benutzt werden kann.</translation>
    </message>
    <message>
        <source>Other users of this computer can read or change the key file &quot;%1&quot;. Only its owner should.</source>
        <translation>Andere Benutzer dieses Rechners können die Schlüsseldatei „%1“ lesen oder ändern. Das sollte nur ihr Besitzer können.</translation>
    </message>
    <message>
        <source>It does not offer SASL now, as it did before.</source>
        <translation>Er bietet SASL zurzeit nicht an, wie er es vorher tat.</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>%1 is what a server says first, as &quot;You are banned&quot;, %2 what it says when it closes the connection</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>password of the server</source>
        <translation>Passwort des Servers</translation>
    </message>
    <message>
        <source>no password</source>
        <translation>kein Passwort</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is the encryption, as &quot;TLSv1.3&quot;, %2 how the user has proved who he is, as &quot;SASL PLAIN&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not encrypted</source>
        <translation>nicht verschlüsselt</translation>
    </message>
</context>
<context>
    <name>KirvIrcProtocol</name>
    <message>
        <source>Internet Relay Chat: conversations in channels of a network of servers.</source>
        <translation>Internet Relay Chat: Gespräche in Kanälen eines Netzes von Servern.</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Verfügbar</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Abwesend</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Abgemeldet</translation>
    </message>
    <message>
        <source>anna, or anna@irc.example.org</source>
        <translation>anna oder anna@irc.example.org</translation>
    </message>
</context>
<context>
    <name>KirvIrcSasl</name>
    <message>
        <source>The client certificate is not known there.</source>
        <translation>Das Client-Zertifikat ist dort nicht bekannt.</translation>
    </message>
    <message>
        <source>The password is longer than the server accepts.</source>
        <translation>Das Passwort ist länger, als der Server annimmt.</translation>
    </message>
    <message>
        <source>It has ended SASL before it was done.</source>
        <translation>Er hat SASL beendet, bevor es fertig war.</translation>
    </message>
</context>
<context>
    <name>KirvIrcSettings</name>
    <message>
        <source>&quot;%1&quot; cannot be a nick.</source>
        <translation>„%1“ kann kein Spitzname sein.</translation>
    </message>
    <message>
        <source>No server is given.</source>
        <translation>Es ist kein Server angegeben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a server.</source>
        <translation>„%1“ ist nicht der Name eines Servers.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Der Port muss eine Zahl von 1 bis 65535 sein.</translation>
    </message>
    <message>
        <source>The password cannot be sent: it is too long or has characters that do not belong to a line.</source>
        <translation>Das Passwort kann nicht gesendet werden: Es ist zu lang oder hat Zeichen, die nicht in eine Zeile gehören.</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>The name or address of the server. When it is empty, the part of the login after the @ is the server.</source>
        <translation>Name oder Adresse des Servers. Ist es leer, so gilt der Teil des Anmeldenamens nach dem @.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Verschlüsselung</translation>
    </message>
    <message>
        <source>Required (TLS)</source>
        <translation>Erforderlich (TLS)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>With encryption the server must also prove who it is. Without, everybody on the way can read along.</source>
        <translation>Mit Verschlüsselung muss der Server auch beweisen, wer er ist. Ohne kann jeder auf dem Weg mitlesen.</translation>
    </message>
    <message>
        <source>Trusted certificate</source>
        <translation>Vertrautes Zertifikat</translation>
    </message>
    <message>
        <source>The path of a file with a certificate (PEM) to trust besides those that this computer trusts already.</source>
        <translation>Der Pfad einer Datei mit einem Zertifikat (PEM), dem neben denen vertraut wird, denen dieser Rechner schon vertraut.</translation>
    </message>
    <message>
        <source>Use of the password</source>
        <translation>Verwendung des Passworts</translation>
    </message>
    <message>
        <source>Not used</source>
        <translation>Nicht verwendet</translation>
    </message>
    <message>
        <source>Password of the server</source>
        <translation>Passwort des Servers</translation>
    </message>
    <message>
        <source>Password of a registered nick (SASL)</source>
        <translation>Passwort eines registrierten Spitznamens (SASL)</translation>
    </message>
    <message>
        <source>What the account&apos;s password is for. Most networks need none, unless you have registered your nick there.</source>
        <translation>Wofür das Passwort des Kontos ist. Die meisten Netze brauchen keines, außer wenn Sie Ihren Spitznamen dort registriert haben.</translation>
    </message>
    <message>
        <source>SASL user</source>
        <translation>SASL-Benutzer</translation>
    </message>
    <message>
        <source>The name under which the nick is registered. Empty: the nick itself.</source>
        <translation>Der Name, unter dem der Spitzname registriert ist. Leer: der Spitzname selbst.</translation>
    </message>
    <message>
        <source>Real name</source>
        <translation>Wirklicher Name</translation>
    </message>
    <message>
        <source>What others see as your name when they ask for it. Empty: the nick.</source>
        <translation>Was andere als Ihren Namen sehen, wenn sie danach fragen. Leer: der Spitzname.</translation>
    </message>
    <message>
        <source>Alternative nicks</source>
        <translation>Andere Spitznamen</translation>
    </message>
    <message>
        <source>Nicks to try when yours is in use, separated by commas.</source>
        <translation>Spitznamen, die versucht werden, wenn Ihrer vergeben ist, durch Kommas getrennt.</translation>
    </message>
    <message>
        <source>Server on this computer</source>
        <translation>Server auf diesem Rechner</translation>
    </message>
    <message>
        <source>There is a key of a client certificate, but no client certificate.</source>
        <translation>Es gibt einen Schlüssel eines Client-Zertifikats, aber kein Client-Zertifikat.</translation>
    </message>
    <message>
        <source>A client certificate can be used with encryption only.</source>
        <translation>Ein Client-Zertifikat kann nur mit Verschlüsselung benutzt werden.</translation>
    </message>
    <message>
        <source>Client certificate</source>
        <translation>Client-Zertifikat</translation>
    </message>
    <message>
        <source>The path of a file with a certificate of your own (PEM), to log in with instead of the password (SASL EXTERNAL). Empty: none.</source>
        <translation>Der Pfad einer Datei mit einem eigenen Zertifikat (PEM), mit dem statt mit dem Passwort angemeldet wird (SASL EXTERNAL). Leer: keines.</translation>
    </message>
    <message>
        <source>Key of the client certificate</source>
        <translation>Schlüssel des Client-Zertifikats</translation>
    </message>
    <message>
        <source>The path of the file with the certificate&apos;s private key (PEM, without a password). Empty: it is in the certificate&apos;s file.</source>
        <translation>Der Pfad der Datei mit dem privaten Schlüssel des Zertifikats (PEM, ohne Passwort). Leer: Er steht in der Datei des Zertifikats.</translation>
    </message>
    <message>
        <source>A nickname contains no blanks.</source>
        <translation>Ein Spitzname enthält keine Leerzeichen.</translation>
    </message>
    <message>
        <source>The nickname is missing.</source>
        <translation>Der Spitzname fehlt.</translation>
    </message>
    <message>
        <source>A nickname starts with a letter.</source>
        <translation>Ein Spitzname beginnt mit einem Buchstaben.</translation>
    </message>
    <message>
        <source>A nickname consists of unaccented letters, digits and the characters %1.</source>
        <translation>Ein Spitzname besteht aus Buchstaben ohne Akzente, Ziffern und den Zeichen %1.</translation>
    </message>
    <message>
        <source>The server after the &quot;@&quot; is missing.</source>
        <translation>Der Server nach dem „@“ fehlt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address of a server.</source>
        <translation>„%1“ ist keine Adresse eines Servers.</translation>
    </message>
    <message>
        <source>Usually 6697 with encryption and 6667 without. When the server is empty, a port in the login, as in ann@irc.example.org:6667, is used instead.</source>
        <translation>Gewöhnlich 6697 mit Verschlüsselung und 6667 ohne. Wenn der Server leer ist, gilt ein Port im Anmeldenamen, wie in ann@irc.example.org:6667.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutCatalog</name>
    <message>
        <source>&quot;%1&quot; is a %2, but must be a %3.</source>
        <translation>„%1“ ist ein %2, muss aber ein %3 sein.</translation>
    </message>
    <message>
        <source>There is no %1 named &quot;%2&quot;.</source>
        <translation>Es gibt kein %1 mit dem Namen „%2“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no standard button %2.</source>
        <translation>„%1“ hat keinen Standardknopf %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs two tabs: the account and its directory entry.</source>
        <translation>„%1“ braucht zwei Reiter: das Konto und seinen Verzeichniseintrag.</translation>
    </message>
    <message>
        <source>The layout file %1 cannot be used; the built-in layout takes its place.
%2</source>
        <translation>Die Layout-Datei %1 kann nicht benutzt werden; das eingebaute Layout tritt an ihre Stelle.
%2</translation>
    </message>
    <message>
        <source>The window is a %1, but must be a %2.</source>
        <translation>Das Fenster ist ein %1, muss aber ein %2 sein.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutCheck</name>
    <message>
        <source>It declares a document type, which a layout cannot have.</source>
        <translation>Sie gibt einen Dokumenttyp an, den ein Layout nicht haben darf.</translation>
    </message>
    <message>
        <source>It is not a window layout of Qt Designer.</source>
        <translation>Sie ist kein Fensterlayout des Qt Designers.</translation>
    </message>
    <message>
        <source>Its elements are nested too deeply.</source>
        <translation>Ihre Elemente sind zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>It has too many widgets.</source>
        <translation>Sie hat zu viele Bedienelemente.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>It connects widgets with each other, which only the program does.</source>
        <translation>Sie verbindet Bedienelemente miteinander, was nur das Programm tut.</translation>
    </message>
    <message>
        <source>It has an element &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Sie hat ein Element „%1“, das ein Layout nicht haben darf.</translation>
    </message>
    <message>
        <source>It has an attribute that is too long.</source>
        <translation>Sie hat ein Attribut, das zu lang ist.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of an icon.</source>
        <translation>„%1“ ist nicht der Name eines Symbols.</translation>
    </message>
    <message>
        <source>It has a row or column that is out of bounds: %1.</source>
        <translation>Sie hat eine Zeile oder Spalte außerhalb der Grenzen: %1.</translation>
    </message>
    <message>
        <source>It has a text of the format &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Sie hat einen Text im Format „%1“, das ein Layout nicht haben darf.</translation>
    </message>
    <message>
        <source>It has a number that is out of bounds: %1 (%2).</source>
        <translation>Sie hat eine Zahl außerhalb der Grenzen: %1 (%2).</translation>
    </message>
    <message>
        <source>It sets &quot;%1&quot; to a text, which a layout cannot do.</source>
        <translation>Sie setzt „%1“ auf einen Text, was ein Layout nicht darf.</translation>
    </message>
    <message>
        <source>Its style sheet contains &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Ihr Stylesheet enthält „%1“, das ein Layout nicht haben darf.</translation>
    </message>
    <message>
        <source>Style sheets and rich texts name pictures by their whole path, &quot;%1&quot; does not.</source>
        <translation>Stylesheets und formatierte Texte nennen Bilder mit ihrem vollen Pfad, „%1“ tut das nicht.</translation>
    </message>
    <message>
        <source>It has a rich text that is too large.</source>
        <translation>Sie hat einen formatierten Text, der zu groß ist.</translation>
    </message>
    <message>
        <source>There is no picture &quot;%1&quot;.</source>
        <translation>Es gibt kein Bild „%1“.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; is not in the folder of the layout.</source>
        <translation>Das Bild „%1“ liegt nicht im Ordner des Layouts.</translation>
    </message>
    <message>
        <source>It uses the unknown class %1.</source>
        <translation>Sie verlangt ein Element der unbekannten Klasse %1.</translation>
    </message>
    <message>
        <source>It has an attribute &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Sie hat ein Attribut „%1“, das ein Layout nicht haben darf.</translation>
    </message>
    <message>
        <source>It has a text that can be read in more than one way: &quot;%1&quot;.</source>
        <translation>Sie hat einen Text, der auf mehr als eine Weise gelesen werden kann: „%1“.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutFile</name>
    <message>
        <source>It uses the unknown class %1.</source>
        <translation>Sie verlangt ein Element der unbekannten Klasse %1.</translation>
    </message>
    <message>
        <source>It is not a window layout: %1</source>
        <translation>Sie ist kein Fensterlayout: %1</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>Sie ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>Sie kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Sie ist leer.</translation>
    </message>
    <message>
        <source>It is larger than %1 kB.</source>
        <translation>Sie ist größer als %1 kB.</translation>
    </message>
</context>
<context>
    <name>KirvLeftOut</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und eines mehr</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvLengthLimit</name>
    <message>
        <source>The text is too long here. At most %1 characters are kept.</source>
        <translation>Der Text ist hier zu lang. Höchstens %1 Zeichen werden behalten.</translation>
    </message>
</context>
<context>
    <name>KirvLoginLine</name>
    <message>
        <source>A login cannot contain this.</source>
        <translation>Ein Anmeldename kann das nicht enthalten.</translation>
    </message>
</context>
<context>
    <name>KirvLoginStep</name>
    <message>
        <source>Name look-up</source>
        <translation>Namensauflösung</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Verschlüsselung</translation>
    </message>
    <message>
        <source>Log-in</source>
        <translation>Anmeldung</translation>
    </message>
</context>
<context>
    <name>KirvLoginTest</name>
    <message>
        <source>The plug-in gives no connection.</source>
        <translation>Das Modul stellt keine Verbindung bereit.</translation>
    </message>
    <message>
        <source>The log-in works.</source>
        <translation>Die Anmeldung funktioniert.</translation>
    </message>
    <message>
        <source>The test was cancelled.</source>
        <translation>Der Test wurde abgebrochen.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = a step of a log-in, as &quot;Connection&quot;; %2 = with whom or how, as &quot;192.0.2.7&quot;, or what went wrong</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>%1 = a step of a log-in, as &quot;Connection: 192.0.2.7&quot;, %2 = a sentence about what went wrong</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>running</source>
        <translation>läuft</translation>
    </message>
    <message>
        <source>done</source>
        <translation>erfolgt</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>Test of a log-in, %1</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Test einer Anmeldung, %1</translation>
    </message>
    <message>
        <source>[%1] %2 (%3 ms)</source>
        <extracomment>%1 = &quot;done&quot; or &quot;failed&quot;, %2 = a step of a log-in, %3 = number of milliseconds</extracomment>
        <translation>[%1] %2 (%3 ms)</translation>
    </message>
</context>
<context>
    <name>KirvLoginTestDialog</name>
    <message>
        <source>Log-In of %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Anmeldung von %1</translation>
    </message>
</context>
<context>
    <name>KirvLoginTestView</name>
    <message>
        <source>Copy Report</source>
        <translation>Bericht kopieren</translation>
    </message>
    <message>
        <source>Steps of the log-in</source>
        <translation>Schritte der Anmeldung</translation>
    </message>
    <message>
        <source>Copies the steps and the versions of the program, without the password.</source>
        <translation>Kopiert die Schritte und die Versionen des Programms, ohne das Passwort.</translation>
    </message>
    <message>
        <source>Test Log-In</source>
        <translation>Anmeldung testen</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>%1 = number of milliseconds</extracomment>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = what became of a step (&quot;done&quot;, &quot;failed&quot;), %2 = the step</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 = a step and what became of it, %2 = how long it took</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Cancel Test</source>
        <translation>Test abbrechen</translation>
    </message>
    <message>
        <source>Test Again</source>
        <translation>Erneut testen</translation>
    </message>
    <message>
        <source>Logs in once with what is here, and shows each step. Nothing is stored.</source>
        <translation>Meldet sich einmal mit dem an, was hier steht, und zeigt jeden Schritt. Nichts wird gespeichert.</translation>
    </message>
</context>
<context>
    <name>KirvMainAccountSelector</name>
    <message>
        <source>%1 (its plug-in is not loaded)</source>
        <extracomment>%1 = name of the main account</extracomment>
        <translation>%1 (sein Modul ist nicht geladen)</translation>
    </message>
</context>
<context>
    <name>KirvMessageBar</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Close this message.</source>
        <translation>Diese Meldung schließen.</translation>
    </message>
    <message>
        <source>Close This Message</source>
        <translation>Diese Meldung schließen</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>KirvMoveDialog</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>KirvMovingCommands</name>
    <message>
        <source>Passwords of the account &quot;%1&quot; are left out: the keyring is locked.</source>
        <extracomment>%1 = name of an account, as XMPP:anna@example.org</extracomment>
        <translation>Passwörter des Kontos „%1“ werden ausgelassen: Der Schlüsselbund ist gesperrt.</translation>
    </message>
    <message>
        <source>A pass phrase is needed.</source>
        <translation>Eine Passphrase ist nötig.</translation>
    </message>
</context>
<context>
    <name>KirvMovingFile</name>
    <message>
        <source>%1 is not an ordinary file.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>%1 ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read: %2.</source>
        <extracomment>%1 = path of a file, %2 = the system&apos;s reason</extracomment>
        <translation>Die Datei %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 is a link to another file. Choose another name.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>%1 ist eine Verknüpfung mit einer anderen Datei. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The file %1 is larger than %L2 MB, so it is not read.</source>
        <extracomment>%1 = path of a file, %L2 = a number</extracomment>
        <translation>Die Datei %1 ist größer als %L2 MB; daher wird sie nicht gelesen.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <extracomment>%1 = path of a file, %2 = the system&apos;s reason</extracomment>
        <translation>Die Datei %1 kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>KirvNgircdServer</name>
    <message>
        <source>The files of the server could not be given to it.</source>
        <translation>Die Dateien des Servers konnten ihm nicht übergeben werden.</translation>
    </message>
</context>
<context>
    <name>KirvPageCommands</name>
    <message>
        <source>Re&amp;move…</source>
        <translation>Ent&amp;fernen …</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Bearbeiten …</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>&amp;Deaktivieren</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>&amp;Aktivieren</translation>
    </message>
    <message>
        <source>Make Main &amp;Account</source>
        <translation>Zum &amp;Hauptkonto machen</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>&amp;Neu verbinden</translation>
    </message>
    <message>
        <source>Enter &amp;Password…</source>
        <translation>&amp;Passwort eingeben …</translation>
    </message>
    <message>
        <source>Pre&amp;sence</source>
        <translation>&amp;Status</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Enable %n Accounts</source>
        <translation>
            <numerusform>Ein Konto &amp;aktivieren</numerusform>
            <numerusform>%n Konten &amp;aktivieren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Disable %n Accounts</source>
        <translation>
            <numerusform>Ein Konto &amp;deaktivieren</numerusform>
            <numerusform>%n Konten &amp;deaktivieren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Re&amp;move %n Accounts…</source>
        <translation>
            <numerusform>Ein Konto ent&amp;fernen…</numerusform>
            <numerusform>%n Konten ent&amp;fernen …</numerusform>
        </translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Disable A&amp;ll…</source>
        <translation>A&amp;lle deaktivieren …</translation>
    </message>
    <message>
        <source>Enable Those &amp;Again</source>
        <translation>Diese &amp;wieder aktivieren</translation>
    </message>
    <message>
        <source>&amp;Own Order</source>
        <translation>&amp;Eigene Reihenfolge</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Show &amp;Certificate…</source>
        <translation>&amp;Zertifikat anzeigen …</translation>
    </message>
    <message>
        <source>&amp;Test Log-In</source>
        <translation>Anmeldung &amp;testen</translation>
    </message>
    <message>
        <source>L&amp;og</source>
        <translation>Ereignispr&amp;otokoll</translation>
    </message>
    <message numerus="yes">
        <source>E&amp;xport %n Accounts…</source>
        <translation>
            <numerusform>Ein Konto e&amp;xportieren…</numerusform>
            <numerusform>%n Konten e&amp;xportieren …</numerusform>
        </translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>E&amp;xportieren …</translation>
    </message>
</context>
<context>
    <name>KirvPassPhrase</name>
    <message numerus="yes">
        <source>The pass phrase needs at least %n characters.</source>
        <translation>
            <numerusform>Die Passphrase braucht mindestens ein Zeichen.</numerusform>
            <numerusform>Die Passphrase braucht mindestens %n Zeichen.</numerusform>
        </translation>
    </message>
    <message>
        <source>The pass phrase is too long.</source>
        <translation>Die Passphrase ist zu lang.</translation>
    </message>
</context>
<context>
    <name>KirvPassPhraseInput</name>
    <message>
        <source>The pass phrase cannot be read from file descriptor %1.</source>
        <translation>Die Passphrase kann nicht vom Dateideskriptor %1 gelesen werden.</translation>
    </message>
    <message>
        <source>The pass phrase from file descriptor %1 is too long.</source>
        <translation>Die Passphrase vom Dateideskriptor %1 ist zu lang.</translation>
    </message>
    <message>
        <source>There is no pass phrase to be read from file descriptor %1.</source>
        <translation>Vom Dateideskriptor %1 ist keine Passphrase zu lesen.</translation>
    </message>
    <message>
        <source>The pass phrase cannot be read from the file &quot;%1&quot;.</source>
        <translation>Die Passphrase kann nicht aus der Datei „%1“ gelesen werden.</translation>
    </message>
    <message>
        <source>The pass phrase in the file &quot;%1&quot; is too long.</source>
        <translation>Die Passphrase in der Datei „%1“ ist zu lang.</translation>
    </message>
    <message>
        <source>There is no pass phrase in the file &quot;%1&quot;.</source>
        <translation>In der Datei „%1“ ist keine Passphrase.</translation>
    </message>
    <message>
        <source>A pass phrase is needed, and there is no terminal to enter it on. Use --pass-phrase-file or --pass-phrase-fd.</source>
        <translation>Eine Passphrase ist nötig, aber es gibt kein Terminal, um sie einzugeben. Geben Sie sie mit --pass-phrase-file oder --pass-phrase-fd an.</translation>
    </message>
    <message>
        <source>Pass phrase for the file: </source>
        <translation>Passphrase der Datei: </translation>
    </message>
    <message>
        <source>No pass phrase was entered.</source>
        <translation>Es wurde keine Passphrase eingegeben.</translation>
    </message>
    <message>
        <source>Repeat the pass phrase: </source>
        <translation>Noch einmal dieselbe: </translation>
    </message>
    <message>
        <source>The two pass phrases are not the same.</source>
        <translation>Die Passphrase wurde nicht zweimal gleich eingegeben.</translation>
    </message>
</context>
<context>
    <name>KirvPasswordDialog</name>
    <message>
        <source>&amp;Remember the password</source>
        <translation>Passwort &amp;merken</translation>
    </message>
    <message>
        <source>Password Needed</source>
        <translation>Passwort erforderlich</translation>
    </message>
    <message>
        <source>Enter the password of the account %1 (%2).</source>
        <extracomment>%1 = name of an account, %2 = its protocol</extracomment>
        <translation>Geben Sie das Passwort des Kontos %1 (%2) ein.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>&amp;Log In</source>
        <translation>&amp;Anmelden</translation>
    </message>
    <message>
        <source>Keeps the password, so that it is not asked for again.</source>
        <translation>Behält das Passwort, so dass nicht wieder danach gefragt wird.</translation>
    </message>
    <message>
        <source>The server did not accept the password that was used last.</source>
        <translation>Der Server hat das zuletzt verwendete Passwort nicht angenommen.</translation>
    </message>
    <message>
        <source>The account has a password; the one that you enter takes its place.</source>
        <translation>Das Konto hat ein Passwort; das, das Sie eingeben, tritt an seine Stelle.</translation>
    </message>
    <message>
        <source>No password was entered for this account yet.</source>
        <translation>Für dieses Konto wurde noch kein Passwort eingegeben.</translation>
    </message>
    <message>
        <source>The password is not remembered, so it is needed when the account logs in.</source>
        <translation>Das Passwort wird nicht gemerkt, daher wird es gebraucht, wenn sich das Konto anmeldet.</translation>
    </message>
</context>
<context>
    <name>KirvPidginFile</name>
    <message>
        <source>The account &quot;%1&quot; was left out: the protocol %2 is not supported.</source>
        <extracomment>%1 = login, %2 = name of a protocol</extracomment>
        <translation>Das Konto „%1“ wurde ausgelassen: Das Protokoll %2 wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>An account was left out: it has no login.</source>
        <translation>Ein Konto wurde ausgelassen: Es hat keinen Anmeldenamen.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; was left out: it is not in the file.</source>
        <extracomment>%1 = login</extracomment>
        <translation>Das Bild des Kontos „%1“ wurde ausgelassen: Es ist nicht in der Datei.</translation>
    </message>
    <message>
        <source>The resource of the account &quot;%1&quot; was left out: it has the name of the computer in it, or characters that mean something else here.</source>
        <extracomment>%1 = login</extracomment>
        <translation>Die Ressource des Kontos „%1“ wurde ausgelassen: Sie enthält den Namen des Rechners oder Zeichen, die hier etwas anderes bedeuten.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; now requires encryption: what the file says of it is not known.</source>
        <translation>Das Konto „%1“ verlangt jetzt Verschlüsselung: Was die Datei darüber sagt, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; does not send its password without encryption any more.</source>
        <translation>Das Konto „%1“ sendet sein Passwort nicht mehr unverschlüsselt.</translation>
    </message>
    <message>
        <source>The server of the account &quot;%1&quot; was left out: it is not the name or address of a server.</source>
        <translation>Der Server des Kontos „%1“ wurde ausgelassen: Die Angabe ist weder Name noch Adresse eines Servers.</translation>
    </message>
    <message>
        <source>The port of the account &quot;%1&quot; was left out: it is not a number from 1 to 65535.</source>
        <translation>Der Port des Kontos „%1“ wurde ausgelassen: Er ist keine Zahl von 1 bis 65535.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; has no server. Enter one before it is used.</source>
        <translation>Das Konto „%1“ hat keinen Server. Geben Sie einen ein, bevor es verwendet wird.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; uses UTF-8 instead of the encoding %2, which is not supported.</source>
        <extracomment>%1 = login, %2 = name of a character encoding</extracomment>
        <translation>Das Konto „%1“ verwendet UTF-8 statt der Kodierung %2, die nicht unterstützt wird.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; now requires encryption: otherwise its password would be sent without it.</source>
        <translation>Das Konto „%1“ verlangt jetzt Verschlüsselung: Sonst würde sein Passwort unverschlüsselt gesendet.</translation>
    </message>
    <message>
        <source>Its kind is not supported.</source>
        <translation>Seine Art wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>The proxy of the account &quot;%1&quot; was left out. %2 The account is disabled, so that it does not connect without the proxy.</source>
        <extracomment>%1 = login, %2 = a sentence</extracomment>
        <translation>Der Proxy des Kontos „%1“ wurde ausgelassen. %2 Das Konto ist deaktiviert, damit es sich nicht ohne den Proxy verbindet.</translation>
    </message>
    <message>
        <source>Settings of the account &quot;%1&quot; were left out, as there are no such settings here: %2.</source>
        <extracomment>%1 = login, %2 = names, separated by commas</extracomment>
        <translation>Einstellungen des Kontos „%1“ wurden ausgelassen, weil es hier keine entsprechenden gibt: %2.</translation>
    </message>
    <message>
        <source>The file is no text.</source>
        <translation>Die Datei ist kein Text.</translation>
    </message>
    <message>
        <source>A text in the file is too long.</source>
        <translation>Ein Text in der Datei ist zu lang.</translation>
    </message>
    <message>
        <source>The file is damaged or no XML (line %1: %2).</source>
        <extracomment>%1 = number of a line, %2 = what is wrong there</extracomment>
        <translation>Die Datei ist beschädigt oder kein XML (Zeile %1: %2).</translation>
    </message>
    <message>
        <source>The file is not encoded as UTF-8.</source>
        <translation>Die Datei ist nicht als UTF-8 kodiert.</translation>
    </message>
    <message>
        <source>The file declares a document type or uses entities, which no file of Pidgin does.</source>
        <translation>Die Datei deklariert einen Dokumenttyp oder verwendet Entitäten, was keine Datei von Pidgin tut.</translation>
    </message>
    <message>
        <source>The elements of the file are nested too deeply, or have too many attributes.</source>
        <translation>Die Elemente der Datei sind zu tief verschachtelt oder haben zu viele Attribute.</translation>
    </message>
    <message>
        <source>There are elements in the file where a text is expected (line %1).</source>
        <translation>In der Datei stehen Elemente, wo ein Text erwartet wird (Zeile %1).</translation>
    </message>
    <message>
        <source>Something follows the accounts in the file.</source>
        <translation>In der Datei folgt noch etwas auf die Konten.</translation>
    </message>
    <message>
        <source>An account in the file has too many settings.</source>
        <translation>Ein Konto in der Datei hat zu viele Einstellungen.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Die Datei ist zu groß.</translation>
    </message>
    <message>
        <source>The file does not hold accounts of Pidgin.</source>
        <translation>Die Datei enthält keine Konten von Pidgin.</translation>
    </message>
    <message>
        <source>The file is of another version of Pidgin, which is not known.</source>
        <translation>Die Datei stammt von einer anderen Version von Pidgin, die nicht bekannt ist.</translation>
    </message>
    <message numerus="yes">
        <source>The file has more than %n accounts.</source>
        <translation>
            <numerusform>Die Datei enthält mehr als ein Konto.</numerusform>
            <numerusform>Die Datei enthält mehr als %n Konten.</numerusform>
        </translation>
    </message>
    <message>
        <source>If Pidgin uses a proxy for all accounts, it is not in this file. Set it for the accounts before they log in.</source>
        <translation>Wenn Pidgin einen Proxy für alle Konten verwendet, ist er nicht in dieser Datei. Stellen Sie ihn für die Konten ein, bevor sie sich anmelden.</translation>
    </message>
</context>
<context>
    <name>KirvPluginCall</name>
    <message>
        <source>an exception of an unknown kind</source>
        <translation>eine Ausnahme unbekannter Art</translation>
    </message>
    <message>
        <source>The plug-in failed: %1</source>
        <translation>Das Modul ist fehlgeschlagen: %1</translation>
    </message>
</context>
<context>
    <name>KirvPluginFile</name>
    <message>
        <source>The file is not a plug-in library.</source>
        <translation>Die Datei ist keine Modulbibliothek.</translation>
    </message>
    <message>
        <source>The plug-in is not one for protocols: its interface is &quot;%1&quot;.</source>
        <translation>Das Modul ist keines für Protokolle: Seine Schnittstelle ist „%1“.</translation>
    </message>
    <message>
        <source>The plug-in was built for version %1 of the plug-in interface; this program has version %2.</source>
        <translation>Das Modul wurde für Version %1 der Modulschnittstelle gebaut; dieses Programm hat Version %2.</translation>
    </message>
    <message>
        <source>The plug-in did not create its protocol and gave no reason.</source>
        <translation>Das Modul hat sein Protokoll nicht erzeugt und keinen Grund genannt.</translation>
    </message>
    <message>
        <source>The library cannot be loaded: %1</source>
        <translation>Die Bibliothek kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>The plug-in does not have the interface that it states.</source>
        <translation>Das Modul hat die Schnittstelle nicht, die es angibt.</translation>
    </message>
    <message>
        <source>The protocol has no name.</source>
        <translation>Das Protokoll hat keinen Namen.</translation>
    </message>
    <message>
        <source>The protocol &quot;%1&quot; offers no presence.</source>
        <translation>Das Protokoll „%1“ bietet keinen Status an.</translation>
    </message>
    <message>
        <source>The name of the protocol has more than %1 characters.</source>
        <translation>Der Name des Protokolls hat mehr als %1 Zeichen.</translation>
    </message>
</context>
<context>
    <name>KirvPluginLoader</name>
    <message>
        <source>A protocol with the name &quot;%1&quot; is loaded already.</source>
        <translation>Ein Protokoll mit dem Namen „%1“ ist schon geladen.</translation>
    </message>
</context>
<context>
    <name>KirvPluginQueue</name>
    <message>
        <source>The plug-in &quot;%1&quot; was left out, because the program ended when it was loaded the last time. It can be loaded on the page of the plug-ins.</source>
        <extracomment>%1 = name of a plug-in</extracomment>
        <translation>Das Modul „%1“ wurde ausgelassen, weil das Programm endete, als es zuletzt geladen wurde. Es kann auf der Seite „Module“ geladen werden.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it crashed when it was tested.</source>
        <translation>Das Modul wurde ausgelassen, weil es bei der Prüfung abgestürzt ist.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it ended the process in which it was tested.</source>
        <translation>Das Modul wurde ausgelassen, weil es den Prozess beendet hat, in dem es geprüft wurde.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it was not ready within %1 s when it was tested.</source>
        <translation>Das Modul wurde ausgelassen, weil es bei der Prüfung nicht innerhalb von %1 s bereit war.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because the program ended when it was loaded the last time.</source>
        <translation>Das Modul wurde ausgelassen, weil das Programm endete, als es zuletzt geladen wurde.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Die Datei kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>KirvPluginTrust</name>
    <message>
        <source>The file cannot be examined.</source>
        <translation>Die Datei kann nicht untersucht werden.</translation>
    </message>
    <message>
        <source>The plug-in is not trusted: %1 belongs to another user.</source>
        <extracomment>%1 = path of a file or folder</extracomment>
        <translation>Dem Modul wird nicht vertraut: %1 gehört einem anderen Benutzer.</translation>
    </message>
    <message>
        <source>The plug-in is not trusted: others than you may write to %1.</source>
        <extracomment>%1 = path of a file or folder</extracomment>
        <translation>Dem Modul wird nicht vertraut: Andere als Sie dürfen %1 ändern.</translation>
    </message>
</context>
<context>
    <name>KirvPluginsPage</name>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Laden</translation>
    </message>
    <message>
        <source>&amp;Unload</source>
        <translation>&amp;Entladen</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Module</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Modul</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>About the plug-in</source>
        <translation>Über das Modul</translation>
    </message>
    <message>
        <source>Loads the plug-in; its accounts come back as they were.</source>
        <translation>Lädt das Modul; seine Konten kommen wieder, wie sie waren.</translation>
    </message>
    <message>
        <source>Logs the accounts of the plug-in out. They stay in your profile.</source>
        <translation>Meldet die Konten des Moduls ab. Sie bleiben in Ihrem Profil.</translation>
    </message>
    <message>
        <source>Plug-ins are looked for in the folder %1.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation>Module werden im Ordner %1 gesucht.</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>Geladen</translation>
    </message>
    <message>
        <source>Not loaded</source>
        <translation>Nicht geladen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>There are no plug-ins.</source>
        <translation>Es gibt keine Module.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Being tested</source>
        <translation>Wird geprüft</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Wird geladen</translation>
    </message>
    <message>
        <source>&amp;Report…</source>
        <translation>&amp;Bericht …</translation>
    </message>
    <message>
        <source>Puts versions, plug-ins and the states of the accounts together for somebody who helps.</source>
        <translation>Stellt Versionen, Module und die Zustände der Konten für jemanden zusammen, der hilft.</translation>
    </message>
    <message>
        <source>When the plug-in %1 is unloaded, its account %2 goes off line.</source>
        <extracomment>%1 = name of a plug-in, %2 = name of an account</extracomment>
        <translation>Wenn das Modul %1 entladen wird, wird sein Konto %2 abgemeldet.</translation>
    </message>
    <message numerus="yes">
        <source>When the plug-in %1 is unloaded, its %n connected accounts go off line.</source>
        <extracomment>%1 = name of a plug-in</extracomment>
        <translation>
            <numerusform>Wenn das Modul %1 entladen wird, wird sein verbundenes Konto abgemeldet.</numerusform>
            <numerusform>Wenn das Modul %1 entladen wird, werden seine %n verbundenen Konten abgemeldet.</numerusform>
        </translation>
    </message>
    <message>
        <source>Unload Plug-in</source>
        <translation>Modul entladen</translation>
    </message>
    <message>
        <source>The accounts stay in your profile and come back when the plug-in is loaded again.</source>
        <translation>Die Konten bleiben in Ihrem Profil und kommen wieder, wenn das Modul erneut geladen wird.</translation>
    </message>
</context>
<context>
    <name>KirvProfileCheck</name>
    <message>
        <source>The profile folder &quot;%1&quot; could not be made.</source>
        <translation>Der Profilordner „%1“ konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link. The program follows no link inside a profile: replace it by what it leads to.</source>
        <translation>„%1“ ist eine Verknüpfung. Das Programm folgt in einem Profil keiner Verknüpfung: Ersetzen Sie sie durch das, worauf sie zeigt.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not a profile: it holds other files. Nothing in it was changed: choose an empty folder.</source>
        <translation>Der Ordner „%1“ ist kein Profil: Er enthält andere Dateien. Nichts darin wurde geändert: Wählen Sie einen leeren Ordner.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; was written by a newer version of the program. Use that version to open it; nothing in it was changed.</source>
        <translation>Das Profil in „%1“ wurde von einer neueren Version des Programms geschrieben. Öffnen Sie es mit dieser; nichts darin wurde geändert.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is in use by another running instance of the program. Close that one first.</source>
        <translation>Das Profil in „%1“ wird von einem anderen laufenden Exemplar des Programms benutzt. Beenden Sie dieses zuerst.</translation>
    </message>
    <message>
        <source>The profile folder &quot;%1&quot; cannot be written. Check its owner and permissions, and whether the disk is full.</source>
        <translation>Der Profilordner „%1“ kann nicht geschrieben werden. Prüfen Sie Besitzer und Rechte und ob der Datenträger voll ist.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; belongs to another program. Nothing in it was changed.</source>
        <translation>Die Datei „%1“ gehört einem anderen Programm. Nichts darin wurde geändert.</translation>
    </message>
    <message>
        <source>Its database is missing.</source>
        <translation>Seine Datenbank fehlt.</translation>
    </message>
    <message>
        <source>The end of its database is missing.</source>
        <translation>Das Ende seiner Datenbank fehlt.</translation>
    </message>
    <message>
        <source>Tables or columns of its database are missing.</source>
        <translation>Tabellen oder Spalten seiner Datenbank fehlen.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is damaged. %2 Nothing in it was changed.</source>
        <extracomment>%1 = path of a folder, %2 = a sentence about what is wrong with it</extracomment>
        <translation>Das Profil in „%1“ ist beschädigt. %2 Nichts darin wurde geändert.</translation>
    </message>
    <message>
        <source>The file of its database does not hold one any more.</source>
        <translation>Die Datei seiner Datenbank enthält keine mehr.</translation>
    </message>
    <message>
        <source>Parts of its database cannot be read, or contradict each other.</source>
        <translation>Teile seiner Datenbank sind nicht lesbar oder widersprechen einander.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file. Move it away to use the profile.</source>
        <translation>„%1“ ist keine gewöhnliche Datei. Legen Sie sie beiseite, um das Profil zu benutzen.</translation>
    </message>
</context>
<context>
    <name>KirvProfileCommand</name>
    <message>
        <source>There is no profile in &quot;%1&quot; yet.</source>
        <translation>In „%1“ gibt es noch kein Profil.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is not damaged.</source>
        <translation>Das Profil in „%1“ ist nicht beschädigt.</translation>
    </message>
    <message>
        <source>The profile is not damaged, so nothing was restored. Name a copy to go back to it.</source>
        <translation>Das Profil ist nicht beschädigt; daher wurde nichts wiederhergestellt. Nennen Sie eine Kopie, um zu ihr zurückzukehren.</translation>
    </message>
    <message>
        <source>There is no copy of the profile that could be restored.</source>
        <translation>Es gibt keine Kopie des Profils, die wiederhergestellt werden könnte.</translation>
    </message>
    <message>
        <source>There is no copy &quot;%1&quot; that could be restored.</source>
        <translation>Es gibt keine Kopie „%1“, die wiederhergestellt werden könnte.</translation>
    </message>
    <message>
        <source>The profile is not damaged, so there is nothing to recover.</source>
        <translation>Das Profil ist nicht beschädigt; daher gibt es nichts zu retten.</translation>
    </message>
    <message>
        <source>The option --restore restores the newest copy or the one that is named, and --recover reads what is still readable of the damaged database. To start fresh, move the folder away.</source>
        <translation>Die Option --restore stellt die neueste oder die genannte Kopie wieder her, und --recover liest, was von der beschädigten Datenbank noch lesbar ist. Um neu zu beginnen, legen Sie den Ordner beiseite.</translation>
    </message>
    <message>
        <source>Copies of the profile, without passwords:</source>
        <translation>Kopien des Profils, ohne Passwörter:</translation>
    </message>
    <message>
        <source>  %1  %2  Accounts: %3</source>
        <extracomment>%1 = name of a file, %2 = date and time, %3 = number of accounts</extracomment>
        <translation>  %1  %2  Konten: %3</translation>
    </message>
</context>
<context>
    <name>KirvProfileCopies</name>
    <message>
        <source>No copy of the profile in &quot;%1&quot; could be kept. Check the permissions of the folder &quot;copies&quot; in it, and whether the disk is full.</source>
        <translation>Vom Profil in „%1“ konnte keine Kopie behalten werden. Prüfen Sie die Rechte des Ordners „copies“ darin, und ob der Datenträger voll ist.</translation>
    </message>
</context>
<context>
    <name>KirvProfileOpening</name>
    <message>
        <source>The profile folder &quot;%1&quot; could not be made.</source>
        <translation>Der Profilordner „%1“ konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be made. Check whether the disk is full.</source>
        <translation>„%1“ konnte nicht angelegt werden. Prüfen Sie, ob der Datenträger voll ist.</translation>
    </message>
</context>
<context>
    <name>KirvProfileRescue</name>
    <message>
        <source>There is no profile in &quot;%1&quot;.</source>
        <translation>In „%1“ gibt es kein Profil.</translation>
    </message>
    <message>
        <source>The copy &quot;%1&quot; is damaged, too.</source>
        <translation>Die Kopie „%1“ ist ebenfalls beschädigt.</translation>
    </message>
    <message>
        <source>Nothing in the damaged profile in &quot;%1&quot; can be read any more.</source>
        <translation>Im beschädigten Profil in „%1“ ist nichts mehr lesbar.</translation>
    </message>
</context>
<context>
    <name>KirvProfileSaver</name>
    <message>
        <source>&amp;Save to Another Folder…</source>
        <translation>In anderem Ordner &amp;speichern …</translation>
    </message>
    <message>
        <source>Save to an Empty Folder</source>
        <translation>In leerem Ordner speichern</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Everything that was stored is in &quot;%1&quot; again. Continue to go on with it; the accounts log in again then.</source>
        <translation>Alles, was gespeichert war, ist wieder in „%1“. Mit „Weiter“ wird damit fortgefahren; die Konten melden sich dann erneut an.</translation>
    </message>
    <message>
        <source>Everything that was stored is in &quot;%1&quot; now. Continue to go on with it; the accounts log in again then. From the next start on, start the program with the option --profile &quot;%1&quot;.</source>
        <translation>Alles, was gespeichert war, ist jetzt in „%1“. Mit „Weiter“ wird damit fortgefahren; die Konten melden sich dann erneut an. Starten Sie das Programm ab dem nächsten Mal mit der Option --profile &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Weiter</translation>
    </message>
</context>
<context>
    <name>KirvProviderList</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 (not verified; %2, %3)</source>
        <extracomment>%1 = a server, %2 = who says that it can be used, as a web address, %3 = date</extracomment>
        <translation>%1 (nicht geprüft; %2, %3)</translation>
    </message>
    <message>
        <source>Providers</source>
        <translation>Anbieter</translation>
    </message>
    <message>
        <source>The Down key shows known providers.</source>
        <translation>Die Pfeiltaste nach unten zeigt bekannte Anbieter.</translation>
    </message>
    <message>
        <source>The list of providers %1 cannot be read.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Die Anbieterliste %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The list of providers %1 is not used: it is too large.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Die Anbieterliste %1 wird nicht verwendet: Sie ist zu groß.</translation>
    </message>
    <message>
        <source>About the list of providers %1: %2</source>
        <extracomment>%1 = path of a file, %2 = a sentence</extracomment>
        <translation>Zur Anbieterliste %1: %2</translation>
    </message>
    <message>
        <source>It is not used, because it has not the format of such a list.</source>
        <translation>Sie wird nicht verwendet, weil sie nicht das Format einer solchen Liste hat.</translation>
    </message>
    <message>
        <source>One entry is left out, because it is not complete.</source>
        <translation>Ein Eintrag wird ausgelassen, weil er nicht vollständig ist.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries are left out, because they are not complete.</source>
        <translation>
            <numerusform>Ein Eintrag wird ausgelassen, weil er nicht vollständig ist.</numerusform>
            <numerusform>%n Einträge werden ausgelassen, weil sie nicht vollständig sind.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvProxy</name>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>That of the system</source>
        <translation>Der des Systems</translation>
    </message>
    <message>
        <source>SOCKS5</source>
        <translation>SOCKS5</translation>
    </message>
    <message>
        <source>HTTP</source>
        <translation>HTTP</translation>
    </message>
    <message>
        <source>What all connections of the account go through. With a proxy the account is never connected without it, and the proxy looks the name of the server up.</source>
        <translation>Worüber alle Verbindungen des Kontos laufen. Mit einem Proxy wird das Konto nie ohne ihn verbunden, und der Proxy schlägt den Namen des Servers nach.</translation>
    </message>
    <message>
        <source>Proxy host</source>
        <translation>Proxy-Rechner</translation>
    </message>
    <message>
        <source>The name or address of a SOCKS5 or HTTP proxy.</source>
        <translation>Name oder Adresse eines SOCKS5- oder HTTP-Proxys.</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Proxy-Port</translation>
    </message>
    <message>
        <source>Ordinarily 1080 with SOCKS5, and 3128 or 8080 with HTTP.</source>
        <translation>Gewöhnlich 1080 bei SOCKS5 und 3128 oder 8080 bei HTTP.</translation>
    </message>
    <message>
        <source>Proxy user</source>
        <translation>Proxy-Benutzer</translation>
    </message>
    <message>
        <source>Empty: the proxy needs no log-in.</source>
        <translation>Leer: Der Proxy braucht keine Anmeldung.</translation>
    </message>
    <message>
        <source>Proxy password</source>
        <translation>Proxy-Passwort</translation>
    </message>
    <message>
        <source>The proxy receives it without encryption. Do not use the password of the account.</source>
        <translation>Der Proxy erhält es unverschlüsselt. Verwenden Sie nicht das Passwort des Kontos.</translation>
    </message>
    <message>
        <source>The kind of the proxy is not known.</source>
        <translation>Die Art des Proxys ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The proxy has no host.</source>
        <translation>Der Proxy hat keinen Rechnernamen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a proxy.</source>
        <translation>„%1“ ist nicht der Name eines Proxys.</translation>
    </message>
    <message>
        <source>The port of the proxy must be a number from 1 to 65535.</source>
        <translation>Der Port des Proxys muss eine Zahl von 1 bis 65535 sein.</translation>
    </message>
    <message>
        <source>The user or the password of the proxy cannot be sent: it is too long or has characters that do not belong to a line.</source>
        <translation>Benutzer oder Passwort des Proxys können nicht gesendet werden: zu lang, oder mit Zeichen, die nicht in eine Zeile gehören.</translation>
    </message>
    <message>
        <source>The user of an HTTP proxy cannot have a colon.</source>
        <translation>Der Benutzer eines HTTP-Proxys darf keinen Doppelpunkt enthalten.</translation>
    </message>
    <message>
        <source>There is a password of the proxy, but no user.</source>
        <translation>Für den Proxy gibt es ein Passwort, aber keinen Benutzer.</translation>
    </message>
    <message>
        <source>it does not find the server, or does not allow a connection to it</source>
        <translation>er findet den Server nicht oder erlaubt keine Verbindung zu ihm</translation>
    </message>
</context>
<context>
    <name>KirvRegistrationChooser</name>
    <message>
        <source>Register Account</source>
        <translation>Konto registrieren</translation>
    </message>
    <message>
        <source>For which &amp;protocol do you want to register a new account?</source>
        <translation>Für welches &amp;Protokoll möchten Sie ein neues Konto registrieren?</translation>
    </message>
    <message>
        <source>Protocols</source>
        <translation>Protokolle</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Weiter</translation>
    </message>
</context>
<context>
    <name>KirvReport</name>
    <message>
        <source>Qt %1 (%2)</source>
        <extracomment>%1 = a version, %2 = a processor</extracomment>
        <translation>Qt %1 (%2)</translation>
    </message>
    <message>
        <source>No library for encryption</source>
        <translation>Keine Bibliothek für Verschlüsselung</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <extracomment>%1 = &quot;Debian GNU/Linux 12&quot;, %2 = &quot;linux 6.1&quot;, %3 = a processor</extracomment>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>%1: no versions stated</source>
        <extracomment>%1 = name of a protocol, %2 = &quot;QXmpp 1.4.0&quot;, or several such</extracomment>
        <translation>%1: keine Versionen angegeben</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>(name)</source>
        <translation>(Name)</translation>
    </message>
    <message>
        <source>%1: %2, file %3</source>
        <extracomment>%1 = name of a plug-in, %2 = its state, %3 = name of a file</extracomment>
        <translation>%1: %2, Datei %3</translation>
    </message>
    <message>
        <source>Account %1, %2</source>
        <extracomment>%1 = a number, %2 = name of a protocol</extracomment>
        <translation>Konto %1, %2</translation>
    </message>
    <message>
        <source>Login: %1</source>
        <extracomment>%1 = a login</extracomment>
        <translation>Anmeldename: %1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <extracomment>%1 = &quot;Connected&quot; or another state</extracomment>
        <translation>Zustand: %1</translation>
    </message>
    <message>
        <source>Report of %1 (times in UTC)</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Bericht vom %1 (Zeiten in UTC)</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Module</translation>
    </message>
    <message numerus="yes">
        <source>%n more accounts are left out.</source>
        <translation>
            <numerusform>Ein weiteres Konto ist ausgelassen.</numerusform>
            <numerusform>%n weitere Konten sind ausgelassen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvReportWindow</name>
    <message>
        <source>&amp;Include logins and other names</source>
        <translation>&amp;Anmeldenamen und andere Namen aufnehmen</translation>
    </message>
    <message>
        <source>Report for Somebody Who Helps</source>
        <translation>Bericht für jemanden, der hilft</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Passwords are left out. Read the report before you give it to anybody.</source>
        <translation>Passwörter sind ausgelassen. Lesen Sie den Bericht, bevor Sie ihn jemandem geben.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Speichern …</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>report</source>
        <translation>bericht</translation>
    </message>
    <message>
        <source>The report was saved to %1.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Der Bericht wurde in %1 gespeichert.</translation>
    </message>
    <message>
        <source>The report could not be saved to %1: %2.</source>
        <translation>Der Bericht konnte nicht in %1 gespeichert werden: %2.</translation>
    </message>
</context>
<context>
    <name>KirvRescueWindow</name>
    <message>
        <source>Damaged Profile</source>
        <translation>Beschädigtes Profil</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Choose what to do. The damaged database is kept in any case, under a name with the date.</source>
        <translation>Wählen Sie, was geschehen soll. Die beschädigte Datenbank bleibt in jedem Fall unter einem Namen mit dem Datum erhalten.</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>There is no copy of the profile that could be restored.</source>
        <translation>Es gibt keine Kopie des Profils, die wiederhergestellt werden könnte.</translation>
    </message>
    <message>
        <source>Co&amp;pies of the profile:</source>
        <translation>Ko&amp;pien des Profils:</translation>
    </message>
    <message>
        <source>Copies of the profile</source>
        <translation>Kopien des Profils</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Konten</translation>
    </message>
    <message>
        <source>&amp;Restore the Selected Copy</source>
        <translation>Gewählte Kopie &amp;wiederherstellen</translation>
    </message>
    <message>
        <source>Accounts and settings are then as they were at that time. Passwords and other secret settings are in no copy and have to be entered again.</source>
        <translation>Konten und Einstellungen sind dann wie zu jener Zeit. Passwörter und andere geheime Einstellungen sind in keiner Kopie und müssen neu eingegeben werden.</translation>
    </message>
    <message>
        <source>Recover &amp;What Is Readable</source>
        <translation>&amp;Lesbares retten</translation>
    </message>
    <message>
        <source>The damaged database is read row by row, with the passwords, and what was found is shown.</source>
        <translation>Die beschädigte Datenbank wird Zeile für Zeile gelesen, mit den Passwörtern, und es wird gezeigt, was gefunden wurde.</translation>
    </message>
    <message>
        <source>Start &amp;Fresh</source>
        <translation>&amp;Neu beginnen</translation>
    </message>
    <message>
        <source>The profile then has no accounts.</source>
        <translation>Das Profil hat dann keine Konten.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>The profile can be used again.</source>
        <translation>Das Profil kann wieder benutzt werden.</translation>
    </message>
</context>
<context>
    <name>KirvRevealButton</name>
    <message>
        <source>Hide the text</source>
        <translation>Text verbergen</translation>
    </message>
    <message>
        <source>Show the text</source>
        <translation>Text anzeigen</translation>
    </message>
</context>
<context>
    <name>KirvSecretTexts</name>
    <message>
        <source>in a file only you can read</source>
        <translation>in einer Datei, die nur Sie lesen können</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>where a password is kept; %1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>in %1</translation>
    </message>
    <message>
        <source>in %1 (locked: you will be asked to unlock it)</source>
        <extracomment>where a password is kept; %1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>in %1 (gesperrt: Sie werden gebeten, ihn zu entsperren)</translation>
    </message>
    <message>
        <source>Your keyring does not respond: it would be kept there when it responds again</source>
        <translation>Ihr Schlüsselbund antwortet nicht: Es würde dort abgelegt, sobald er wieder antwortet</translation>
    </message>
    <message>
        <source>There is no keyring here: it would be kept in a file only you can read</source>
        <translation>Hier gibt es keinen Schlüsselbund: Es würde in einer Datei abgelegt, die nur Sie lesen können</translation>
    </message>
    <message>
        <source>Reading the password…</source>
        <translation>Das Passwort wird gelesen …</translation>
    </message>
    <message>
        <source>The keyring is locked</source>
        <translation>Der Schlüsselbund ist gesperrt</translation>
    </message>
    <message>
        <source>The keyring does not respond</source>
        <translation>Der Schlüsselbund antwortet nicht</translation>
    </message>
    <message>
        <source>The keyring is not there</source>
        <translation>Der Schlüsselbund ist nicht da</translation>
    </message>
    <message>
        <source>The keyring cannot be read</source>
        <translation>Der Schlüsselbund kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Or enter the password: it is used until the program ends.</source>
        <translation>Oder geben Sie das Passwort ein: Es wird bis zum Ende des Programms verwendet.</translation>
    </message>
    <message>
        <source>The password is being read from %1.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;, here and below</extracomment>
        <translation>Das Passwort wird aus %1 gelesen.</translation>
    </message>
    <message>
        <source>The password is in %1, which is locked. Unlock it.</source>
        <translation>Das Passwort ist in %1; er ist gesperrt. Entsperren Sie ihn.</translation>
    </message>
    <message>
        <source>The password is in %1, which was not unlocked. Reconnect asks again.</source>
        <translation>Das Passwort ist in %1; er wurde nicht entsperrt. „Neu verbinden“ fragt erneut.</translation>
    </message>
    <message>
        <source>The password is in %1, which does not respond. The account connects when it does.</source>
        <translation>Das Passwort ist in %1; er antwortet nicht. Das Konto verbindet sich, sobald er antwortet.</translation>
    </message>
    <message>
        <source>The password is in the keyring, which is not there. The account connects when it is started.</source>
        <translation>Das Passwort ist im Schlüsselbund, der nicht da ist. Das Konto verbindet sich, sobald er gestartet ist.</translation>
    </message>
    <message>
        <source>The password is in %1, which cannot be read. Reconnect tries again.</source>
        <translation>Das Passwort ist in %1; er kann nicht gelesen werden. „Neu verbinden“ versucht es erneut.</translation>
    </message>
    <message>
        <source>in your keyring</source>
        <extracomment>where a password is kept</extracomment>
        <translation>in Ihrem Schlüsselbund</translation>
    </message>
    <message>
        <source>in your keyring (locked: you will be asked to unlock it)</source>
        <extracomment>where a password is kept</extracomment>
        <translation>in Ihrem Schlüsselbund (gesperrt: Sie werden gebeten, ihn zu entsperren)</translation>
    </message>
    <message>
        <source>The password is being read from your keyring.</source>
        <translation>Das Passwort wird aus Ihrem Schlüsselbund gelesen.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which is locked. Unlock it.</source>
        <translation>Das Passwort ist in Ihrem Schlüsselbund; er ist gesperrt. Entsperren Sie ihn.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which was not unlocked. Reconnect asks again.</source>
        <translation>Das Passwort ist in Ihrem Schlüsselbund; er wurde nicht entsperrt. „Neu verbinden“ fragt erneut.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which does not respond. The account connects when it does.</source>
        <translation>Das Passwort ist in Ihrem Schlüsselbund; er antwortet nicht. Das Konto verbindet sich, sobald er antwortet.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which cannot be read. Reconnect tries again.</source>
        <translation>Das Passwort ist in Ihrem Schlüsselbund; er kann nicht gelesen werden. „Neu verbinden“ versucht es erneut.</translation>
    </message>
    <message>
        <source>The password is being read. It stays as it is unless you enter another one.</source>
        <translation>Das Passwort wird gelesen. Es bleibt, wie es ist, wenn Sie kein anderes eingeben.</translation>
    </message>
    <message>
        <source>The keyring is locked. The password stays as it is unless you enter another one.</source>
        <translation>Der Schlüsselbund ist gesperrt. Das Passwort bleibt, wie es ist, wenn Sie kein anderes eingeben.</translation>
    </message>
    <message>
        <source>The keyring does not respond. The password stays as it is unless you enter another one.</source>
        <translation>Der Schlüsselbund antwortet nicht. Das Passwort bleibt, wie es ist, wenn Sie kein anderes eingeben.</translation>
    </message>
    <message>
        <source>The keyring is not there. The password stays as it is unless you enter another one.</source>
        <translation>Der Schlüsselbund ist nicht da. Das Passwort bleibt, wie es ist, wenn Sie kein anderes eingeben.</translation>
    </message>
    <message>
        <source>The keyring cannot be read. The password stays as it is unless you enter another one.</source>
        <translation>Der Schlüsselbund kann nicht gelesen werden. Das Passwort bleibt, wie es ist, wenn Sie kein anderes eingeben.</translation>
    </message>
    <message>
        <source>Passwords that are remembered are kept in a file only you can read.</source>
        <translation>Gemerkte Passwörter sind in einer Datei, die nur Sie lesen können.</translation>
    </message>
    <message>
        <source>The program is finding out whether there is a keyring.</source>
        <translation>Das Programm stellt fest, ob es einen Schlüsselbund gibt.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It is unlocked.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;, here and below</extracomment>
        <translation>%1 bewahrt die Passwörter auf. Der Schlüsselbund ist entsperrt.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It is unlocked.</source>
        <translation>Ihr Schlüsselbund bewahrt die Passwörter auf. Er ist entsperrt.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It is locked.</source>
        <translation>%1 bewahrt die Passwörter auf. Der Schlüsselbund ist gesperrt.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It is locked.</source>
        <translation>Ihr Schlüsselbund bewahrt die Passwörter auf. Er ist gesperrt.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It does not respond.</source>
        <translation>%1 bewahrt die Passwörter auf. Der Schlüsselbund antwortet nicht.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It does not respond.</source>
        <translation>Ihr Schlüsselbund bewahrt die Passwörter auf. Er antwortet nicht.</translation>
    </message>
    <message>
        <source>There is no keyring.</source>
        <translation>Es gibt keinen Schlüsselbund.</translation>
    </message>
    <message>
        <source>The password is not in the keyring any more.</source>
        <translation>Das Passwort ist nicht mehr im Schlüsselbund.</translation>
    </message>
    <message>
        <source>Or edit the account and enter its passwords again.</source>
        <translation>Oder bearbeiten Sie das Konto und geben Sie seine Passwörter neu ein.</translation>
    </message>
    <message>
        <source>Or edit the account and enter it again.</source>
        <translation>Oder bearbeiten Sie das Konto und geben Sie es neu ein.</translation>
    </message>
    <message>
        <source>Some passwords are still in a file only you can read. They are moved when the keyring is unlocked.</source>
        <translation>Einige Passwörter liegen noch in einer Datei, die nur Sie lesen können. Sie werden verschoben, wenn der Schlüsselbund entsperrt wird.</translation>
    </message>
    <message>
        <source>There is no keyring here: it is kept in a file only you can read.</source>
        <extracomment>it = a password that was just stored</extracomment>
        <translation>Hier gibt es keinen Schlüsselbund: Es ist in einer Datei abgelegt, die nur Sie lesen können.</translation>
    </message>
</context>
<context>
    <name>KirvServerAssistant</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Waiting for the server</source>
        <translation>Warten auf den Server</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Anweisungen</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Con&amp;figuration:</source>
        <translation>&amp;Vorlage:</translation>
    </message>
    <message>
        <source>&amp;Remember the password</source>
        <translation>Passwort &amp;merken</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>There is a picture for &quot;%1&quot;, which cannot be shown: %2</source>
        <extracomment>%1 = a caption, %2 = an address</extracomment>
        <translation>Zu „%1“ gibt es ein Bild, das nicht gezeigt werden kann: %2</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Reading the picture for &quot;%1&quot;…</source>
        <extracomment>%1 = a caption</extracomment>
        <translation>Das Bild für „%1“ wird gelesen …</translation>
    </message>
</context>
<context>
    <name>KirvServerCertificate</name>
    <message>
        <source>%1 (%2)</source>
        <extracomment>whom a certificate is for or from: %1 = name, %2 = organization</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>It is not for %1.</source>
        <extracomment>%1 = name of a server</extracomment>
        <translation>Es gilt nicht für %1.</translation>
    </message>
    <message>
        <source>It is for %1, and not for %2.</source>
        <extracomment>%1 and %2 = names of servers</extracomment>
        <translation>Es gilt für %1 und nicht für %2.</translation>
    </message>
    <message>
        <source>It is self-signed: no authority has issued it.</source>
        <translation>Es ist selbst signiert: Keine Zertifizierungsstelle hat es ausgestellt.</translation>
    </message>
    <message>
        <source>It is not from an authority that this computer trusts.</source>
        <translation>Es stammt nicht von einer Zertifizierungsstelle, der dieser Rechner vertraut.</translation>
    </message>
    <message>
        <source>It has expired: it was valid until %1.</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Es ist abgelaufen: Es war bis %1 gültig.</translation>
    </message>
    <message>
        <source>A certificate of its issuer has expired.</source>
        <translation>Ein Zertifikat seines Ausstellers ist abgelaufen.</translation>
    </message>
    <message>
        <source>It is not valid before %1.</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Es ist erst ab %1 gültig.</translation>
    </message>
    <message>
        <source>A certificate of its issuer is not valid yet.</source>
        <translation>Ein Zertifikat seines Ausstellers ist noch nicht gültig.</translation>
    </message>
    <message>
        <source>It was withdrawn.</source>
        <translation>Es wurde widerrufen.</translation>
    </message>
    <message>
        <source>For</source>
        <extracomment>the servers that a certificate is for</extracomment>
        <translation>Für</translation>
    </message>
    <message>
        <source>Owner</source>
        <extracomment>whom a certificate is for</extracomment>
        <translation>Inhaber</translation>
    </message>
    <message>
        <source>Issued by</source>
        <extracomment>as in &quot;Issued by: itself&quot;</extracomment>
        <translation>Ausgestellt von</translation>
    </message>
    <message>
        <source>itself</source>
        <translation>sich selbst</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Gültig ab</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Gültig bis</translation>
    </message>
    <message>
        <source>Fingerprint (SHA-256)</source>
        <translation>Fingerabdruck (SHA-256)</translation>
    </message>
</context>
<context>
    <name>KirvServerCommands</name>
    <message>
        <source>None of the loaded plug-ins can register a new account.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>Keines der geladenen Module kann ein neues Konto registrieren.</translation>
    </message>
    <message>
        <source>New accounts cannot be registered with %1.</source>
        <translation>Mit %1 können keine neuen Konten registriert werden.</translation>
    </message>
</context>
<context>
    <name>KirvServerTask</name>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = name of an account, %2 = one or more sentences about it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The server accepted the form. Add the account with the login that the server gives you.</source>
        <translation>Der Server hat das Formular angenommen. Fügen Sie das Konto mit dem Anmeldenamen hinzu, den der Server Ihnen gibt.</translation>
    </message>
    <message>
        <source>The account %1 is registered on the server, but it was not added here. %2</source>
        <extracomment>%1 = login of an account, %2 = the reason, a sentence</extracomment>
        <translation>Das Konto %1 ist auf dem Server registriert, wurde hier aber nicht hinzugefügt. %2</translation>
    </message>
    <message>
        <source>Add Again</source>
        <translation>Erneut hinzufügen</translation>
    </message>
    <message>
        <source>The account %1 has the new password on its server. The password is used until the program ends, but it is not stored. %2</source>
        <extracomment>%1 = name of an account, %2 = the reason, a sentence</extracomment>
        <translation>Das Konto %1 hat auf seinem Server das neue Passwort. Es wird bis zum Ende des Programms verwendet, ist aber nicht gespeichert. %2</translation>
    </message>
    <message>
        <source>Store Again</source>
        <translation>Erneut speichern</translation>
    </message>
    <message>
        <source>The account %1 is deleted on its server, but it was not removed here. %2</source>
        <extracomment>%1 = name of an account, %2 = the reason, a sentence</extracomment>
        <translation>Das Konto %1 ist auf seinem Server gelöscht, wurde hier aber nicht entfernt. %2</translation>
    </message>
    <message>
        <source>Remove Again</source>
        <translation>Erneut entfernen</translation>
    </message>
    <message>
        <source>The password of the account %1 is changed on its server.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Das Passwort des Kontos %1 ist auf seinem Server geändert.</translation>
    </message>
</context>
<context>
    <name>KirvSettingsManager</name>
    <message>
        <source>Name shown</source>
        <translation>Angezeigter Name</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Remember the password</source>
        <translation>Passwort merken</translation>
    </message>
    <message>
        <source>Restore the last presence</source>
        <translation>Letzten Status wiederherstellen</translation>
    </message>
    <message>
        <source>Restore the last description</source>
        <translation>Letzte Beschreibung wiederherstellen</translation>
    </message>
</context>
<context>
    <name>KirvSettingsWindow</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Kirv – Settings</source>
        <extracomment>window title; %1 = name of the main account</extracomment>
        <translation>Kirv – Einstellungen</translation>
    </message>
    <message>
        <source>Kirv – Settings – %1</source>
        <translation>Kirv – Einstellungen – %1</translation>
    </message>
</context>
<context>
    <name>KirvSocketSteps</name>
    <message>
        <source>%1, port %2</source>
        <extracomment>%1 = name of a server, %2 = number of a port</extracomment>
        <translation>%1, Port %2</translation>
    </message>
    <message>
        <source>%1, which the proxy looks up</source>
        <extracomment>%1 = server and port</extracomment>
        <translation>%1; den Namen löst der Proxy auf</translation>
    </message>
    <message>
        <source>through the proxy %1</source>
        <extracomment>%1 = name of a proxy</extracomment>
        <translation>über den Proxy %1</translation>
    </message>
    <message>
        <source>none, as the settings say</source>
        <translation>keine, wie eingestellt</translation>
    </message>
    <message>
        <source>none: the server offers none</source>
        <translation>keine: der Server bietet keine an</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 = &quot;TLS 1.3&quot;, %2 = about a certificate</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>certificate of %1, valid until %2, fingerprint %3 (SHA-256)</source>
        <extracomment>%1 = name of a server, %2 = a date, %3 = hexadecimal digits</extracomment>
        <translation>Zertifikat von %1, gültig bis %2, Fingerabdruck %3 (SHA-256)</translation>
    </message>
</context>
<context>
    <name>KirvSortingHint</name>
    <message>
        <source>The list is sorted by a column. Accounts can be moved only in your own order.</source>
        <translation>Die Liste ist nach einer Spalte sortiert. Konten können nur in Ihrer eigenen Reihenfolge verschoben werden.</translation>
    </message>
    <message>
        <source>&amp;Own Order</source>
        <translation>Ei&amp;gene Reihenfolge</translation>
    </message>
</context>
<context>
    <name>KirvStore</name>
    <message>
        <source>The account &quot;%1&quot; (%2) is not in the profile.</source>
        <translation>Das Konto „%1“ (%2) ist nicht im Profil.</translation>
    </message>
    <message>
        <source>There is no home folder to keep the profile in: the environment variable HOME is not set. Set it, or name a folder for the profile.</source>
        <translation>Es gibt keinen persönlichen Ordner für das Profil: Die Umgebungsvariable HOME ist nicht gesetzt. Setzen Sie sie, oder nennen Sie einen Ordner für das Profil.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; was deleted, moved or replaced while the program was running, so nothing was stored. Save the accounts to another folder.</source>
        <translation>Das Profil in „%1“ wurde gelöscht, verschoben oder ersetzt, während das Programm lief; daher wurde nichts gespeichert. Speichern Sie die Konten in einem anderen Ordner.</translation>
    </message>
    <message>
        <source>There is a profile in &quot;%1&quot; already. Choose an empty folder.</source>
        <translation>In „%1“ gibt es schon ein Profil. Wählen Sie einen leeren Ordner.</translation>
    </message>
    <message>
        <source>The copies of the profile in &quot;%1&quot; could not be removed. Check the permissions of the folder &quot;copies&quot; in it.</source>
        <translation>Die Kopien des Profils in „%1“ konnten nicht entfernt werden. Prüfen Sie die Berechtigungen des Ordners „copies“ darin.</translation>
    </message>
</context>
<context>
    <name>KirvXmppAvatar</name>
    <message>
        <source>The picture of the account cannot be read.</source>
        <translation>Das Bild des Kontos kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>KirvXmppConnection</name>
    <message>
        <source>The login must be an address such as user@domain.</source>
        <translation>Der Anmeldename muss eine Adresse wie name@domäne sein.</translation>
    </message>
    <message>
        <source>The account is not connected.</source>
        <translation>Das Konto ist nicht verbunden.</translation>
    </message>
    <message>
        <source>the server does not answer any more</source>
        <translation>der Server antwortet nicht mehr</translation>
    </message>
</context>
<context>
    <name>KirvXmppDeletionRequest</name>
    <message>
        <source>Delete Account on Server</source>
        <translation>Konto auf dem Server löschen</translation>
    </message>
    <message>
        <source>Do you want to delete the account %1 on its server? Its contacts and everything the server keeps for it are lost.</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>Möchten Sie das Konto %1 auf seinem Server löschen? Seine Kontakte und alles, was der Server dafür aufbewahrt, gehen verloren.</translation>
    </message>
    <message>
        <source>Delete on Server</source>
        <translation>Auf dem Server löschen</translation>
    </message>
    <message>
        <source>This cannot be undone, and somebody else can take the address %1 afterwards. Is %1 really to be deleted?</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>Das kann nicht rückgängig gemacht werden, und jemand anders kann danach die Adresse %1 nehmen. Soll %1 wirklich gelöscht werden?</translation>
    </message>
    <message>
        <source>Delete for Good</source>
        <translation>Endgültig löschen</translation>
    </message>
    <message>
        <source>Deleting the account…</source>
        <translation>Das Konto wird gelöscht …</translation>
    </message>
</context>
<context>
    <name>KirvXmppDirectory</name>
    <message>
        <source>The directory entry is too long to be sent.</source>
        <translation>Der Verzeichniseintrag ist zu lang, um gesendet zu werden.</translation>
    </message>
</context>
<context>
    <name>KirvXmppError</name>
    <message>
        <source>the name is already in use</source>
        <translation>der Name ist schon vergeben</translation>
    </message>
    <message>
        <source>the server does not accept what was sent</source>
        <translation>der Server nimmt das Gesendete nicht an</translation>
    </message>
    <message>
        <source>the server does not allow it</source>
        <translation>der Server erlaubt es nicht</translation>
    </message>
    <message>
        <source>the server does not allow it now</source>
        <translation>der Server erlaubt es jetzt nicht</translation>
    </message>
    <message>
        <source>the server requires encryption</source>
        <translation>der Server verlangt Verschlüsselung</translation>
    </message>
</context>
<context>
    <name>KirvXmppLoginGuard</name>
    <message>
        <source>It requires more than a log-in needs.</source>
        <translation>Er verlangt mehr, als eine Anmeldung braucht.</translation>
    </message>
    <message>
        <source>It requires more work to check the password than is allowed (%1 rounds, at most %2).</source>
        <translation>Er verlangt mehr Arbeit zur Prüfung des Passworts, als zulässig ist (%1 Runden, höchstens %2).</translation>
    </message>
    <message>
        <source>It has not proved that it knows the password.</source>
        <translation>Er hat nicht bewiesen, dass er das Passwort kennt.</translation>
    </message>
    <message>
        <source>Its part of the log-in is wrong.</source>
        <translation>Sein Teil der Anmeldung ist falsch.</translation>
    </message>
</context>
<context>
    <name>KirvXmppPasswordRequest</name>
    <message>
        <source>Change Password on Server</source>
        <translation>Passwort auf dem Server ändern</translation>
    </message>
    <message>
        <source>The account %1 gets a new password on its server. All clients need it then.</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>Das Konto %1 erhält auf seinem Server ein neues Passwort. Alle Programme brauchen es dann.</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Neues Passwort</translation>
    </message>
    <message>
        <source>The same again</source>
        <translation>Noch einmal dasselbe</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Passwort ändern</translation>
    </message>
    <message>
        <source>Enter the new password.</source>
        <translation>Geben Sie das neue Passwort ein.</translation>
    </message>
    <message>
        <source>The two passwords are different. Enter the same password twice.</source>
        <translation>Die beiden Passwörter sind verschieden. Geben Sie zweimal dasselbe Passwort ein.</translation>
    </message>
    <message>
        <source>The password holds characters that cannot be sent.</source>
        <translation>Das Passwort enthält Zeichen, die nicht gesendet werden können.</translation>
    </message>
    <message>
        <source>Changing the password…</source>
        <translation>Das Passwort wird geändert …</translation>
    </message>
</context>
<context>
    <name>KirvXmppProtocol</name>
    <message>
        <source>XMPP (Jabber): conversations between addresses of many independent servers.</source>
        <translation>XMPP (Jabber): Gespräche zwischen Adressen vieler unabhängiger Server.</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Verfügbar</translation>
    </message>
    <message>
        <source>Free to chat</source>
        <translation>Gesprächsbereit</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Abwesend</translation>
    </message>
    <message>
        <source>Extended away</source>
        <translation>Länger abwesend</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Bitte nicht stören</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Unsichtbar</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Abgemeldet</translation>
    </message>
    <message>
        <source>Change Password on Server…</source>
        <translation>Passwort auf dem Server ändern …</translation>
    </message>
    <message>
        <source>Gives the account a new password on its server.</source>
        <translation>Gibt dem Konto auf seinem Server ein neues Passwort.</translation>
    </message>
    <message>
        <source>Delete Account on Server…</source>
        <translation>Konto auf dem Server löschen …</translation>
    </message>
    <message>
        <source>Deletes the account on its server for good, and then here.</source>
        <translation>Löscht das Konto endgültig auf seinem Server und dann hier.</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistration</name>
    <message>
        <source>registration of accounts</source>
        <translation>die Registrierung von Konten</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistrationForm</name>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Spitzname</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Voller Name</translation>
    </message>
    <message>
        <source>First name</source>
        <translation>Vorname</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>Nachname</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Anschrift</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>State or region</source>
        <translation>Bundesland oder Region</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>Postleitzahl</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be filled in.</source>
        <translation>„%1“ muss ausgefüllt werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds characters that cannot be sent.</source>
        <translation>„%1“ enthält Zeichen, die nicht gesendet werden können.</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistrationRequest</name>
    <message>
        <source>Domain</source>
        <translation>Domäne</translation>
    </message>
    <message>
        <source>The part of the address after the @.</source>
        <translation>Der Teil der Adresse nach dem @.</translation>
    </message>
    <message>
        <source>Register XMPP Account</source>
        <translation>XMPP-Konto registrieren</translation>
    </message>
    <message>
        <source>Choose the server of the new account. The server determines what is to be filled in next.</source>
        <translation>Wählen Sie den Server des neuen Kontos. Der Server bestimmt, was danach auszufüllen ist.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Enter the domain of the server.</source>
        <translation>Geben Sie die Domäne des Servers ein.</translation>
    </message>
    <message>
        <source>The name of a server holds characters that cannot be sent.</source>
        <translation>Der Name eines Servers enthält Zeichen, die nicht gesendet werden können.</translation>
    </message>
    <message>
        <source>Requesting the registration form…</source>
        <translation>Das Registrierungsformular wird abgerufen …</translation>
    </message>
    <message>
        <source>This server does not register accounts from within a client.</source>
        <translation>Dieser Server registriert keine Konten aus einem Programm heraus.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrieren</translation>
    </message>
    <message>
        <source>The server sent another form. Check it and register again.</source>
        <translation>Der Server hat ein anderes Formular gesendet. Prüfen Sie es und registrieren Sie sich erneut.</translation>
    </message>
    <message>
        <source>The server also names this address: %1</source>
        <extracomment>%1 = a web address</extracomment>
        <translation>Der Server nennt auch diese Adresse: %1</translation>
    </message>
    <message>
        <source>Sending the form…</source>
        <translation>Das Formular wird gesendet …</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted. Somebody between you and the server could read your password.</source>
        <translation>Dem Zertifikat des Servers wird nicht vertraut. Jemand zwischen Ihnen und dem Server könnte Ihr Passwort lesen.</translation>
    </message>
    <message>
        <source>Trust for This Account</source>
        <translation>Für dieses Konto vertrauen</translation>
    </message>
</context>
<context>
    <name>KirvXmppRoute</name>
    <message>
        <source>servers refer to one another without end</source>
        <translation>Server verweisen endlos aufeinander</translation>
    </message>
    <message>
        <source>%1 starts with encryption at once. Choose direct TLS, or another port.</source>
        <extracomment>%1 is a server and its port</extracomment>
        <translation>%1 beginnt sofort mit Verschlüsselung. Wählen Sie direktes TLS oder einen anderen Port.</translation>
    </message>
    <message>
        <source>%1 does not start with encryption at once. Do not choose direct TLS, or choose another port.</source>
        <extracomment>%1 is a server and its port</extracomment>
        <translation>%1 beginnt nicht sofort mit Verschlüsselung. Wählen Sie kein direktes TLS oder einen anderen Port.</translation>
    </message>
    <message>
        <source>it refers to a server of a private network</source>
        <translation>er verweist auf einen Server eines privaten Netzes</translation>
    </message>
    <message>
        <source>servers of %1</source>
        <extracomment>%1 = a domain</extracomment>
        <translation>Server von %1</translation>
    </message>
    <message>
        <source>the server refers to %1</source>
        <extracomment>%1 = a server</extracomment>
        <translation>der Server verweist auf %1</translation>
    </message>
</context>
<context>
    <name>KirvXmppServerLink</name>
    <message>
        <source>the server requires encryption</source>
        <translation>der Server verlangt Verschlüsselung</translation>
    </message>
    <message>
        <source>the server does not serve the domain of the login</source>
        <translation>der Server bedient die Domäne des Anmeldenamens nicht</translation>
    </message>
    <message>
        <source>the server does not answer any more</source>
        <translation>der Server antwortet nicht mehr</translation>
    </message>
    <message>
        <source>What the server sent is no XMPP stream.</source>
        <translation>Was der Server gesendet hat, ist kein XMPP-Strom.</translation>
    </message>
    <message>
        <source>The server sent data that is longer than allowed.</source>
        <translation>Der Server hat Daten gesendet, die länger sind als erlaubt.</translation>
    </message>
    <message>
        <source>The server sent data that is no valid XML.</source>
        <translation>Der Server hat Daten gesendet, die kein gültiges XML sind.</translation>
    </message>
    <message>
        <source>The server sent XML that is not allowed in a stream.</source>
        <translation>Der Server hat XML gesendet, das in einem Strom nicht erlaubt ist.</translation>
    </message>
    <message>
        <source>the reply of the server is too large</source>
        <translation>die Antwort des Servers ist zu groß</translation>
    </message>
    <message>
        <source>it refers to a server without a name</source>
        <translation>er verweist auf einen Server ohne Namen</translation>
    </message>
    <message>
        <source>it refers to a server of a private network</source>
        <translation>er verweist auf einen Server eines privaten Netzes</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is the encryption, as &quot;TLSv1.3&quot;, %2 how the user has proved who he is, as &quot;SASL SCRAM-SHA-256&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not encrypted</source>
        <translation>nicht verschlüsselt</translation>
    </message>
    <message>
        <source>The server begins the log-in again and again.</source>
        <translation>Der Server beginnt die Anmeldung immer wieder von vorn.</translation>
    </message>
    <message>
        <source>It has logged in the account &quot;%1&quot;.</source>
        <extracomment>%1 is the address of an account</extracomment>
        <translation>Er hat das Konto „%1“ angemeldet.</translation>
    </message>
    <message>
        <source>Its part of the log-in is wrong.</source>
        <translation>Sein Teil der Anmeldung ist falsch.</translation>
    </message>
</context>
<context>
    <name>KirvXmppSettings</name>
    <message>
        <source>Resource</source>
        <translation>Ressource</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Verschlüsselung</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Erforderlich</translation>
    </message>
    <message>
        <source>If the server offers it</source>
        <translation>Wenn der Server sie anbietet</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Without encryption others in the network can read along, your password included.</source>
        <translation>Ohne Verschlüsselung können andere im Netz mitlesen, auch Ihr Passwort.</translation>
    </message>
    <message>
        <source>Trusted certificate</source>
        <translation>Vertrautes Zertifikat</translation>
    </message>
    <message>
        <source>A file with a certificate (PEM) that is trusted besides those of the system.</source>
        <translation>Eine Datei mit einem Zertifikat (PEM), dem neben denen des Systems vertraut wird.</translation>
    </message>
    <message>
        <source>Server of the domain</source>
        <translation>Server der Domäne</translation>
    </message>
    <message>
        <source>Server on this computer</source>
        <translation>Server auf diesem Rechner</translation>
    </message>
    <message>
        <source>Server on this computer, unencrypted</source>
        <translation>Server auf diesem Rechner, unverschlüsselt</translation>
    </message>
    <message>
        <source>The trusted certificate %1 cannot be read (%2).</source>
        <extracomment>%1 is a file name, %2 the reason</extracomment>
        <translation>Das vertraute Zertifikat %1 kann nicht gelesen werden (%2).</translation>
    </message>
    <message>
        <source>The file %1 does not hold a certificate in PEM format.</source>
        <translation>Die Datei %1 enthält kein Zertifikat im PEM-Format.</translation>
    </message>
    <message>
        <source>Distinguishes this client from your other ones. Characters by chance take the place of a *. Empty: the server chooses.</source>
        <translation>Unterscheidet diesen Client von Ihren anderen. Zufällige Zeichen treten an die Stelle eines *. Leer: Der Server wählt.</translation>
    </message>
    <message>
        <source>Messages go to the client with the highest priority, and to none with a negative one. This client does not show messages.</source>
        <translation>Nachrichten gehen an den Client mit der höchsten Priorität und an keinen mit einer negativen. Dieser Client zeigt keine Nachrichten.</translation>
    </message>
    <message>
        <source>Ordinarily %1, and %2 with direct TLS.</source>
        <translation>Gewöhnlich %1, und %2 mit direktem TLS.</translation>
    </message>
    <message>
        <source>Required at once (direct TLS)</source>
        <translation>Sofort verlangt (direktes TLS)</translation>
    </message>
    <message>
        <source>Only needed when it cannot be found by the domain of the login. Service records are not looked up where there is a proxy.</source>
        <translation>Nur nötig, wenn er nicht anhand der Domain des Anmeldenamens gefunden wird. Mit einem Proxy werden keine Diensteinträge abgefragt.</translation>
    </message>
    <message>
        <source>An address contains no blanks.</source>
        <translation>Eine Adresse enthält keine Leerzeichen.</translation>
    </message>
    <message>
        <source>The character &quot;%1&quot; is not allowed in an address.</source>
        <translation>Das Zeichen „%1“ ist in einer Adresse nicht erlaubt.</translation>
    </message>
    <message>
        <source>The domain is missing, as in anna@example.org.</source>
        <translation>Die Domain fehlt, wie in anna@example.org.</translation>
    </message>
    <message>
        <source>An address contains one &quot;@&quot; only.</source>
        <translation>Eine Adresse enthält nur ein „@“.</translation>
    </message>
    <message>
        <source>The name before the &quot;@&quot; is missing.</source>
        <translation>Der Name vor dem „@“ fehlt.</translation>
    </message>
    <message>
        <source>The domain after the &quot;@&quot; is missing.</source>
        <translation>Die Domain nach dem „@“ fehlt.</translation>
    </message>
    <message>
        <source>The domain after the &quot;@&quot; is not complete.</source>
        <translation>Die Domain nach dem „@“ ist nicht vollständig.</translation>
    </message>
    <message>
        <source>The address is too long.</source>
        <translation>Die Adresse ist zu lang.</translation>
    </message>
    <message>
        <source>The trusted certificate %1 is not a file.</source>
        <extracomment>%1 is a file name</extracomment>
        <translation>Das vertraute Zertifikat %1 ist keine Datei.</translation>
    </message>
</context>
<context>
    <name>KirvXmppVCard</name>
    <message>
        <source>Birthday</source>
        <translation>Geburtstag</translation>
    </message>
    <message>
        <source>Year, month and day, such as 1999-12-31.</source>
        <translation>Jahr, Monat und Tag, etwa 1999-12-31.</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Voller Name</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Spitzname</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>Organisation</source>
        <translation>Organisation</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über mich</translation>
    </message>
    <message>
        <source>An address that begins with http:// or https://.</source>
        <translation>Eine Adresse, die mit http:// oder https:// beginnt.</translation>
    </message>
</context>
<context>
    <name>translation</name>
    <message>
        <source>Alias</source>
        <comment>account alias in account list</comment>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Protocol</source>
        <comment>account protocol in account list</comment>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Removing account</source>
        <comment>message box title</comment>
        <translation>Konto entfernen</translation>
    </message>
    <message>
        <source>Do you want to remove account &apos;%1&apos; (%2) and all related data?</source>
        <comment>%1 = account alias, %2 = account protocol. Confirmation of removing account</comment>
        <translation>Möchten Sie das Konto „%1“ (%2) mit allen zugehörigen Daten entfernen?</translation>
    </message>
    <message>
        <source>Disabling account</source>
        <comment>message box title</comment>
        <translation>Konto ausschalten</translation>
    </message>
    <message>
        <source>Do you want to disable account &apos;%1&apos; (%2) in which you are currently logged in.</source>
        <comment>%1 = account id, %2 = account protocol. Confirmation of disabling account</comment>
        <translation>Möchten Sie das Konto „%1“ (%2) ausschalten, bei dem Sie gerade angemeldet sind?</translation>
    </message>
    <message>
        <source>None</source>
        <comment>nc</comment>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Add account</source>
        <comment>adding account error message box title</comment>
        <translation>Konto hinzufügen</translation>
    </message>
    <message>
        <source>Account &apos;%1&apos; alerady exists!</source>
        <comment>information about existing account while adding account</comment>
        <translation>Das Konto „%1“ gibt es schon!</translation>
    </message>
    <message>
        <source>Deleting directory entry</source>
        <comment>message box title</comment>
        <translation>Verzeichniseintrag löschen</translation>
    </message>
    <message>
        <source>Do you want to delete the directory entry of account &apos;%1&apos; (%2) from the server?</source>
        <comment>%1 = account id, %2 = account protocol. Confirmation of deleting the directory entry</comment>
        <translation>Möchten Sie den Verzeichniseintrag des Kontos „%1“ (%2) vom Server löschen?</translation>
    </message>
</context>
</TS>
