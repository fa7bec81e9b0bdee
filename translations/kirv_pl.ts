<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>Accounts</name>
    <message>
        <source>Accounts</source>
        <translation>Konta</translation>
    </message>
    <message>
        <source>The check box of an account tells whether it is enabled.</source>
        <translation>Pole wyboru przy koncie pokazuje, czy konto jest włączone.</translation>
    </message>
    <message>
        <source>Add an account that you already have</source>
        <translation>Dodaj konto, które już masz</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Dodaj</translation>
    </message>
    <message>
        <source>Change the selected account</source>
        <translation>Zmień wybrane konto</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Edytuj…</translation>
    </message>
    <message>
        <source>Remove the selected account and all its data</source>
        <translation>Usuń wybrane konto i wszystkie jego dane</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Usuń…</translation>
    </message>
    <message>
        <source>Create a new account on a server</source>
        <translation>Utwórz nowe konto na serwerze</translation>
    </message>
    <message>
        <source>Re&amp;gister…</source>
        <translation>&amp;Zarejestruj…</translation>
    </message>
    <message>
        <source>&amp;Main account:</source>
        <translation>&amp;Konto główne:</translation>
    </message>
    <message>
        <source>The account that the rest of the program works with</source>
        <translation>Konto, z którego korzysta reszta programu</translation>
    </message>
    <message>
        <source>Main account</source>
        <translation>Konto główne</translation>
    </message>
</context>
<context>
    <name>AddAccount</name>
    <message>
        <source>Add Account</source>
        <translation>Dodaj konto</translation>
    </message>
    <message>
        <source>&amp;Configuration:</source>
        <translation>&amp;Konfiguracja:</translation>
    </message>
    <message>
        <source>A ready-made configuration fills in the settings for you</source>
        <translation>Gotowa konfiguracja wypełnia ustawienia za Ciebie</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfiguracja</translation>
    </message>
    <message>
        <source>&amp;Login:</source>
        <translation>&amp;Login:</translation>
    </message>
    <message>
        <source>The name under which you log in</source>
        <translation>Nazwa, pod którą się logujesz</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Login</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Hasło:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>If this is off, you are asked for the password when the account logs in</source>
        <translation>Gdy ta opcja jest wyłączona, program pyta o hasło podczas logowania konta</translation>
    </message>
    <message>
        <source>&amp;Remember password</source>
        <translation>Za&amp;pamiętaj hasło</translation>
    </message>
    <message>
        <source>S&amp;tart as:</source>
        <translation>S&amp;tatus początkowy:</translation>
    </message>
    <message>
        <source>The presence that the account takes when it logs in</source>
        <translation>Status, który konto przyjmuje po zalogowaniu</translation>
    </message>
    <message>
        <source>Start as</source>
        <translation>Status początkowy</translation>
    </message>
</context>
<context>
    <name>EditAccount</name>
    <message>
        <source>Edit Account</source>
        <translation>Edycja konta</translation>
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
        <translation>Obraz:</translation>
    </message>
    <message>
        <source>A&amp;lias:</source>
        <translation>A&amp;lias:</translation>
    </message>
    <message>
        <source>The name shown for the account</source>
        <translation>Nazwa wyświetlana dla tego konta</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Hasło:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>If this is off, you are asked for the password when the account logs in</source>
        <translation>Gdy ta opcja jest wyłączona, program pyta o hasło podczas logowania konta</translation>
    </message>
    <message>
        <source>&amp;Remember password</source>
        <translation>Za&amp;pamiętaj hasło</translation>
    </message>
    <message>
        <source>The account takes the presence and description that it had last</source>
        <translation>Konto przyjmuje ostatnio używany status i opis</translation>
    </message>
    <message>
        <source>Restore the last pr&amp;esence</source>
        <translation>Przywracaj ostatni &amp;status</translation>
    </message>
    <message>
        <source>The account takes the description that it had last</source>
        <translation>Konto przyjmuje ostatnio używany opis</translation>
    </message>
    <message>
        <source>Restore the last descript&amp;ion</source>
        <translation>Przywracaj ostatni &amp;opis</translation>
    </message>
    <message>
        <source>S&amp;tart as:</source>
        <translation>S&amp;tatus początkowy:</translation>
    </message>
    <message>
        <source>The presence that the account takes when it logs in</source>
        <translation>Status, który konto przyjmuje po zalogowaniu</translation>
    </message>
    <message>
        <source>Start as</source>
        <translation>Status początkowy</translation>
    </message>
    <message>
        <source>Descriptio&amp;n:</source>
        <translation>Op&amp;is:</translation>
    </message>
    <message>
        <source>What your contacts read beside the presence</source>
        <translation>To, co kontakty czytają obok statusu</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>P&amp;ublic Directory</source>
        <translation>Katalog pu&amp;bliczny</translation>
    </message>
    <message>
        <source>Ask the server for your entry; changes that are not saved are lost</source>
        <translation>Pobierz swój wpis z serwera; niezapisane zmiany zostaną utracone</translation>
    </message>
    <message>
        <source>&amp;Fetch Again</source>
        <translation>Pobie&amp;rz ponownie</translation>
    </message>
    <message>
        <source>Take your entry out of the directory</source>
        <translation>Usuń swój wpis z katalogu</translation>
    </message>
    <message>
        <source>&amp;Delete Entry…</source>
        <translation>&amp;Usuń wpis…</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Stan:</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serwer</translation>
    </message>
    <message>
        <source>Presence</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Pages of the account</source>
        <translation>Strony konta</translation>
    </message>
</context>
<context>
    <name>KirvAccount</name>
    <message>
        <source>A password could not be kept in the keyring. It is used until the program ends, and is kept when the keyring can be used.</source>
        <translation>Nie udało się zapisać hasła w bazie kluczy. Hasło będzie używane do zakończenia programu i zostanie zapisane, gdy baza kluczy będzie dostępna.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 = a sentence, %2 = what the keyring says</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>other accounts connect first</source>
        <translation>najpierw łączą się inne konta</translation>
    </message>
    <message>
        <source>the next try is at %1</source>
        <extracomment>%1 = time of day</extracomment>
        <translation>następna próba o %1</translation>
    </message>
    <message>
        <source>A password could not be stored. It is used until the program ends. %1</source>
        <extracomment>%1 = the reason, a sentence</extracomment>
        <translation>Nie udało się zapisać hasła. Będzie używane do zakończenia programu. %1</translation>
    </message>
</context>
<context>
    <name>KirvAccountActionsMenu</name>
    <message>
        <source>&amp;Server Account</source>
        <translation>Konto na se&amp;rwerze</translation>
    </message>
</context>
<context>
    <name>KirvAccountCheckList</name>
    <message>
        <source>&amp;All accounts</source>
        <translation>Wsz&amp;ystkie konta</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Konta</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protokół</translation>
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
        <source>The accounts &quot;%1&quot; and &quot;%2&quot; (%3) are the same to the server. Both are kept; remove the one that is not needed.</source>
        <extracomment>%1 and %2 are logins, %3 is the name of a protocol</extracomment>
        <translation>Dla serwera konta „%1” i „%2” (%3) są tym samym kontem. Oba zostały zachowane; usuń to, które nie jest potrzebne.</translation>
    </message>
    <message numerus="yes">
        <source>The same is true of %n further logins.</source>
        <translation>
            <numerusform>To samo dotyczy jeszcze %n loginu.</numerusform>
            <numerusform>To samo dotyczy jeszcze %n loginów.</numerusform>
            <numerusform>To samo dotyczy jeszcze %n loginów.</numerusform>
        </translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) exists already.</source>
        <translation>Konto „%1” (%2) już istnieje.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) exists already: it is the same as &quot;%3&quot; to the server.</source>
        <extracomment>%1 and %3 are two spellings of a login, %2 is the name of a protocol</extracomment>
        <translation>Konto „%1” (%2) już istnieje: dla serwera jest tym samym co „%3”.</translation>
    </message>
    <message>
        <source>An account needs a login.</source>
        <translation>Konto musi mieć login.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; could not be created: the protocol %2 is not loaded.</source>
        <translation>Nie udało się utworzyć konta „%1”: protokół %2 nie jest załadowany.</translation>
    </message>
    <message>
        <source>The pictures of the accounts could not be written into a temporary file.</source>
        <translation>Nie udało się zapisać obrazów kont w pliku tymczasowym.</translation>
    </message>
    <message>
        <source>There is no account &quot;%1&quot; (%2) any more.</source>
        <translation>Nie ma już konta „%1” (%2).</translation>
    </message>
</context>
<context>
    <name>KirvAccountExport</name>
    <message>
        <source>The password of the account &quot;%1&quot; (%2) is left out: it is in the keyring and could not be read.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>Pominięto hasło konta „%1” (%2): jest w bazie kluczy i nie udało się go odczytać.</translation>
    </message>
    <message>
        <source>Secret settings of the account &quot;%1&quot; (%2) are left out: they are in the keyring and could not be read.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>Pominięto tajne ustawienia konta „%1” (%2): są w bazie kluczy i nie udało się ich odczytać.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) is left out: it has texts that cannot be exported.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>Pominięto konto „%1” (%2): zawiera teksty, których nie można wyeksportować.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) is left out: it could not be read, or is too large.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>Pominięto obraz konta „%1” (%2): nie udało się go odczytać lub jest za duży.</translation>
    </message>
</context>
<context>
    <name>KirvAccountFile</name>
    <message>
        <source>The file is damaged, or it is not a file of exported accounts.</source>
        <translation>Plik jest uszkodzony lub nie jest plikiem z wyeksportowanymi kontami.</translation>
    </message>
    <message>
        <source>The passwords in the file are damaged, so nothing is imported from it.</source>
        <translation>Hasła w pliku są uszkodzone, dlatego nic z niego nie zostanie zaimportowane.</translation>
    </message>
    <message>
        <source>The file is too large. Up to %1 MB are possible.</source>
        <translation>Plik jest za duży. Dozwolone jest najwyżej %1 MB.</translation>
    </message>
    <message>
        <source>The file was made by a newer version of the program. This one cannot read it.</source>
        <translation>Plik utworzyła nowsza wersja programu. Ta wersja nie może go odczytać.</translation>
    </message>
    <message>
        <source>The file has too many accounts. Up to %1 are possible.</source>
        <translation>Plik zawiera za dużo kont. Dozwolona liczba kont to najwyżej %1.</translation>
    </message>
    <message>
        <source>Account %1 in the file is damaged: &quot;%2&quot; cannot be used.</source>
        <extracomment>%1 = number of an account in a file, %2 = name of a value that is stored there</extracomment>
        <translation>Konto nr %1 w pliku jest uszkodzone: nie można użyć wartości „%2”.</translation>
    </message>
    <message>
        <source>The file contains the account &quot;%1&quot; (%2) twice.</source>
        <extracomment>%1 = login, %2 = name of a protocol</extracomment>
        <translation>Plik zawiera konto „%1” (%2) dwa razy.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) in the file is too large.</source>
        <translation>Obraz konta „%1” (%2) w pliku jest za duży.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) is left out: it is of a kind that cannot be used.</source>
        <translation>Pominięto obraz konta „%1” (%2): nie można użyć obrazu tego rodzaju.</translation>
    </message>
    <message>
        <source>The file is damaged: its main account is not in it.</source>
        <translation>Plik jest uszkodzony: nie ma w nim jego konta głównego.</translation>
    </message>
    <message>
        <source>The file contains no passwords that the pass phrase could decrypt. If it should contain some, somebody has changed it.</source>
        <translation>Plik nie zawiera haseł, więc fraza szyfrująca nie ma czego odszyfrować. Jeśli powinny w nim być hasła, ktoś zmienił plik.</translation>
    </message>
    <message>
        <source>The passwords in the file are left out, as they need its pass phrase.</source>
        <translation>Pominięto hasła z pliku, ponieważ do ich odczytania potrzebna jest jego fraza szyfrująca.</translation>
    </message>
    <message>
        <source>Decrypting the passwords in the file needs more memory or time than is allowed, so nothing is imported from it.</source>
        <translation>Odszyfrowanie haseł w pliku wymaga więcej pamięci lub czasu, niż jest dozwolone, dlatego nic z niego nie zostanie zaimportowane.</translation>
    </message>
    <message>
        <source>There is not enough memory to decrypt the passwords in the file.</source>
        <translation>Za mało pamięci, aby odszyfrować hasła w pliku.</translation>
    </message>
    <message>
        <source>The pass phrase does not decrypt the passwords in the file.</source>
        <translation>Tą frazą szyfrującą nie można odszyfrować haseł w pliku.</translation>
    </message>
    <message>
        <source>The accounts in the file were changed after it was written. They do not belong to its passwords any more, so nothing is imported from it.</source>
        <translation>Konta w pliku zostały zmienione po jego zapisaniu. Nie pasują już do haseł w pliku, dlatego nic z niego nie zostanie zaimportowane.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) has texts or a picture that cannot be exported.</source>
        <translation>Konto „%1” (%2) zawiera teksty lub obraz, których nie można wyeksportować.</translation>
    </message>
    <message>
        <source>There is not enough memory to encrypt the passwords.</source>
        <translation>Za mało pamięci, aby zaszyfrować hasła.</translation>
    </message>
    <message>
        <source>The file would have more than %1 MB or %2 accounts. Export fewer accounts at once.</source>
        <translation>Plik przekroczyłby dozwolony rozmiar (%1 MB) lub liczbę kont (%2). Eksportuj mniej kont naraz.</translation>
    </message>
</context>
<context>
    <name>KirvAccountGroup</name>
    <message>
        <source>Disabling Accounts</source>
        <translation>Wyłączanie kont</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to disable %n accounts? They are logged out.</source>
        <translation>
            <numerusform>Czy wyłączyć %n konto? Zostanie wylogowane.</numerusform>
            <numerusform>Czy wyłączyć %n konta? Zostaną wylogowane.</numerusform>
            <numerusform>Czy wyłączyć %n kont? Zostaną wylogowane.</numerusform>
        </translation>
    </message>
    <message>
        <source>Removing Accounts</source>
        <translation>Usuwanie kont</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to remove %n accounts and all related data?</source>
        <translation>
            <numerusform>Czy usunąć %n konto i wszystkie powiązane dane?</numerusform>
            <numerusform>Czy usunąć %n konta i wszystkie powiązane dane?</numerusform>
            <numerusform>Czy usunąć %n kont i wszystkie powiązane dane?</numerusform>
        </translation>
    </message>
    <message>
        <source>Disabling All Accounts</source>
        <translation>Wyłączanie wszystkich kont</translation>
    </message>
    <message>
        <source>Do you want to disable all accounts? They are logged out.</source>
        <translation>Czy wyłączyć wszystkie konta? Zostaną wylogowane.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvAccountHistory</name>
    <message>
        <source>The account &quot;%1&quot; cannot be enabled again: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Nie można ponownie włączyć konta „%1”: zostało usunięte.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be restored to what it was before the import: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Nie można przywrócić konta „%1” do stanu sprzed importu: zostało usunięte.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be imported again: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Konta „%1” nie można zaimportować ponownie: zostało usunięte.</translation>
    </message>
</context>
<context>
    <name>KirvAccountImport</name>
    <message>
        <source>The file contains this login twice: &quot;%1&quot; is the same as &quot;%2&quot; to the server.</source>
        <extracomment>%1 and %2 are logins, which may be spelt the same</extracomment>
        <translation>Plik zawiera ten login dwa razy: „%1” jest dla serwera tym samym co „%2”.</translation>
    </message>
    <message>
        <source>The account has no login.</source>
        <translation>Konto nie ma loginu.</translation>
    </message>
    <message>
        <source>The protocol %1 is not loaded.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>Protokół %1 nie jest załadowany.</translation>
    </message>
    <message>
        <source>Another account with this login was added or removed in the meantime.</source>
        <translation>W międzyczasie dodano lub usunięto inne konto z tym loginem.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be imported. %2</source>
        <extracomment>%1 = login, %2 = a sentence</extracomment>
        <translation>Nie można zaimportować konta „%1”. %2</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; was left out. %2</source>
        <extracomment>%1 = name of an account, %2 = a sentence</extracomment>
        <translation>Pominięto obraz konta „%1”. %2</translation>
    </message>
    <message>
        <source>Stored passwords of the account &quot;%1&quot; are not kept, because its settings in the file differ. They must be entered again.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Zapisane hasła konta „%1” nie zostaną zachowane, ponieważ jego ustawienia w pliku są inne. Trzeba je wpisać ponownie.</translation>
    </message>
</context>
<context>
    <name>KirvAccountInvitation</name>
    <message>
        <source>Add an Account</source>
        <translation>Dodaj konto</translation>
    </message>
    <message>
        <source>Register a New One…</source>
        <translation>Zarejestruj nowe…</translation>
    </message>
    <message>
        <source>Create a new account on a server</source>
        <translation>Utwórz nowe konto na serwerze</translation>
    </message>
    <message>
        <source>Add an account that you already have</source>
        <translation>Dodaj konto, które już masz</translation>
    </message>
    <message>
        <source>No protocol is loaded. Load one on the Plug-ins page.</source>
        <translation>Żaden protokół nie jest załadowany. Załaduj go na stronie „Wtyczki”.</translation>
    </message>
    <message>
        <source>Take accounts over from a file</source>
        <translation>Przejmij konta z pliku</translation>
    </message>
    <message>
        <source>Take the accounts of Pidgin over; its own file is only read</source>
        <translation>Przejmij konta programu Pidgin; jego plik zostanie tylko odczytany</translation>
    </message>
    <message>
        <source>There is no account yet. Add one that you already have, register a new one, or import accounts from a file.</source>
        <translation>Nie ma jeszcze żadnego konta. Dodaj konto, które już masz, zarejestruj nowe lub zaimportuj konta z pliku.</translation>
    </message>
    <message>
        <source>There is no account yet. Add one that you already have, register a new one, or import accounts. There are accounts of Pidgin on this computer.</source>
        <translation>Nie ma jeszcze żadnego konta. Dodaj konto, które już masz, zarejestruj nowe lub zaimportuj konta. Na tym komputerze są konta programu Pidgin.</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importuj…</translation>
    </message>
    <message>
        <source>Import from Pidgin…</source>
        <translation>Importuj z programu Pidgin…</translation>
    </message>
</context>
<context>
    <name>KirvAccountLog</name>
    <message>
        <source>Off line</source>
        <translation>Bez połączenia</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Łączenie</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Połączono</translation>
    </message>
    <message>
        <source>Logging out</source>
        <translation>Wylogowywanie</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Oczekiwanie</translation>
    </message>
    <message>
        <source>The program requests a log-in</source>
        <translation>Program żąda zalogowania</translation>
    </message>
    <message>
        <source>The program changes the presence</source>
        <translation>Program zmienia status</translation>
    </message>
    <message>
        <source>The program requests a log-out</source>
        <translation>Program żąda wylogowania</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 nie powiodło się</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>%1 powiodło się</translation>
    </message>
    <message>
        <source>%1 begins</source>
        <translation>%1 rozpoczyna się</translation>
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
        <translation>Dziennik konta %1</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>Copies the selected entries, or all when none is selected. They hold no passwords.</source>
        <translation>Kopiuje wybrane wpisy, a gdy żaden nie jest wybrany – wszystkie. Wpisy nie zawierają haseł.</translation>
    </message>
    <message>
        <source>&amp;Report…</source>
        <translation>&amp;Raport…</translation>
    </message>
    <message>
        <source>Puts the log and the versions of the program together for somebody who helps.</source>
        <translation>Zestawia dziennik i wersje programu dla osoby, która pomaga.</translation>
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
        <translation>Nie ma konta „%1”.</translation>
    </message>
    <message>
        <source>Several accounts are called &quot;%1&quot;. Name one of them with its protocol: %2</source>
        <extracomment>%1 = what was typed, %2 = names that could be meant</extracomment>
        <translation>Nazwę „%1” ma kilka kont. Podaj jedno z nich razem z protokołem: %2</translation>
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
        <translation>Szukaj kont</translation>
    </message>
    <message>
        <source>Search accounts, or “%1”…</source>
        <extracomment>%1 = the word that finds accounts whose state needs attention</extracomment>
        <translation>Szukaj kont lub wpisz „%1”…</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problem</translation>
    </message>
    <message>
        <source>Shows the accounts with these words in their alias, login, protocol or state</source>
        <translation>Pokazuje konta, które mają te słowa w aliasie, loginie, protokole lub stanie</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>how many accounts a search shows, as &quot;3 of 120&quot;</extracomment>
        <translation>%1 z %2</translation>
    </message>
</context>
<context>
    <name>KirvAccountStatus</name>
    <message>
        <source>Connected</source>
        <translation>Połączono</translation>
    </message>
    <message>
        <source>Logging out…</source>
        <translation>Wylogowywanie…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Łączenie…</translation>
    </message>
    <message>
        <source>Off line</source>
        <translation>Bez połączenia</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Wyłączone</translation>
    </message>
    <message>
        <source>Its plug-in is not loaded</source>
        <translation>Wtyczka konta nie jest załadowana</translation>
    </message>
    <message>
        <source>Waiting to connect…</source>
        <extracomment>other accounts connect first</extracomment>
        <translation>Oczekiwanie na połączenie…</translation>
    </message>
    <message>
        <source>Waiting, next try in %1 s</source>
        <extracomment>%1 = number of seconds; keep it short</extracomment>
        <translation>Oczekiwanie, następna próba za %1 s</translation>
    </message>
    <message>
        <source>Waiting, next try in %1 min</source>
        <extracomment>%1 = number of minutes; keep it short</extracomment>
        <translation>Oczekiwanie, następna próba za %1 min</translation>
    </message>
    <message>
        <source>Waiting, next try at %1</source>
        <extracomment>%1 = time of day</extracomment>
        <translation>Oczekiwanie, następna próba o %1</translation>
    </message>
    <message>
        <source>main account</source>
        <translation>konto główne</translation>
    </message>
    <message>
        <source> · </source>
        <extracomment>between the parts of the line below the name of an account, as in &quot;Connected · Away · main account&quot;</extracomment>
        <translation> · </translation>
    </message>
    <message>
        <source>The account is logged out. It can be logged in with Reconnect.</source>
        <translation>Konto jest wylogowane. Można je zalogować poleceniem „Połącz ponownie”.</translation>
    </message>
    <message>
        <source>The account does not log in. It can be enabled with its check box.</source>
        <translation>Konto nie loguje się. Można je włączyć za pomocą jego pola wyboru.</translation>
    </message>
    <message>
        <source>The plug-in of the protocol %1 is not loaded. Load it on the Plug-ins page.</source>
        <translation>Wtyczka protokołu %1 nie jest załadowana. Załaduj ją na stronie „Wtyczki”.</translation>
    </message>
    <message>
        <source>Other accounts connect first.</source>
        <translation>Najpierw łączą się inne konta.</translation>
    </message>
    <message>
        <source>The next try is at %1.</source>
        <translation>Następna próba o %1.</translation>
    </message>
    <message>
        <source>The presence is %1.</source>
        <translation>Status: %1.</translation>
    </message>
    <message>
        <source>Protection: %1.</source>
        <translation>Ochrona: %1.</translation>
    </message>
    <message>
        <source>Since %1.</source>
        <extracomment>%1 = time of day, or date and time, since when a connection has been in its state</extracomment>
        <translation>Od %1.</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Błędne hasło</translation>
    </message>
    <message>
        <source>Password needed</source>
        <translation>Wymagane hasło</translation>
    </message>
    <message>
        <source>Server not found</source>
        <translation>Nie znaleziono serwera</translation>
    </message>
    <message>
        <source>Server not reachable</source>
        <translation>Serwer nieosiągalny</translation>
    </message>
    <message>
        <source>No reply from the server</source>
        <translation>Brak odpowiedzi serwera</translation>
    </message>
    <message>
        <source>Certificate not trusted</source>
        <translation>Niezaufany certyfikat</translation>
    </message>
    <message>
        <source>Encryption not offered</source>
        <translation>Serwer nie oferuje szyfrowania</translation>
    </message>
    <message>
        <source>No usable log-in offered</source>
        <translation>Brak obsługiwanej metody logowania</translation>
    </message>
    <message>
        <source>Server not available</source>
        <translation>Serwer niedostępny</translation>
    </message>
    <message>
        <source>Connection lost</source>
        <translation>Utracono połączenie</translation>
    </message>
    <message>
        <source>Connection closed by the server</source>
        <translation>Połączenie zamknięte przez serwer</translation>
    </message>
    <message>
        <source>Logged in elsewhere</source>
        <translation>Zalogowano w innym miejscu</translation>
    </message>
    <message>
        <source>Name in use</source>
        <translation>Nazwa jest zajęta</translation>
    </message>
    <message>
        <source>Name not allowed</source>
        <translation>Niedozwolona nazwa</translation>
    </message>
    <message>
        <source>Proxy not reachable</source>
        <translation>Serwer proxy nieosiągalny</translation>
    </message>
    <message>
        <source>No reply from the proxy</source>
        <translation>Brak odpowiedzi serwera proxy</translation>
    </message>
    <message>
        <source>Log-in refused by the proxy</source>
        <translation>Logowanie odrzucone przez serwer proxy</translation>
    </message>
    <message>
        <source>Denied by the proxy</source>
        <translation>Odmowa serwera proxy</translation>
    </message>
    <message>
        <source>Proxy failed</source>
        <translation>Błąd serwera proxy</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Odmowa dostępu</translation>
    </message>
    <message>
        <source>Settings cannot be used</source>
        <translation>Nieprawidłowe ustawienia</translation>
    </message>
    <message>
        <source>Not supported by the server</source>
        <translation>Nieobsługiwane przez serwer</translation>
    </message>
    <message>
        <source>Log-in failed</source>
        <translation>Logowanie nie powiodło się</translation>
    </message>
    <message>
        <source>Enter the password again, or edit the account if the login is wrong.</source>
        <translation>Wprowadź hasło jeszcze raz lub edytuj konto, jeśli login jest błędny.</translation>
    </message>
    <message>
        <source>Enter the password.</source>
        <translation>Wprowadź hasło.</translation>
    </message>
    <message>
        <source>Edit the account to change its settings.</source>
        <translation>Edytuj konto, aby zmienić jego ustawienia.</translation>
    </message>
    <message>
        <source>It can be logged in here again with Reconnect.</source>
        <translation>Można je tu zalogować ponownie poleceniem „Połącz ponownie”.</translation>
    </message>
    <message>
        <source>It can be tried again with Reconnect.</source>
        <translation>Można spróbować jeszcze raz poleceniem „Połącz ponownie”.</translation>
    </message>
    <message>
        <source>Look at it with Show Certificate.</source>
        <translation>Obejrzyj go poleceniem „Pokaż certyfikat”.</translation>
    </message>
    <message>
        <source>It is another one than the one that you have trusted.</source>
        <translation>To inny certyfikat niż ten, który był dotąd zaufany.</translation>
    </message>
</context>
<context>
    <name>KirvAccountStrip</name>
    <message>
        <source>Enter Password…</source>
        <translation>Wprowadź hasło…</translation>
    </message>
    <message>
        <source>Takes another password and logs the account in with it.</source>
        <translation>Przyjmuje inne hasło i loguje nim konto.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Połącz ponownie</translation>
    </message>
    <message>
        <source>Logs the account out and in again.</source>
        <translation>Wylogowuje konto i loguje je ponownie.</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Edytuj…</translation>
    </message>
    <message>
        <source>Change the account</source>
        <translation>Zmień konto</translation>
    </message>
    <message>
        <source>Reason of the state of the account</source>
        <translation>Przyczyna stanu konta</translation>
    </message>
    <message>
        <source>No account is selected.</source>
        <translation>Nie wybrano żadnego konta.</translation>
    </message>
    <message>
        <source>State of %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Stan konta %1</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts are selected.</source>
        <translation>
            <numerusform>Wybrano %n konto.</numerusform>
            <numerusform>Wybrano %n konta.</numerusform>
            <numerusform>Wybrano %n kont.</numerusform>
        </translation>
    </message>
    <message>
        <source>They can be enabled, disabled and removed with the context menu.</source>
        <translation>Można je włączyć, wyłączyć i usunąć za pomocą menu kontekstowego.</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Dziennik</translation>
    </message>
    <message>
        <source>Shows what happened to the account&apos;s connection.</source>
        <translation>Pokazuje, co działo się z połączeniem konta.</translation>
    </message>
    <message>
        <source>What Is Wrong?</source>
        <translation>Co jest nie tak?</translation>
    </message>
    <message>
        <source>Tries each step of the log-in with what is stored, beside the account&apos;s own connection.</source>
        <translation>Wypróbowuje każdy krok logowania na zapisanych danych, niezależnie od połączenia samego konta.</translation>
    </message>
    <message>
        <source>Show Certificate…</source>
        <translation>Pokaż certyfikat…</translation>
    </message>
    <message>
        <source>Shows the certificate of the server and asks whether it is trusted.</source>
        <translation>Pokazuje certyfikat serwera i pyta, czy mu zaufać.</translation>
    </message>
</context>
<context>
    <name>KirvAccountUndo</name>
    <message numerus="yes">
        <source>&amp;Undo Removing %n Accounts</source>
        <translation>
            <numerusform>&amp;Cofnij usunięcie %n konta</numerusform>
            <numerusform>&amp;Cofnij usunięcie %n kont</numerusform>
            <numerusform>&amp;Cofnij usunięcie %n kont</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Disabling %n Accounts</source>
        <translation>
            <numerusform>&amp;Cofnij wyłączenie %n konta</numerusform>
            <numerusform>&amp;Cofnij wyłączenie %n kont</numerusform>
            <numerusform>&amp;Cofnij wyłączenie %n kont</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Undo Removing %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>&amp;Cofnij usunięcie konta %1</translation>
    </message>
    <message>
        <source>&amp;Undo Disabling %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>&amp;Cofnij wyłączenie konta %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were removed.</source>
        <translation>
            <numerusform>Usunięto %n konto.</numerusform>
            <numerusform>Usunięto %n konta.</numerusform>
            <numerusform>Usunięto %n kont.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were disabled.</source>
        <translation>
            <numerusform>Wyłączono %n konto.</numerusform>
            <numerusform>Wyłączono %n konta.</numerusform>
            <numerusform>Wyłączono %n kont.</numerusform>
        </translation>
    </message>
    <message>
        <source>The account %1 (%2) was removed.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>Usunięto konto %1 (%2).</translation>
    </message>
    <message>
        <source>The account %1 (%2) was disabled.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>Wyłączono konto %1 (%2).</translation>
    </message>
    <message>
        <source>&amp;Undo Importing %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>&amp;Cofnij import konta %1</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Importing %n Accounts</source>
        <translation>
            <numerusform>&amp;Cofnij import %n konta</numerusform>
            <numerusform>&amp;Cofnij import %n kont</numerusform>
            <numerusform>&amp;Cofnij import %n kont</numerusform>
        </translation>
    </message>
    <message>
        <source>The account %1 (%2) was imported.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>Zaimportowano konto %1 (%2).</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were imported.</source>
        <translation>
            <numerusform>Zaimportowano %n konto.</numerusform>
            <numerusform>Zaimportowano %n konta.</numerusform>
            <numerusform>Zaimportowano %n kont.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Import Again</source>
        <translation>&amp;Zaimportuj ponownie</translation>
    </message>
    <message>
        <source>The import of the account %1 (%2) was undone.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>Import konta %1 (%2) został cofnięty.</translation>
    </message>
    <message numerus="yes">
        <source>The import of %n accounts was undone.</source>
        <translation>
            <numerusform>Import %n konta został cofnięty.</numerusform>
            <numerusform>Import %n kont został cofnięty.</numerusform>
            <numerusform>Import %n kont został cofnięty.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvAccountsCommand</name>
    <message>
        <source>The profile in &quot;%1&quot; is open in another program, which does not take commands.</source>
        <translation>Profil w „%1” jest otwarty w innym programie, który nie przyjmuje poleceń.</translation>
    </message>
    <message>
        <source>There is no profile in &quot;%1&quot; yet.</source>
        <translation>W „%1” nie ma jeszcze profilu.</translation>
    </message>
    <message>
        <source>The program that runs with this profile does not respond.</source>
        <translation>Program, który działa z tym profilem, nie odpowiada.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsOptions</name>
    <message>
        <source>Print one line of JSON.</source>
        <translation>Wypisuje jeden wiersz w formacie JSON.</translation>
    </message>
    <message>
        <source>Export: put passwords into the file, encrypted with a pass phrase.</source>
        <translation>Eksport: umieszcza w pliku hasła zaszyfrowane frazą szyfrującą.</translation>
    </message>
    <message>
        <source>Export: overwrite a file that is there.</source>
        <translation>Eksport: zastępuje istniejący plik.</translation>
    </message>
    <message>
        <source>Import: leave out the passwords that are in the file.</source>
        <translation>Import: pomija hasła, które są w pliku.</translation>
    </message>
    <message>
        <source>Import: replace accounts that exist by those of the file.</source>
        <translation>Import: zastępuje istniejące konta kontami z pliku.</translation>
    </message>
    <message>
        <source>Import: say what would be done, and change nothing.</source>
        <translation>Import: wypisuje, co zostałoby zrobione, i niczego nie zmienia.</translation>
    </message>
    <message>
        <source>Export and import: the pass phrase is the first line of &lt;file&gt;.</source>
        <translation>Eksport i import: frazą szyfrującą jest pierwszy wiersz pliku &lt;plik&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>plik</translation>
    </message>
    <message>
        <source>Export and import: the pass phrase is the first line that can be read from the file descriptor &lt;number&gt;.</source>
        <translation>Eksport i import: frazą szyfrującą jest pierwszy wiersz odczytany z deskryptora pliku &lt;numer&gt;.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>numer</translation>
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
        <translation>Wypisuje, włącza, wyłącza, eksportuje i importuje konta.
Konto podaje się jako PROTOKÓŁ:ID albo samym identyfikatorem, gdy żadne inne konto nie ma takiego samego.

  accounts list [konto…]
  accounts enable konto…
  accounts disable konto…
  accounts export plik [konto…]
  accounts import plik

Znak - zamiast nazwy pliku oznacza standardowe wyjście lub wejście.</translation>
    </message>
    <message>
        <source>list, enable, disable, export or import.</source>
        <translation>list, enable, disable, export lub import.</translation>
    </message>
    <message>
        <source>A file or an account.</source>
        <translation>Plik lub konto.</translation>
    </message>
    <message>
        <source>[argument…]</source>
        <translation>[argument…]</translation>
    </message>
    <message>
        <source>The command is missing: list, enable, disable, export or import.</source>
        <translation>Brakuje polecenia: list, enable, disable, export lub import.</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; is not known: it can be list, enable, disable, export or import.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>Nieznane polecenie „%1”: może to być list, enable, disable, export lub import.</translation>
    </message>
    <message>
        <source>The option --%1 does not belong to the command &quot;%2&quot;.</source>
        <extracomment>%1 = name of an option, %2 = name of a command</extracomment>
        <translation>Opcja --%1 nie należy do polecenia „%2”.</translation>
    </message>
    <message>
        <source>The file is missing.</source>
        <translation>Nie podano pliku.</translation>
    </message>
    <message>
        <source>The argument &quot;%1&quot; is not known.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>Nieznany argument „%1”.</translation>
    </message>
    <message>
        <source>The account is missing.</source>
        <translation>Nie podano konta.</translation>
    </message>
    <message>
        <source>The option --json cannot be used when the file goes to the standard output.</source>
        <translation>Nie można użyć opcji --json, gdy plik trafia na standardowe wyjście.</translation>
    </message>
    <message>
        <source>A pass phrase is of no use when no passwords are exported or imported.</source>
        <translation>Fraza szyfrująca jest niepotrzebna, gdy hasła nie są przenoszone.</translation>
    </message>
    <message>
        <source>The file with the pass phrase is missing.</source>
        <translation>Nie podano pliku z frazą szyfrującą.</translation>
    </message>
    <message>
        <source>The option --pass-phrase-fd needs the number of a file descriptor.</source>
        <translation>Opcja --pass-phrase-fd wymaga podania numeru deskryptora pliku.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsPageCompanion</name>
    <message>
        <source>The plug-in of the protocol %1 is not loaded. Load it on the Plug-ins page.</source>
        <translation>Wtyczka protokołu %1 nie jest załadowana. Załaduj ją na stronie „Wtyczki”.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsService</name>
    <message>
        <source>The account is missing.</source>
        <translation>Nie podano konta.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsText</name>
    <message>
        <source>There are no accounts.</source>
        <translation>Nie ma żadnych kont.</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protokół</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>Identyfikator</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>Main</source>
        <translation>Główne</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>tak</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>%1 is enabled now.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Konto %1 jest teraz włączone.</translation>
    </message>
    <message>
        <source>%1 is disabled now.</source>
        <translation>Konto %1 jest teraz wyłączone.</translation>
    </message>
    <message>
        <source>%1 was enabled already.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Konto %1 było już włączone.</translation>
    </message>
    <message>
        <source>%1 was disabled already.</source>
        <translation>Konto %1 było już wyłączone.</translation>
    </message>
    <message>
        <source>Accounts exported: %1, with the passwords that are stored.</source>
        <extracomment>%1 = number</extracomment>
        <translation>Wyeksportowane konta: %1, razem z zapisanymi hasłami.</translation>
    </message>
    <message>
        <source>Accounts exported: %1, without passwords.</source>
        <translation>Wyeksportowane konta: %1, bez haseł.</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nowe</translation>
    </message>
    <message>
        <source>replaces %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>zastępuje %1</translation>
    </message>
    <message>
        <source>%1 is kept</source>
        <translation>%1 pozostaje bez zmian</translation>
    </message>
    <message>
        <source>Accounts that would be imported: %1. Nothing was changed.</source>
        <extracomment>%1 = number</extracomment>
        <translation>Konta, które zostałyby zaimportowane: %1. Nic nie zmieniono.</translation>
    </message>
    <message>
        <source>Accounts imported: %1.</source>
        <translation>Zaimportowane konta: %1.</translation>
    </message>
</context>
<context>
    <name>KirvAddWindowCompanion</name>
    <message>
        <source>Add %1 Account</source>
        <extracomment>%1 = the name of a protocol</extracomment>
        <translation>Dodaj konto %1</translation>
    </message>
    <message>
        <source>Save Without a Password</source>
        <translation>Zapisz bez hasła</translation>
    </message>
    <message>
        <source>The login is missing.</source>
        <translation>Brakuje loginu.</translation>
    </message>
    <message>
        <source>The login and the password are missing.</source>
        <translation>Brakuje loginu i hasła.</translation>
    </message>
    <message>
        <source>The account can be used without a password.</source>
        <translation>Konta można używać bez hasła.</translation>
    </message>
    <message>
        <source>The password is missing.</source>
        <translation>Brakuje hasła.</translation>
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
        <translation>Zaawansowane</translation>
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
        <translation>Nie udało się skopiować obrazu „%1” do profilu: %2</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be written.</source>
        <translation>Nie można zapisywać w folderze „%1”.</translation>
    </message>
</context>
<context>
    <name>KirvAvatarQuickSetWidget</name>
    <message>
        <source>Picture of the account</source>
        <translation>Obraz konta</translation>
    </message>
    <message>
        <source>Click to choose a picture, or drop or paste one here</source>
        <translation>Kliknij, aby wybrać obraz, albo upuść go lub wklej tutaj</translation>
    </message>
    <message>
        <source>&amp;Choose Picture…</source>
        <translation>&amp;Wybierz obraz…</translation>
    </message>
    <message>
        <source>&amp;Paste Picture</source>
        <translation>W&amp;klej obraz</translation>
    </message>
    <message>
        <source>&amp;Remove Picture</source>
        <translation>&amp;Usuń obraz</translation>
    </message>
    <message>
        <source>Choose Picture</source>
        <translation>Wybierz obraz</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Obrazy (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>The picture cannot be stored on this computer.</source>
        <translation>Nie można zapisać obrazu na tym komputerze.</translation>
    </message>
    <message>
        <source>Picture of the Account</source>
        <translation>Obraz konta</translation>
    </message>
</context>
<context>
    <name>KirvBoundedImage</name>
    <message>
        <source>The picture is too large: %1 × %2 pixels. Up to %3 million pixels are possible.</source>
        <translation>Obraz jest za duży: %1 × %2 pikseli. Dozwolone jest najwyżej %3 mln pikseli.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is too large. Up to %2 MB are possible.</source>
        <translation>Plik „%1” jest za duży. Dozwolone jest najwyżej %2 MB.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is not a picture that can be used. Pictures in the formats PNG, JPEG, GIF, BMP and WebP are possible.</source>
        <translation>Plik „%1” nie jest obrazem, którego można użyć. Dozwolone są obrazy w formatach PNG, JPEG, GIF, BMP i WebP.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read.</source>
        <translation>Nie można odczytać pliku „%1”.</translation>
    </message>
    <message>
        <source>The picture in the file &quot;%1&quot; is damaged.</source>
        <translation>Obraz w pliku „%1” jest uszkodzony.</translation>
    </message>
    <message>
        <source>There is no picture that can be used.</source>
        <translation>Nie ma obrazu, którego można użyć.</translation>
    </message>
</context>
<context>
    <name>KirvCertificateQuestion</name>
    <message>
        <source>Trusted Certificate</source>
        <extracomment>%1 = name of a server</extracomment>
        <translation>Zaufany certyfikat</translation>
    </message>
    <message>
        <source>Certificate of %1</source>
        <translation>Certyfikat serwera %1</translation>
    </message>
    <message>
        <source>What is wrong with the certificate</source>
        <translation>Co jest nie tak z certyfikatem</translation>
    </message>
    <message>
        <source>Somebody between you and the server could read your password.</source>
        <translation>Ktoś między Tobą a serwerem mógłby odczytać Twoje hasło.</translation>
    </message>
    <message>
        <source>You have chosen to trust this certificate for the account %1.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Zgodnie z Twoim wyborem ten certyfikat jest zaufany dla konta %1.</translation>
    </message>
    <message>
        <source>The server shows another certificate than the one that you have trusted for the account %1.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Serwer przedstawia inny certyfikat niż ten, który był dotąd zaufany dla konta %1.</translation>
    </message>
    <message>
        <source>The certificate of the server of the account %1 is not trusted.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Certyfikat serwera konta %1 nie jest zaufany.</translation>
    </message>
    <message>
        <source>Trusted so far</source>
        <extracomment>the fingerprint of the certificate that was trusted so far</extracomment>
        <translation>Dotąd zaufany</translation>
    </message>
    <message>
        <source>%1:</source>
        <extracomment>the caption of a line: %1 = what it is about</extracomment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>&amp;Trust for This Account</source>
        <translation>Za&amp;ufaj dla tego konta</translation>
    </message>
    <message>
        <source>&amp;Stop Trusting</source>
        <translation>&amp;Przestań ufać</translation>
    </message>
    <message>
        <source>&amp;Do Not Connect</source>
        <translation>&amp;Nie łącz</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>Za&amp;mknij</translation>
    </message>
</context>
<context>
    <name>KirvClient</name>
    <message>
        <source>Accounts</source>
        <translation>Konta</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Wtyczki</translation>
    </message>
    <message>
        <source>There is no folder %1, so no protocol is available.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation>Nie ma folderu %1, dlatego żaden protokół nie jest dostępny.</translation>
    </message>
    <message>
        <source>The link cannot be opened: the protocol %1 is not available.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>Nie można otworzyć odnośnika: protokół %1 nie jest dostępny.</translation>
    </message>
    <message>
        <source>%1 is the main account now, because %2 was removed.</source>
        <translation>Kontem głównym jest teraz %1, ponieważ usunięto %2.</translation>
    </message>
    <message>
        <source>%1 is the main account now, because %2 was disabled.</source>
        <translation>Kontem głównym jest teraz %1, ponieważ wyłączono %2.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = name of an account, %2 = one or more sentences about it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>One password was moved to your keyring.</source>
        <translation>Jedno hasło przeniesiono do bazy kluczy.</translation>
    </message>
    <message numerus="yes">
        <source>%n passwords were moved to your keyring.</source>
        <translation>
            <numerusform>%n hasło przeniesiono do bazy kluczy.</numerusform>
            <numerusform>%n hasła przeniesiono do bazy kluczy.</numerusform>
            <numerusform>%n haseł przeniesiono do bazy kluczy.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n passwords were moved to your keyring, which is %1.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>
            <numerusform>%n hasło przeniesiono do bazy kluczy (%1).</numerusform>
            <numerusform>%n hasła przeniesiono do bazy kluczy (%1).</numerusform>
            <numerusform>%n haseł przeniesiono do bazy kluczy (%1).</numerusform>
        </translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>The link was not opened because another window waits for an answer. Close that, and open the link again.</source>
        <translation>Odnośnik nie został otwarty, ponieważ inne okno czeka na odpowiedź. Zamknij to okno i otwórz odnośnik ponownie.</translation>
    </message>
    <message>
        <source>The link was not opened because it is too long.</source>
        <translation>Odnośnik nie został otwarty, ponieważ jest za długi.</translation>
    </message>
</context>
<context>
    <name>KirvClientOptions</name>
    <message>
        <source>The option --%1 needs a folder.</source>
        <extracomment>%1 = name of an option</extracomment>
        <translation>Opcja --%1 wymaga podania folderu.</translation>
    </message>
    <message>
        <source>Say whether the profile is damaged, list its copies and end: with 0 when it can be used, 2 when it is damaged, and 1 when it cannot be used for another reason.</source>
        <translation>Sprawdza, czy profil jest uszkodzony, wypisuje jego kopie i kończy działanie: z kodem 0, gdy profilu można używać, 2, gdy jest uszkodzony, i 1, gdy nie można go używać z innej przyczyny.</translation>
    </message>
    <message>
        <source>Put a copy in the place of the profile&apos;s database and end: the newest, or the one that is named. Passwords are in no copy.</source>
        <translation>Umieszcza kopię w miejscu bazy danych profilu i kończy działanie: kopię najnowszą albo podaną. Kopie nie zawierają haseł.</translation>
    </message>
    <message>
        <source>Read what is still readable of the profile&apos;s damaged database, keep that, and end.</source>
        <translation>Odczytuje z uszkodzonej bazy danych profilu to, co jeszcze da się odczytać, zachowuje to i kończy działanie.</translation>
    </message>
    <message>
        <source>The copy to restore.</source>
        <translation>Kopia do przywrócenia.</translation>
    </message>
    <message>
        <source>[copy]</source>
        <translation>[kopia]</translation>
    </message>
    <message>
        <source>A link that begins with xmpp:, irc: or ircs: opens the window for a new account of that protocol.</source>
        <translation>Odnośnik, który zaczyna się od xmpp:, irc: lub ircs:, otwiera okno nowego konta tego protokołu.</translation>
    </message>
    <message>
        <source>[link]</source>
        <translation>[odnośnik]</translation>
    </message>
    <message>
        <source>The options %1 and %2 cannot be used together.</source>
        <extracomment>%1, %2 = names of options</extracomment>
        <translation>Opcji %1 i %2 nie można używać razem.</translation>
    </message>
    <message>
        <source>The argument &quot;%1&quot; is not known.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>Nieznany argument „%1”.</translation>
    </message>
    <message>
        <source>Keep accounts and settings in &lt;folder&gt; instead of the user&apos;s own profile.</source>
        <translation>Przechowuje konta i ustawienia w folderze &lt;folder&gt; zamiast we własnym profilu użytkownika.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>folder</translation>
    </message>
    <message>
        <source>Load the protocol plug-ins of &lt;folder&gt;.</source>
        <translation>Ładuje wtyczki protokołów z folderu &lt;folder&gt;.</translation>
    </message>
    <message>
        <source>Accounts of several instant-messaging protocols in one place.
&quot;kirv accounts --help&quot; says how accounts are listed, enabled, disabled, exported and imported without windows.</source>
        <translation>Konta kilku protokołów komunikatorów internetowych w jednym miejscu.
Polecenie „kirv accounts --help” wyjaśnia, jak wypisywać, włączać, wyłączać, eksportować i importować konta bez otwierania okien.</translation>
    </message>
</context>
<context>
    <name>KirvCommandFile</name>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2</source>
        <extracomment>%1 = path of a file, %2 = what the system says</extracomment>
        <translation>Nie można odczytać pliku „%1”: %2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is too large to be a file of exported accounts.</source>
        <translation>Plik „%1” jest za duży jak na plik z kontami.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file that can be overwritten.</source>
        <translation>„%1” nie jest plikiem, który można zastąpić.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists already. Use --force to overwrite it.</source>
        <translation>Plik „%1” już istnieje. Aby go zastąpić, użyj opcji --force.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written.</source>
        <translation>Nie można zapisać pliku „%1”.</translation>
    </message>
    <message>
        <source>The standard output cannot be written.</source>
        <translation>Nie można zapisać na standardowym wyjściu.</translation>
    </message>
</context>
<context>
    <name>KirvConnection</name>
    <message>
        <source>The account is not connected.</source>
        <translation>Konto nie jest połączone.</translation>
    </message>
</context>
<context>
    <name>KirvDamagedProfile</name>
    <message>
        <source>The copy of %1 was restored. Accounts: %2.</source>
        <extracomment>%1 = date and time, %2 = number of accounts</extracomment>
        <translation>Przywrócono kopię z %1. Liczba kont: %2.</translation>
    </message>
    <message>
        <source>Passwords and other secret settings are in no copy and have to be entered again.</source>
        <translation>Kopie nie zawierają haseł ani innych poufnych ustawień; trzeba wprowadzić je ponownie.</translation>
    </message>
    <message>
        <source>Everything could be read.</source>
        <translation>Udało się odczytać wszystko.</translation>
    </message>
    <message>
        <source>Only a part could be read. Accounts or settings are missing.</source>
        <translation>Udało się odczytać tylko część danych. Brakuje kont lub ustawień.</translation>
    </message>
    <message>
        <source>Accounts: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Konta: %1</translation>
    </message>
    <message>
        <source>Settings of accounts: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Ustawienia kont: %1</translation>
    </message>
    <message>
        <source>Passwords and other secret settings: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Hasła i inne poufne ustawienia: %1</translation>
    </message>
    <message>
        <source>Settings of the program: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Ustawienia programu: %1</translation>
    </message>
    <message>
        <source>The profile has no accounts now.</source>
        <translation>Profil nie zawiera teraz żadnych kont.</translation>
    </message>
    <message>
        <source>The database that was there is kept in &quot;%1&quot;, with the passwords in it. Delete it when it is no longer needed.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Dotychczasowa baza danych znajduje się w pliku „%1”, razem z hasłami. Usuń ten plik, gdy nie będzie już potrzebny.</translation>
    </message>
</context>
<context>
    <name>KirvDatabase</name>
    <message>
        <source>The SQLite driver of Qt, which the profile needs, is not installed.</source>
        <translation>Sterownik SQLite biblioteki Qt, którego potrzebuje profil, nie jest zainstalowany.</translation>
    </message>
    <message>
        <source>The profile is not open.</source>
        <translation>Profil nie jest otwarty.</translation>
    </message>
    <message>
        <source>There is no space left on the disk, so nothing was stored. Free some space and try again.</source>
        <translation>Na dysku nie ma już miejsca, dlatego nic nie zapisano. Zwolnij trochę miejsca i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; could not be read or written (%2). The disk may be full or faulty.</source>
        <translation>Nie udało się odczytać lub zapisać profilu w „%1” (%2). Dysk może być pełny lub uszkodzony.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is damaged, so nothing was stored. Start the program again to see what can be done.</source>
        <translation>Profil w „%1” jest uszkodzony, dlatego nic nie zapisano. Uruchom program ponownie, aby zobaczyć, co da się zrobić.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; cannot be written. Check its owner and permissions.</source>
        <translation>Nie można zapisać profilu w „%1”. Sprawdź jego właściciela i uprawnienia.</translation>
    </message>
    <message>
        <source>Another program is using the profile in &quot;%1&quot;.</source>
        <translation>Inny program używa profilu w „%1”.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; could not be used: %2</source>
        <translation>Nie udało się użyć profilu w „%1”: %2</translation>
    </message>
</context>
<context>
    <name>KirvDemo</name>
    <message>
        <source>No temporary folder for the profile can be made: %1</source>
        <translation>Nie można utworzyć tymczasowego folderu na profil: %1</translation>
    </message>
    <message>
        <source>The demo needs the XMPP server Prosody (the package prosody), which did not start: %1</source>
        <translation>Wersja pokazowa wymaga serwera XMPP Prosody (pakiet prosody), który się nie uruchomił: %1</translation>
    </message>
    <message>
        <source>This is a try-out with a profile of its own; nothing is kept. A private XMPP server runs on this computer. Add an XMPP account, choose the configuration &quot;Server on this computer&quot; and type the login %1 and the password %2.</source>
        <translation>To wersja pokazowa z własnym profilem; nic nie zostanie zachowane. Na tym komputerze działa prywatny serwer XMPP. Dodaj konto XMPP, wybierz konfigurację „Serwer na tym komputerze” i wpisz login %1 oraz hasło %2.</translation>
    </message>
    <message>
        <source>A private IRC server runs too: add an IRC account with the same configuration, with any nickname and any password.</source>
        <translation>Działa też prywatny serwer IRC: dodaj konto IRC z tą samą konfiguracją, z dowolnym pseudonimem i dowolnym hasłem.</translation>
    </message>
</context>
<context>
    <name>KirvDirectoryGuard</name>
    <message>
        <source>&amp;Fetch Again</source>
        <translation>Pobie&amp;rz ponownie</translation>
    </message>
    <message>
        <source>Publishing the directory entry…</source>
        <translation>Publikowanie wpisu w katalogu…</translation>
    </message>
    <message>
        <source>Requesting the directory entry…</source>
        <translation>Pobieranie wpisu z katalogu…</translation>
    </message>
    <message>
        <source>The account must be connected before its directory entry can be read or changed.</source>
        <translation>Aby można było odczytać lub zmienić wpis w katalogu, konto musi być połączone.</translation>
    </message>
    <message>
        <source>The directory entry is not known. Fetch it again to change it.</source>
        <translation>Wpis w katalogu nie jest znany. Pobierz go ponownie, aby go zmienić.</translation>
    </message>
    <message>
        <source>Nothing was saved, because the entry cannot be published like this. Correct what is marked.</source>
        <translation>Nic nie zapisano, ponieważ wpisu nie można opublikować w tej postaci. Popraw to, co zaznaczono.</translation>
    </message>
    <message>
        <source>The account was saved, but its directory entry was not published, as the account is not connected. Save again when it is.</source>
        <translation>Konto zostało zapisane, ale jego wpis w katalogu nie został opublikowany, ponieważ konto nie jest połączone. Zapisz ponownie, gdy będzie połączone.</translation>
    </message>
</context>
<context>
    <name>KirvEditWindowCompanion</name>
    <message>
        <source>&amp;Server Account</source>
        <translation>Konto na s&amp;erwerze</translation>
    </message>
    <message>
        <source>What can be done with the account on its server.</source>
        <translation>Co można zrobić z kontem na jego serwerze.</translation>
    </message>
    <message>
        <source>Saving Account</source>
        <translation>Zapisywanie konta</translation>
    </message>
    <message>
        <source>Nothing was changed. The window stays open, so that you can try again.</source>
        <translation>Nic nie zostało zmienione. Okno pozostaje otwarte, więc można spróbować ponownie.</translation>
    </message>
    <message>
        <source>Picture of the Account</source>
        <translation>Obraz konta</translation>
    </message>
    <message>
        <source>The picture was not changed.</source>
        <translation>Obraz nie został zmieniony.</translation>
    </message>
    <message>
        <source>None is stored</source>
        <translation>Nie zapisano hasła</translation>
    </message>
</context>
<context>
    <name>KirvExportWindow</name>
    <message>
        <source>Export Accounts</source>
        <translation>Eksport kont</translation>
    </message>
    <message>
        <source>Include &amp;passwords (encrypted)</source>
        <translation>Dołącz &amp;hasła (zaszyfrowane)</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Wynik</translation>
    </message>
    <message>
        <source>Several words that are not related are easy to remember and hard to guess. Whoever has the file and guesses the pass phrase has your passwords; without it, nobody can read them, not even you.</source>
        <translation>Kilka niezwiązanych ze sobą słów łatwo zapamiętać, a trudno odgadnąć. Kto ma plik i odgadnie frazę szyfrującą, pozna Twoje hasła; bez niej nikt ich nie odczyta, nawet Ty.</translation>
    </message>
    <message>
        <source>Pass p&amp;hrase:</source>
        <translation>&amp;Fraza szyfrująca:</translation>
    </message>
    <message>
        <source>&amp;Repeat pass phrase:</source>
        <translation>&amp;Powtórz frazę:</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Eksportuj…</translation>
    </message>
    <message>
        <source>Choose the file to which the accounts are written.</source>
        <translation>Wybierz plik, w którym zostaną zapisane konta.</translation>
    </message>
    <message>
        <source>The two pass phrases must be the same.</source>
        <translation>Fraza szyfrująca i jej powtórzenie muszą być takie same.</translation>
    </message>
    <message>
        <source>Exported accounts (*.json)</source>
        <translation>Wyeksportowane konta (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>The export was cancelled; nothing was written.</source>
        <translation>Eksport został anulowany; niczego nie zapisano.</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were exported to %1.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>
            <numerusform>Wyeksportowano %n konto do pliku %1.</numerusform>
            <numerusform>Wyeksportowano %n konta do pliku %1.</numerusform>
            <numerusform>Wyeksportowano %n kont do pliku %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file contains no passwords.</source>
        <translation>W pliku nie ma haseł.</translation>
    </message>
    <message>
        <source>The following is not in the file:</source>
        <translation>W pliku nie ma:</translation>
    </message>
    <message>
        <source>The stored passwords are in it, encrypted with the pass phrase.</source>
        <translation>Zapisane hasła są w nim zaszyfrowane frazą szyfrującą.</translation>
    </message>
</context>
<context>
    <name>KirvFailure</name>
    <message>
        <source>The server did not accept the login or the password.</source>
        <translation>Serwer nie przyjął loginu lub hasła.</translation>
    </message>
    <message>
        <source>A password is needed to log in, and none is known.</source>
        <translation>Do zalogowania potrzebne jest hasło, a żadne nie jest znane.</translation>
    </message>
    <message>
        <source>The server could not be found. Check its name and your network connection.</source>
        <translation>Nie udało się znaleźć serwera. Sprawdź jego nazwę i połączenie sieciowe.</translation>
    </message>
    <message>
        <source>The server does not accept connections. Check its name and port, or try again later.</source>
        <translation>Serwer nie przyjmuje połączeń. Sprawdź jego nazwę i port lub spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The server did not answer in time.</source>
        <translation>Serwer nie odpowiedział na czas.</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted.</source>
        <translation>Certyfikat serwera nie jest zaufany.</translation>
    </message>
    <message>
        <source>The account requires encryption, and the server does not offer it.</source>
        <translation>Konto wymaga szyfrowania, a serwer go nie oferuje.</translation>
    </message>
    <message>
        <source>The server offers no way to log in that this account can use.</source>
        <translation>Serwer nie oferuje żadnej metody logowania, której to konto może użyć.</translation>
    </message>
    <message>
        <source>The server cannot log the account in at the moment.</source>
        <translation>Serwer nie może teraz zalogować konta.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>Utracono połączenie z serwerem.</translation>
    </message>
    <message>
        <source>The server closed the connection.</source>
        <translation>Serwer zamknął połączenie.</translation>
    </message>
    <message>
        <source>Another client logged in to the account and took its place.</source>
        <translation>Inny klient zalogował się na to konto i zajął jego miejsce.</translation>
    </message>
    <message>
        <source>The name is already in use on the server.</source>
        <translation>Nazwa jest już używana na tym serwerze.</translation>
    </message>
    <message>
        <source>The server does not allow this name.</source>
        <translation>Serwer nie zezwala na tę nazwę.</translation>
    </message>
    <message>
        <source>The proxy cannot be reached. Check its name and port and your network connection.</source>
        <translation>Nie można połączyć się z serwerem proxy. Sprawdź jego nazwę i port oraz połączenie sieciowe.</translation>
    </message>
    <message>
        <source>The proxy did not connect to the server in time.</source>
        <translation>Serwer proxy nie połączył się na czas z serwerem.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user or the password.</source>
        <translation>Serwer proxy nie przyjął nazwy użytkownika lub hasła.</translation>
    </message>
    <message>
        <source>The proxy does not allow a connection to the server.</source>
        <translation>Serwer proxy nie zezwala na połączenie z serwerem.</translation>
    </message>
    <message>
        <source>The connection through the proxy failed.</source>
        <translation>Połączenie przez serwer proxy nie powiodło się.</translation>
    </message>
    <message>
        <source>The system did not say in time which proxy to use, so no connection was made.</source>
        <translation>System nie podał na czas, którego serwera proxy użyć, dlatego nie nawiązano połączenia.</translation>
    </message>
    <message>
        <source>The server denied access.</source>
        <translation>Serwer odmówił dostępu.</translation>
    </message>
    <message>
        <source>The settings of the account cannot be used.</source>
        <translation>Nie można użyć ustawień konta.</translation>
    </message>
    <message>
        <source>The server does not offer what was requested.</source>
        <translation>Serwer nie oferuje żądanej funkcji.</translation>
    </message>
    <message>
        <source>The request failed.</source>
        <translation>Żądanie nie powiodło się.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Wystąpił nieznany błąd.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; could not be found. Check its name and your network connection.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>Nie udało się znaleźć serwera „%1”. Sprawdź jego nazwę i połączenie sieciowe.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; does not accept connections. Check its name and port, or try again later.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>Serwer „%1” nie przyjmuje połączeń. Sprawdź jego nazwę i port lub spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not answer in time.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>Serwer „%1” nie odpowiedział na czas.</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: %1</source>
        <extracomment>%1 is what is wrong with the certificate</extracomment>
        <translation>Certyfikat serwera nie jest zaufany: %1</translation>
    </message>
    <message>
        <source>The server cannot log the account in at the moment: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>Serwer nie może teraz zalogować konta: %1</translation>
    </message>
    <message>
        <source>The connection to the server was lost: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>Utracono połączenie z serwerem: %1</translation>
    </message>
    <message>
        <source>The server closed the connection: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>Serwer zamknął połączenie: %1</translation>
    </message>
    <message>
        <source>Another client logged in to the account and took its place: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>Inny klient zalogował się na to konto i zajął jego miejsce: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is already in use on the server.</source>
        <extracomment>%1 is the name of a user</extracomment>
        <translation>Nazwa „%1” jest już używana na tym serwerze.</translation>
    </message>
    <message>
        <source>The server does not allow the name &quot;%1&quot;.</source>
        <extracomment>%1 is the name of a user</extracomment>
        <translation>Serwer nie zezwala na nazwę „%1”.</translation>
    </message>
    <message>
        <source>The server denied access: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>Serwer odmówił dostępu: %1</translation>
    </message>
    <message>
        <source>The settings of the account cannot be used: %1</source>
        <extracomment>%1 says which setting and what is wrong with it</extracomment>
        <translation>Nie można użyć ustawień konta: %1</translation>
    </message>
    <message>
        <source>The server does not offer what was requested: %1</source>
        <extracomment>%1 is what was requested</extracomment>
        <translation>Serwer nie oferuje żądanej funkcji: %1</translation>
    </message>
    <message>
        <source>The request failed: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>Żądanie nie powiodło się: %1</translation>
    </message>
    <message>
        <source>An error occurred: %1</source>
        <extracomment>%1 is what the server or the network said</extracomment>
        <translation>Wystąpił błąd: %1</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its name and port and your network connection.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>Nie można połączyć się z serwerem proxy %1. Sprawdź jego nazwę i port oraz połączenie sieciowe.</translation>
    </message>
    <message>
        <source>The proxy %1 did not connect to the server in time.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>Serwer proxy %1 nie połączył się na czas z serwerem.</translation>
    </message>
    <message>
        <source>The proxy %1 did not accept the user or the password.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>Serwer proxy %1 nie przyjął nazwy użytkownika lub hasła.</translation>
    </message>
    <message>
        <source>The proxy %1 does not allow a connection to the server.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>Serwer proxy %1 nie zezwala na połączenie z serwerem.</translation>
    </message>
    <message>
        <source>The connection through the proxy failed: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>Połączenie przez serwer proxy nie powiodło się: %1</translation>
    </message>
    <message>
        <source>The connection ended before the server answered.</source>
        <translation>Połączenie zostało zakończone, zanim serwer odpowiedział.</translation>
    </message>
</context>
<context>
    <name>KirvFieldForm</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Invalid format.</source>
        <extracomment>%1 = a sentence that says what is valid</extracomment>
        <translation>Nieprawidłowy format.</translation>
    </message>
    <message>
        <source>Invalid format: %1</source>
        <translation>Nieprawidłowy format: %1</translation>
    </message>
    <message>
        <source>This must be filled in.</source>
        <translation>To pole trzeba wypełnić.</translation>
    </message>
    <message>
        <source>This text is too long to be shown in full and to be changed here.</source>
        <translation>Ten tekst jest za długi, aby go tu w całości pokazać i zmienić.</translation>
    </message>
    <message>
        <source>This text is too long to be shown in full. It is kept as long as nothing is changed here.</source>
        <translation>Ten tekst jest za długi, aby pokazać go w całości. Pozostanie bez zmian, dopóki nic tu nie zmienisz.</translation>
    </message>
    <message>
        <source>This must be a whole number from %1 to %2.</source>
        <translation>To musi być liczba całkowita od %1 do %2.</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Wymagane</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>Nie wybrano</translation>
    </message>
</context>
<context>
    <name>KirvFileButton</name>
    <message>
        <source>Choose…</source>
        <translation>Wybierz…</translation>
    </message>
    <message>
        <source>Choose the file.</source>
        <translation>Wybierz plik.</translation>
    </message>
    <message>
        <source>Choose the file for %1</source>
        <extracomment>%1 = what the file is, as &quot;Trusted certificate&quot;</extracomment>
        <translation>Wybierz plik dla pola „%1”</translation>
    </message>
    <message>
        <source>Certificates and keys (*.pem *.crt *.cer *.key)</source>
        <translation>Certyfikaty i klucze (*.pem *.crt *.cer *.key)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
</context>
<context>
    <name>KirvGeneralPage</name>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>&amp;Language of the program:</source>
        <translation>&amp;Język programu:</translation>
    </message>
    <message>
        <source>As the system (%1)</source>
        <extracomment>entry of a list of languages; %1 = the language of the system in its own words, as &quot;Deutsch&quot;</extracomment>
        <translation>Jak w systemie (%1)</translation>
    </message>
    <message>
        <source>No native speaker has read these texts yet.</source>
        <translation>Nikt, kto mówi tym językiem od dziecka, nie przeczytał jeszcze tych tekstów.</translation>
    </message>
    <message>
        <source>The language changes when the open windows are closed.</source>
        <translation>Język zmieni się po zamknięciu otwartych okien.</translation>
    </message>
    <message>
        <source>Passwords</source>
        <translation>Hasła</translation>
    </message>
    <message>
        <source>&amp;Unlock…</source>
        <translation>&amp;Odblokuj…</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Your accounts and settings are in the folder %1.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation>Twoje konta i ustawienia są w folderze %1.</translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation>Otwórz &amp;folder</translation>
    </message>
    <message>
        <source>Shows the folder in the file manager.</source>
        <translation>Pokazuje folder w menedżerze plików.</translation>
    </message>
    <message>
        <source>Copies of the profile</source>
        <translation>Kopie profilu</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Konta</translation>
    </message>
    <message>
        <source>There are no copies of the profile yet.</source>
        <translation>Nie ma jeszcze żadnych kopii profilu.</translation>
    </message>
    <message>
        <source>Copies of the profile, without passwords; one can be restored when the profile is damaged:</source>
        <translation>Kopie profilu, bez haseł; gdy profil jest uszkodzony, można przywrócić jedną z nich:</translation>
    </message>
    <message>
        <source>&amp;Export Accounts…</source>
        <translation>&amp;Eksportuj konta…</translation>
    </message>
    <message>
        <source>Writes accounts to a file that can be imported on another computer.</source>
        <translation>Zapisuje konta w pliku, który można zaimportować na innym komputerze.</translation>
    </message>
    <message>
        <source>&amp;Import Accounts…</source>
        <translation>&amp;Importuj konta…</translation>
    </message>
    <message>
        <source>Takes accounts over from such a file, or from Pidgin.</source>
        <translation>Przejmuje konta z takiego pliku lub z programu Pidgin.</translation>
    </message>
    <message>
        <source>The keyring asks you to unlock it. Then the passwords that accounts wait for are read, and those that are in a file are moved.</source>
        <translation>Baza kluczy prosi o odblokowanie. Potem odczytywane są hasła, na które czekają konta, a te z pliku są przenoszone.</translation>
    </message>
</context>
<context>
    <name>KirvImportWindow</name>
    <message>
        <source>Import Accounts</source>
        <translation>Import kont</translation>
    </message>
    <message>
        <source>About the file</source>
        <translation>Informacje o pliku</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>Co się stanie</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Pominięte</translation>
    </message>
    <message>
        <source>&amp;Pass phrase:</source>
        <translation>&amp;Fraza szyfrująca:</translation>
    </message>
    <message>
        <source>Choose Another &amp;File…</source>
        <translation>&amp;Wybierz inny plik…</translation>
    </message>
    <message>
        <source>&amp;Without Passwords</source>
        <translation>&amp;Bez haseł</translation>
    </message>
    <message>
        <source>Lists the accounts; their passwords have to be entered here.</source>
        <translation>Wyświetla listę kont; ich hasła trzeba będzie wprowadzić tutaj.</translation>
    </message>
    <message>
        <source>Exported accounts, accounts of Pidgin (*.json *.xml)</source>
        <translation>Wyeksportowane konta, konta programu Pidgin (*.json *.xml)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>The file %1 is being read…</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Odczytywanie pliku %1…</translation>
    </message>
    <message>
        <source>The file %1 contains passwords. Enter the pass phrase with which they are encrypted.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Plik %1 zawiera hasła. Wprowadź frazę szyfrującą, którą są zaszyfrowane.</translation>
    </message>
    <message>
        <source>The accounts in the file %1 cannot be imported.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Nie można zaimportować kont z pliku %1.</translation>
    </message>
    <message>
        <source>The file %1 contains no accounts that can be imported.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>W pliku %1 nie ma kont, które można zaimportować.</translation>
    </message>
    <message>
        <source>The file %1 contains these accounts. Nothing is changed before you import them, and the import can be undone.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>W pliku %1 są następujące konta. Dopóki ich nie zaimportujesz, nic się nie zmieni, a import można cofnąć.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>Kon&amp;tynuuj</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Import %n Accounts</source>
        <translation>
            <numerusform>&amp;Importuj %n konto</numerusform>
            <numerusform>&amp;Importuj %n konta</numerusform>
            <numerusform>&amp;Importuj %n kont</numerusform>
        </translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nowe</translation>
    </message>
    <message>
        <source>New, will be left out</source>
        <translation>Nowe, zostanie pominięte</translation>
    </message>
    <message>
        <source>Exists, will be replaced</source>
        <translation>Już istnieje, zostanie zastąpione</translation>
    </message>
    <message>
        <source>Exists, will be kept</source>
        <translation>Już istnieje, pozostanie bez zmian</translation>
    </message>
    <message>
        <source>Exists as %1, will be replaced</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>Już istnieje jako %1, zostanie zastąpione</translation>
    </message>
    <message>
        <source>Exists as %1, will be kept</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>Już istnieje jako %1, pozostanie bez zmian</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = the login of an account, %2 = a sentence about it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The following is not imported:</source>
        <translation>Nie zostaną zaimportowane:</translation>
    </message>
    <message>
        <source>Exists, will be replaced; its passwords must be entered again</source>
        <translation>Już istnieje, zostanie zastąpione; jego hasła trzeba będzie wpisać ponownie</translation>
    </message>
    <message>
        <source>Exists as %1, will be replaced; its passwords must be entered again</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>Już istnieje jako %1, zostanie zastąpione; jego hasła trzeba będzie wpisać ponownie</translation>
    </message>
</context>
<context>
    <name>KirvInstanceMessage</name>
    <message>
        <source>The program that runs with this profile has another version. Quit it, and try again.</source>
        <translation>Program, który działa z tym profilem, ma inną wersję. Zakończ go i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The message of the other program cannot be read.</source>
        <translation>Nie można odczytać komunikatu drugiego programu.</translation>
    </message>
    <message>
        <source>The program that runs with this profile does not have that command.</source>
        <translation>Program, który działa z tym profilem, nie zna tego polecenia.</translation>
    </message>
</context>
<context>
    <name>KirvIrcConnection</name>
    <message>
        <source>The server sent a line that is longer than lines can be.</source>
        <translation>Serwer wysłał wiersz dłuższy, niż jest dozwolone.</translation>
    </message>
    <message>
        <source>There is no certificate in the file &quot;%1&quot;.</source>
        <translation>W pliku „%1” nie ma certyfikatu.</translation>
    </message>
    <message>
        <source>There is no private key that can be used in the file &quot;%1&quot;.</source>
        <translation>W pliku „%1” nie ma klucza prywatnego, którego można użyć.</translation>
    </message>
    <message>
        <source>Other users of this computer can read or change the key file &quot;%1&quot;. Only its owner should.</source>
        <translation>Inni użytkownicy tego komputera mogą odczytać lub zmienić plik klucza „%1”. Powinien móc to robić tylko jego właściciel.</translation>
    </message>
    <message>
        <source>It does not offer SASL now, as it did before.</source>
        <translation>Serwer nie oferuje teraz SASL, choć wcześniej to robił.</translation>
    </message>
    <message>
        <source>The nick &quot;%1&quot; could not be had; you are &quot;%2&quot; on this server now.</source>
        <translation>Pseudonim „%1” nie jest dostępny; na tym serwerze używasz teraz pseudonimu „%2”.</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>%1 is what a server says first, as &quot;You are banned&quot;, %2 what it says when it closes the connection</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>password of the server</source>
        <translation>hasło serwera</translation>
    </message>
    <message>
        <source>no password</source>
        <translation>bez hasła</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is the encryption, as &quot;TLSv1.3&quot;, %2 how the user has proved who he is, as &quot;SASL PLAIN&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not encrypted</source>
        <translation>bez szyfrowania</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Zaraz wracam</translation>
    </message>
    <message>
        <source>The server does not answer any more.</source>
        <translation>Serwer już nie odpowiada.</translation>
    </message>
</context>
<context>
    <name>KirvIrcProtocol</name>
    <message>
        <source>Internet Relay Chat: conversations in channels of a network of servers.</source>
        <translation>Internet Relay Chat: rozmowy na kanałach sieci serwerów.</translation>
    </message>
    <message>
        <source>anna, or anna@irc.example.org</source>
        <translation>anna lub anna@irc.example.org</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Dostępny</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Zaraz wracam</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Niedostępny</translation>
    </message>
</context>
<context>
    <name>KirvIrcSasl</name>
    <message>
        <source>The password is longer than the server accepts.</source>
        <translation>Hasło jest dłuższe, niż dopuszcza serwer.</translation>
    </message>
    <message>
        <source>It has ended SASL before it was done.</source>
        <translation>Serwer zakończył SASL przed czasem.</translation>
    </message>
    <message>
        <source>The client certificate is not known there.</source>
        <translation>Certyfikat klienta nie jest tam znany.</translation>
    </message>
</context>
<context>
    <name>KirvIrcSettings</name>
    <message>
        <source>&quot;%1&quot; cannot be a nick.</source>
        <translation>„%1” nie może być pseudonimem.</translation>
    </message>
    <message>
        <source>No server is given.</source>
        <translation>Nie podano serwera.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a server.</source>
        <translation>„%1” nie jest nazwą serwera.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Port musi być liczbą od 1 do 65535.</translation>
    </message>
    <message>
        <source>There is a key of a client certificate, but no client certificate.</source>
        <translation>Podano klucz certyfikatu klienta, ale nie podano certyfikatu klienta.</translation>
    </message>
    <message>
        <source>A client certificate can be used with encryption only.</source>
        <translation>Certyfikatu klienta można używać tylko z szyfrowaniem.</translation>
    </message>
    <message>
        <source>The password cannot be sent: it is too long or has characters that do not belong to a line.</source>
        <translation>Nie można wysłać hasła: jest za długie lub zawiera znaki, których nie może być w wierszu.</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serwer</translation>
    </message>
    <message>
        <source>The name or address of the server. When it is empty, the part of the login after the @ is the server.</source>
        <translation>Nazwa lub adres serwera. Gdy to pole jest puste, serwerem jest część loginu po znaku @.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Szyfrowanie</translation>
    </message>
    <message>
        <source>Required (TLS)</source>
        <translation>Wymagane (TLS)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>With encryption the server must also prove who it is. Without, everybody on the way can read along.</source>
        <translation>Przy szyfrowaniu serwer musi też dowieść swojej tożsamości. Bez niego każdy po drodze może czytać przesyłane dane.</translation>
    </message>
    <message>
        <source>Trusted certificate</source>
        <translation>Zaufany certyfikat</translation>
    </message>
    <message>
        <source>The path of a file with a certificate (PEM) to trust besides those that this computer trusts already.</source>
        <translation>Ścieżka pliku z certyfikatem (PEM), który ma być zaufany oprócz tych, którym ten komputer już ufa.</translation>
    </message>
    <message>
        <source>Use of the password</source>
        <translation>Użycie hasła</translation>
    </message>
    <message>
        <source>Not used</source>
        <translation>Nieużywane</translation>
    </message>
    <message>
        <source>Password of the server</source>
        <translation>Hasło serwera</translation>
    </message>
    <message>
        <source>Password of a registered nick (SASL)</source>
        <translation>Hasło zarejestrowanego pseudonimu (SASL)</translation>
    </message>
    <message>
        <source>What the account&apos;s password is for. Most networks need none, unless you have registered your nick there.</source>
        <translation>Do czego służy hasło konta. Większość sieci go nie wymaga, chyba że masz tam zarejestrowany pseudonim.</translation>
    </message>
    <message>
        <source>SASL user</source>
        <translation>Użytkownik SASL</translation>
    </message>
    <message>
        <source>The name under which the nick is registered. Empty: the nick itself.</source>
        <translation>Nazwa, pod którą zarejestrowano pseudonim. Puste: sam pseudonim.</translation>
    </message>
    <message>
        <source>Real name</source>
        <translation>Imię i nazwisko</translation>
    </message>
    <message>
        <source>What others see as your name when they ask for it. Empty: the nick.</source>
        <translation>Co inni widzą jako imię i nazwisko, gdy o nie zapytają. Puste: pseudonim.</translation>
    </message>
    <message>
        <source>Alternative nicks</source>
        <translation>Inne pseudonimy</translation>
    </message>
    <message>
        <source>Nicks to try when yours is in use, separated by commas.</source>
        <translation>Pseudonimy do wypróbowania, gdy właściwy jest zajęty, oddzielone przecinkami.</translation>
    </message>
    <message>
        <source>Client certificate</source>
        <translation>Certyfikat klienta</translation>
    </message>
    <message>
        <source>The path of a file with a certificate of your own (PEM), to log in with instead of the password (SASL EXTERNAL). Empty: none.</source>
        <translation>Ścieżka pliku z własnym certyfikatem (PEM), który służy do logowania zamiast hasła (SASL EXTERNAL). Puste: brak certyfikatu.</translation>
    </message>
    <message>
        <source>Key of the client certificate</source>
        <translation>Klucz certyfikatu klienta</translation>
    </message>
    <message>
        <source>The path of the file with the certificate&apos;s private key (PEM, without a password). Empty: it is in the certificate&apos;s file.</source>
        <translation>Ścieżka pliku z kluczem prywatnym certyfikatu (PEM, bez hasła). Puste: klucz jest w pliku certyfikatu.</translation>
    </message>
    <message>
        <source>Server on this computer</source>
        <translation>Serwer na tym komputerze</translation>
    </message>
    <message>
        <source>A nickname contains no blanks.</source>
        <translation>Pseudonim nie może zawierać spacji.</translation>
    </message>
    <message>
        <source>The nickname is missing.</source>
        <translation>Brakuje pseudonimu.</translation>
    </message>
    <message>
        <source>A nickname starts with a letter.</source>
        <translation>Pseudonim musi zaczynać się od litery.</translation>
    </message>
    <message>
        <source>A nickname consists of unaccented letters, digits and the characters %1.</source>
        <translation>Pseudonim może zawierać tylko litery bez znaków diakrytycznych, cyfry i znaki %1.</translation>
    </message>
    <message>
        <source>The server after the &quot;@&quot; is missing.</source>
        <translation>Brakuje serwera po znaku „@”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address of a server.</source>
        <translation>„%1” nie jest adresem serwera.</translation>
    </message>
    <message>
        <source>Usually 6697 with encryption and 6667 without. When the server is empty, a port in the login, as in ann@irc.example.org:6667, is used instead.</source>
        <translation>Zwykle 6697 z szyfrowaniem i 6667 bez niego. Gdy serwer jest pusty, używany jest port podany w loginie, jak w ann@irc.example.org:6667.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutCatalog</name>
    <message>
        <source>&quot;%1&quot; is a %2, but must be a %3.</source>
        <translation>„%1” to %2, a musi to być %3.</translation>
    </message>
    <message>
        <source>There is no %1 named &quot;%2&quot;.</source>
        <translation>Brakuje elementu %1 o nazwie „%2”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no standard button %2.</source>
        <translation>„%1” nie ma standardowego przycisku %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs two tabs: the account and its directory entry.</source>
        <translation>„%1” wymaga dwóch kart: konta i jego wpisu w katalogu.</translation>
    </message>
    <message>
        <source>The layout file %1 cannot be used; the built-in layout takes its place.
%2</source>
        <translation>Nie można użyć pliku układu %1; zastępuje go układ wbudowany.
%2</translation>
    </message>
    <message>
        <source>The window is a %1, but must be a %2.</source>
        <translation>Okno to %1, a musi to być %2.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutCheck</name>
    <message>
        <source>It declares a document type, which a layout cannot have.</source>
        <translation>Plik deklaruje typ dokumentu, na co układ nie pozwala.</translation>
    </message>
    <message>
        <source>It is not a window layout of Qt Designer.</source>
        <translation>Plik nie jest układem okna programu Qt Designer.</translation>
    </message>
    <message>
        <source>Its elements are nested too deeply.</source>
        <translation>Elementy pliku są zagnieżdżone zbyt głęboko.</translation>
    </message>
    <message>
        <source>It has too many widgets.</source>
        <translation>Plik zawiera za dużo widżetów.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Wiersz %1: %2</translation>
    </message>
    <message>
        <source>It connects widgets with each other, which only the program does.</source>
        <translation>Plik łączy widżety ze sobą, a to może robić tylko program.</translation>
    </message>
    <message>
        <source>It has an element &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Plik zawiera element „%1”, którego nie może być w układzie.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of an icon.</source>
        <translation>„%1” nie jest nazwą ikony.</translation>
    </message>
    <message>
        <source>It has an attribute &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Plik zawiera atrybut „%1”, którego nie może być w układzie.</translation>
    </message>
    <message>
        <source>It has an attribute that is too long.</source>
        <translation>Plik zawiera atrybut, który jest za długi.</translation>
    </message>
    <message>
        <source>It has a row or column that is out of bounds: %1.</source>
        <translation>Plik zawiera wiersz lub kolumnę poza dozwolonym zakresem: %1.</translation>
    </message>
    <message>
        <source>It has a number that is out of bounds: %1 (%2).</source>
        <translation>Plik zawiera liczbę poza dozwolonym zakresem: %1 (%2).</translation>
    </message>
    <message>
        <source>It has a text that can be read in more than one way: &quot;%1&quot;.</source>
        <translation>Plik zawiera tekst, który można odczytać na więcej niż jeden sposób: „%1”.</translation>
    </message>
    <message>
        <source>It has a text of the format &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Plik zawiera tekst w formacie „%1”, którego nie może być w układzie.</translation>
    </message>
    <message>
        <source>It sets &quot;%1&quot; to a text, which a layout cannot do.</source>
        <translation>Plik nadaje właściwości „%1” tekst, na co układ nie pozwala.</translation>
    </message>
    <message>
        <source>Its style sheet contains &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Arkusz stylów w pliku zawiera „%1”, a tego nie może być w układzie.</translation>
    </message>
    <message>
        <source>Style sheets and rich texts name pictures by their whole path, &quot;%1&quot; does not.</source>
        <translation>Arkusze stylów i teksty sformatowane podają pełne ścieżki obrazów, a „%1” nie jest pełną ścieżką.</translation>
    </message>
    <message>
        <source>It has a rich text that is too large.</source>
        <translation>Plik zawiera tekst sformatowany, który jest za duży.</translation>
    </message>
    <message>
        <source>There is no picture &quot;%1&quot;.</source>
        <translation>Nie ma obrazu „%1”.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; is not in the folder of the layout.</source>
        <translation>Obraz „%1” nie znajduje się w folderze układu.</translation>
    </message>
    <message>
        <source>It uses the unknown class %1.</source>
        <translation>Plik żąda widżetu nieznanej klasy %1.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutFile</name>
    <message>
        <source>It uses the unknown class %1.</source>
        <translation>Plik żąda widżetu nieznanej klasy %1.</translation>
    </message>
    <message>
        <source>It is not a window layout: %1</source>
        <translation>Plik nie jest układem okna: %1</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>Plik nie jest zwykłym plikiem.</translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>Nie można odczytać pliku: %1</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Plik jest pusty.</translation>
    </message>
    <message>
        <source>It is larger than %1 kB.</source>
        <translation>Plik jest większy niż %1 kB.</translation>
    </message>
</context>
<context>
    <name>KirvLeftOut</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvLengthLimit</name>
    <message>
        <source>The text is too long here. At most %1 characters are kept.</source>
        <translation>Ten tekst jest za długi. Zachowanych zostanie najwyżej %1 znaków.</translation>
    </message>
</context>
<context>
    <name>KirvLoginLine</name>
    <message>
        <source>A login cannot contain this.</source>
        <translation>Login nie może tego zawierać.</translation>
    </message>
</context>
<context>
    <name>KirvLoginStep</name>
    <message>
        <source>Name look-up</source>
        <translation>Wyszukiwanie nazwy</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Połączenie</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Szyfrowanie</translation>
    </message>
    <message>
        <source>Log-in</source>
        <translation>Logowanie</translation>
    </message>
</context>
<context>
    <name>KirvLoginTest</name>
    <message>
        <source>The plug-in gives no connection.</source>
        <translation>Wtyczka nie udostępnia połączenia.</translation>
    </message>
    <message>
        <source>The log-in works.</source>
        <translation>Logowanie działa.</translation>
    </message>
    <message>
        <source>The test was cancelled.</source>
        <translation>Test został anulowany.</translation>
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
        <translation>w toku</translation>
    </message>
    <message>
        <source>done</source>
        <translation>gotowe</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>błąd</translation>
    </message>
    <message>
        <source>Test of a log-in, %1</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Test logowania, %1</translation>
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
        <translation>Logowanie konta %1</translation>
    </message>
</context>
<context>
    <name>KirvLoginTestView</name>
    <message>
        <source>Copy Report</source>
        <translation>Kopiuj raport</translation>
    </message>
    <message>
        <source>Steps of the log-in</source>
        <translation>Kroki logowania</translation>
    </message>
    <message>
        <source>Copies the steps and the versions of the program, without the password.</source>
        <translation>Kopiuje kroki i wersje programu, bez hasła.</translation>
    </message>
    <message>
        <source>Test Log-In</source>
        <translation>Testuj logowanie</translation>
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
        <translation>Anuluj test</translation>
    </message>
    <message>
        <source>Test Again</source>
        <translation>Testuj ponownie</translation>
    </message>
    <message>
        <source>Logs in once with what is here, and shows each step. Nothing is stored.</source>
        <translation>Loguje się jeden raz z podanymi tu danymi i pokazuje każdy krok. Nic nie jest zapisywane.</translation>
    </message>
</context>
<context>
    <name>KirvMainAccountSelector</name>
    <message>
        <source>%1 (its plug-in is not loaded)</source>
        <extracomment>%1 = name of the main account</extracomment>
        <translation>%1 (wtyczka nie jest załadowana)</translation>
    </message>
</context>
<context>
    <name>KirvMessageBar</name>
    <message>
        <source>Messages</source>
        <translation>Komunikaty</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informacja</translation>
    </message>
    <message>
        <source>Close this message.</source>
        <translation>Zamknij ten komunikat.</translation>
    </message>
    <message>
        <source>Close This Message</source>
        <translation>Zamknij ten komunikat</translation>
    </message>
</context>
<context>
    <name>KirvMoveDialog</name>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
</context>
<context>
    <name>KirvMovingCommands</name>
    <message>
        <source>Passwords of the account &quot;%1&quot; are left out: the keyring is locked.</source>
        <extracomment>%1 = name of an account, as XMPP:anna@example.org</extracomment>
        <translation>Pominięto hasła konta „%1”: baza kluczy jest zablokowana.</translation>
    </message>
    <message>
        <source>A pass phrase is needed.</source>
        <translation>Potrzebna jest fraza szyfrująca.</translation>
    </message>
</context>
<context>
    <name>KirvMovingFile</name>
    <message>
        <source>%1 is not an ordinary file.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>%1 nie jest zwykłym plikiem.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read: %2.</source>
        <extracomment>%1 = path of a file, %2 = the system&apos;s reason</extracomment>
        <translation>Nie można odczytać pliku %1: %2.</translation>
    </message>
    <message>
        <source>%1 is a link to another file. Choose another name.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>%1 to dowiązanie do innego pliku. Wybierz inną nazwę.</translation>
    </message>
    <message>
        <source>The file %1 is larger than %L2 MB, so it is not read.</source>
        <extracomment>%1 = path of a file, %L2 = a number</extracomment>
        <translation>Plik %1 jest większy niż %L2 MB, dlatego nie zostanie odczytany.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <extracomment>%1 = path of a file, %2 = the system&apos;s reason</extracomment>
        <translation>Nie można zapisać pliku %1: %2.</translation>
    </message>
</context>
<context>
    <name>KirvNgircdServer</name>
    <message>
        <source>The files of the server could not be given to it.</source>
        <translation>Nie udało się przekazać serwerowi jego plików.</translation>
    </message>
</context>
<context>
    <name>KirvPageCommands</name>
    <message numerus="yes">
        <source>&amp;Enable %n Accounts</source>
        <translation>
            <numerusform>Włąc&amp;z %n konto</numerusform>
            <numerusform>Włąc&amp;z %n konta</numerusform>
            <numerusform>Włąc&amp;z %n kont</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Disable %n Accounts</source>
        <translation>
            <numerusform>&amp;Wyłącz %n konto</numerusform>
            <numerusform>&amp;Wyłącz %n konta</numerusform>
            <numerusform>&amp;Wyłącz %n kont</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Re&amp;move %n Accounts…</source>
        <translation>
            <numerusform>&amp;Usuń %n konto…</numerusform>
            <numerusform>&amp;Usuń %n konta…</numerusform>
            <numerusform>&amp;Usuń %n kont…</numerusform>
        </translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>&amp;Usuń…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Edytuj…</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Zmień &amp;nazwę</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>&amp;Wyłącz</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>Włąc&amp;z</translation>
    </message>
    <message>
        <source>Make Main &amp;Account</source>
        <translation>Ustaw jako konto &amp;główne</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>&amp;Połącz ponownie</translation>
    </message>
    <message>
        <source>Enter &amp;Password…</source>
        <translation>Wprowadź &amp;hasło…</translation>
    </message>
    <message>
        <source>Pre&amp;sence</source>
        <translation>&amp;Status</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Przesuń w górę</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Przesuń w dół</translation>
    </message>
    <message>
        <source>Disable A&amp;ll…</source>
        <translation>Wyłącz wszys&amp;tkie…</translation>
    </message>
    <message>
        <source>Enable Those &amp;Again</source>
        <translation>Włącz je p&amp;onownie</translation>
    </message>
    <message>
        <source>&amp;Own Order</source>
        <translation>Własna &amp;kolejność</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>Show &amp;Certificate…</source>
        <translation>Pokaż certy&amp;fikat…</translation>
    </message>
    <message>
        <source>&amp;Test Log-In</source>
        <translation>Testuj &amp;logowanie</translation>
    </message>
    <message>
        <source>L&amp;og</source>
        <translation>&amp;Dziennik</translation>
    </message>
    <message numerus="yes">
        <source>E&amp;xport %n Accounts…</source>
        <translation>
            <numerusform>Eksportu&amp;j %n konto…</numerusform>
            <numerusform>Eksportu&amp;j %n konta…</numerusform>
            <numerusform>Eksportu&amp;j %n kont…</numerusform>
        </translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>Eksportu&amp;j…</translation>
    </message>
</context>
<context>
    <name>KirvPassPhrase</name>
    <message numerus="yes">
        <source>The pass phrase needs at least %n characters.</source>
        <translation>
            <numerusform>Fraza szyfrująca musi mieć co najmniej %n znak.</numerusform>
            <numerusform>Fraza szyfrująca musi mieć co najmniej %n znaki.</numerusform>
            <numerusform>Fraza szyfrująca musi mieć co najmniej %n znaków.</numerusform>
        </translation>
    </message>
    <message>
        <source>The pass phrase is too long.</source>
        <translation>Fraza szyfrująca jest za długa.</translation>
    </message>
</context>
<context>
    <name>KirvPassPhraseInput</name>
    <message>
        <source>The pass phrase cannot be read from file descriptor %1.</source>
        <translation>Nie można odczytać frazy szyfrującej z deskryptora pliku %1.</translation>
    </message>
    <message>
        <source>The pass phrase from file descriptor %1 is too long.</source>
        <translation>Fraza szyfrująca z deskryptora pliku %1 jest za długa.</translation>
    </message>
    <message>
        <source>There is no pass phrase to be read from file descriptor %1.</source>
        <translation>Brak frazy szyfrującej do odczytania z deskryptora pliku %1.</translation>
    </message>
    <message>
        <source>The pass phrase cannot be read from the file &quot;%1&quot;.</source>
        <translation>Nie można odczytać frazy szyfrującej z pliku „%1”.</translation>
    </message>
    <message>
        <source>The pass phrase in the file &quot;%1&quot; is too long.</source>
        <translation>Fraza szyfrująca w pliku „%1” jest za długa.</translation>
    </message>
    <message>
        <source>There is no pass phrase in the file &quot;%1&quot;.</source>
        <translation>Brak frazy szyfrującej w pliku „%1”.</translation>
    </message>
    <message>
        <source>A pass phrase is needed, and there is no terminal to enter it on. Use --pass-phrase-file or --pass-phrase-fd.</source>
        <translation>Potrzebna jest fraza szyfrująca, a nie ma terminala, na którym można ją wpisać. Podaj ją za pomocą opcji --pass-phrase-file lub --pass-phrase-fd.</translation>
    </message>
    <message>
        <source>Pass phrase for the file: </source>
        <translation>Fraza szyfrująca pliku: </translation>
    </message>
    <message>
        <source>No pass phrase was entered.</source>
        <translation>Nie wpisano frazy szyfrującej.</translation>
    </message>
    <message>
        <source>Repeat the pass phrase: </source>
        <translation>Powtórz frazę: </translation>
    </message>
    <message>
        <source>The two pass phrases are not the same.</source>
        <translation>Wpisane frazy szyfrujące różnią się od siebie.</translation>
    </message>
</context>
<context>
    <name>KirvPasswordDialog</name>
    <message>
        <source>&amp;Remember the password</source>
        <translation>Za&amp;pamiętaj hasło</translation>
    </message>
    <message>
        <source>Password Needed</source>
        <translation>Wymagane hasło</translation>
    </message>
    <message>
        <source>Enter the password of the account %1 (%2).</source>
        <extracomment>%1 = name of an account, %2 = its protocol</extracomment>
        <translation>Wprowadź hasło konta %1 (%2).</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>Keeps the password, so that it is not asked for again.</source>
        <translation>Zachowuje hasło, aby nie trzeba było go ponownie podawać.</translation>
    </message>
    <message>
        <source>&amp;Log In</source>
        <translation>Za&amp;loguj</translation>
    </message>
    <message>
        <source>The server did not accept the password that was used last.</source>
        <translation>Serwer nie przyjął ostatnio użytego hasła.</translation>
    </message>
    <message>
        <source>The account has a password; the one that you enter takes its place.</source>
        <translation>Konto ma już hasło; zastąpi je hasło, które wprowadzisz.</translation>
    </message>
    <message>
        <source>No password was entered for this account yet.</source>
        <translation>Dla tego konta nie wprowadzono jeszcze hasła.</translation>
    </message>
    <message>
        <source>The password is not remembered, so it is needed when the account logs in.</source>
        <translation>Hasło nie jest zapamiętywane, dlatego jest potrzebne podczas logowania konta.</translation>
    </message>
</context>
<context>
    <name>KirvPidginFile</name>
    <message>
        <source>The account &quot;%1&quot; was left out: the protocol %2 is not supported.</source>
        <extracomment>%1 = login, %2 = name of a protocol</extracomment>
        <translation>Pominięto konto „%1”: protokół %2 nie jest obsługiwany.</translation>
    </message>
    <message>
        <source>An account was left out: it has no login.</source>
        <translation>Pominięto jedno konto: nie ma loginu.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; was left out: it is not in the file.</source>
        <extracomment>%1 = login</extracomment>
        <translation>Pominięto obraz konta „%1”: nie ma go w pliku.</translation>
    </message>
    <message>
        <source>The resource of the account &quot;%1&quot; was left out: it has the name of the computer in it, or characters that mean something else here.</source>
        <extracomment>%1 = login</extracomment>
        <translation>Pominięto zasób konta „%1”: zawiera nazwę komputera lub znaki, które tutaj znaczą coś innego.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; now requires encryption: what the file says of it is not known.</source>
        <translation>Konto „%1” wymaga teraz szyfrowania: ustawienie szyfrowania podane w pliku nie jest znane.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; does not send its password without encryption any more.</source>
        <translation>Konto „%1” nie wysyła już hasła bez szyfrowania.</translation>
    </message>
    <message>
        <source>The server of the account &quot;%1&quot; was left out: it is not the name or address of a server.</source>
        <translation>Pominięto serwer konta „%1”: nie jest to nazwa ani adres serwera.</translation>
    </message>
    <message>
        <source>The port of the account &quot;%1&quot; was left out: it is not a number from 1 to 65535.</source>
        <translation>Pominięto port konta „%1”: nie jest to liczba od 1 do 65535.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; has no server. Enter one before it is used.</source>
        <translation>Konto „%1” nie ma serwera. Wprowadź serwer, zanim zaczniesz używać tego konta.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; uses UTF-8 instead of the encoding %2, which is not supported.</source>
        <extracomment>%1 = login, %2 = name of a character encoding</extracomment>
        <translation>Konto „%1” używa UTF-8 zamiast kodowania %2, które nie jest obsługiwane.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; now requires encryption: otherwise its password would be sent without it.</source>
        <translation>Konto „%1” wymaga teraz szyfrowania: w przeciwnym razie jego hasło byłoby wysyłane bez szyfrowania.</translation>
    </message>
    <message>
        <source>Its kind is not supported.</source>
        <translation>Jego rodzaj nie jest obsługiwany.</translation>
    </message>
    <message>
        <source>The proxy of the account &quot;%1&quot; was left out. %2 The account is disabled, so that it does not connect without the proxy.</source>
        <extracomment>%1 = login, %2 = a sentence</extracomment>
        <translation>Pominięto serwer proxy konta „%1”. %2 Konto jest wyłączone, aby nie łączyło się bez serwera proxy.</translation>
    </message>
    <message>
        <source>Settings of the account &quot;%1&quot; were left out, as there are no such settings here: %2.</source>
        <extracomment>%1 = login, %2 = names, separated by commas</extracomment>
        <translation>Pominięto ustawienia konta „%1”, ponieważ nie mają tu odpowiedników: %2.</translation>
    </message>
    <message>
        <source>The file is no text.</source>
        <translation>Plik nie jest plikiem tekstowym.</translation>
    </message>
    <message>
        <source>A text in the file is too long.</source>
        <translation>Jeden z tekstów w pliku jest za długi.</translation>
    </message>
    <message>
        <source>The file is damaged or no XML (line %1: %2).</source>
        <extracomment>%1 = number of a line, %2 = what is wrong there</extracomment>
        <translation>Plik jest uszkodzony lub nie jest plikiem XML (wiersz %1: %2).</translation>
    </message>
    <message>
        <source>The file is not encoded as UTF-8.</source>
        <translation>Plik nie jest zakodowany w UTF-8.</translation>
    </message>
    <message>
        <source>The file declares a document type or uses entities, which no file of Pidgin does.</source>
        <translation>Plik deklaruje typ dokumentu lub używa encji, czego nie robi żaden plik programu Pidgin.</translation>
    </message>
    <message>
        <source>The elements of the file are nested too deeply, or have too many attributes.</source>
        <translation>Elementy pliku są zagnieżdżone zbyt głęboko lub mają za dużo atrybutów.</translation>
    </message>
    <message>
        <source>There are elements in the file where a text is expected (line %1).</source>
        <translation>W miejscu, w którym powinien być tekst, plik zawiera elementy (wiersz %1).</translation>
    </message>
    <message>
        <source>Something follows the accounts in the file.</source>
        <translation>Po kontach w pliku jest coś jeszcze.</translation>
    </message>
    <message>
        <source>An account in the file has too many settings.</source>
        <translation>Jedno z kont w pliku ma za dużo ustawień.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Plik jest za duży.</translation>
    </message>
    <message>
        <source>The file does not hold accounts of Pidgin.</source>
        <translation>Plik nie zawiera kont programu Pidgin.</translation>
    </message>
    <message>
        <source>The file is of another version of Pidgin, which is not known.</source>
        <translation>Plik pochodzi z innej, nieznanej wersji programu Pidgin.</translation>
    </message>
    <message numerus="yes">
        <source>The file has more than %n accounts.</source>
        <translation>
            <numerusform>Plik zawiera więcej niż %n konto.</numerusform>
            <numerusform>Plik zawiera więcej niż %n konta.</numerusform>
            <numerusform>Plik zawiera więcej niż %n kont.</numerusform>
        </translation>
    </message>
    <message>
        <source>If Pidgin uses a proxy for all accounts, it is not in this file. Set it for the accounts before they log in.</source>
        <translation>Jeśli Pidgin używa serwera proxy dla wszystkich kont, nie ma go w tym pliku. Ustaw go dla kont, zanim się zalogują.</translation>
    </message>
</context>
<context>
    <name>KirvPluginCall</name>
    <message>
        <source>an exception of an unknown kind</source>
        <translation>wyjątek nieznanego rodzaju</translation>
    </message>
    <message>
        <source>The plug-in failed: %1</source>
        <translation>Błąd wtyczki: %1</translation>
    </message>
</context>
<context>
    <name>KirvPluginFile</name>
    <message>
        <source>The file is not a plug-in library.</source>
        <translation>Plik nie jest biblioteką wtyczki.</translation>
    </message>
    <message>
        <source>The plug-in is not one for protocols: its interface is &quot;%1&quot;.</source>
        <translation>Wtyczka nie jest wtyczką protokołu: jej interfejs to „%1”.</translation>
    </message>
    <message>
        <source>The plug-in was built for version %1 of the plug-in interface; this program has version %2.</source>
        <translation>Wtyczka została zbudowana dla wersji %1 interfejsu wtyczek; ten program ma wersję %2.</translation>
    </message>
    <message>
        <source>The plug-in did not create its protocol and gave no reason.</source>
        <translation>Wtyczka nie utworzyła swojego protokołu i nie podała przyczyny.</translation>
    </message>
    <message>
        <source>The library cannot be loaded: %1</source>
        <translation>Nie można załadować biblioteki: %1</translation>
    </message>
    <message>
        <source>The plug-in does not have the interface that it states.</source>
        <translation>Wtyczka nie ma interfejsu, który deklaruje.</translation>
    </message>
    <message>
        <source>The protocol has no name.</source>
        <translation>Protokół nie ma nazwy.</translation>
    </message>
    <message>
        <source>The name of the protocol has more than %1 characters.</source>
        <translation>Nazwa protokołu ma więcej niż %1 znaków.</translation>
    </message>
    <message>
        <source>The protocol &quot;%1&quot; offers no presence.</source>
        <translation>Protokół „%1” nie oferuje żadnego statusu.</translation>
    </message>
</context>
<context>
    <name>KirvPluginLoader</name>
    <message>
        <source>A protocol with the name &quot;%1&quot; is loaded already.</source>
        <translation>Protokół o nazwie „%1” jest już załadowany.</translation>
    </message>
</context>
<context>
    <name>KirvPluginQueue</name>
    <message>
        <source>The plug-in &quot;%1&quot; was left out, because the program ended when it was loaded the last time. It can be loaded on the page of the plug-ins.</source>
        <extracomment>%1 = name of a plug-in</extracomment>
        <translation>Wtyczka „%1” została pominięta, ponieważ przy ostatnim jej ładowaniu program zakończył działanie. Można ją załadować na stronie wtyczek.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it crashed when it was tested.</source>
        <translation>Wtyczka została pominięta, ponieważ podczas testu uległa awarii.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it ended the process in which it was tested.</source>
        <translation>Wtyczka została pominięta, ponieważ zakończyła proces, w którym była testowana.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it was not ready within %1 s when it was tested.</source>
        <translation>Wtyczka została pominięta, ponieważ podczas testu nie była gotowa w ciągu %1 s.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because the program ended when it was loaded the last time.</source>
        <translation>Wtyczka została pominięta, ponieważ przy ostatnim jej ładowaniu program zakończył działanie.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Nie można odczytać pliku.</translation>
    </message>
</context>
<context>
    <name>KirvPluginTrust</name>
    <message>
        <source>The file cannot be examined.</source>
        <translation>Nie można zbadać pliku.</translation>
    </message>
    <message>
        <source>The plug-in is not trusted: %1 belongs to another user.</source>
        <extracomment>%1 = path of a file or folder</extracomment>
        <translation>Wtyczka nie jest zaufana: %1 należy do innego użytkownika.</translation>
    </message>
    <message>
        <source>The plug-in is not trusted: others than you may write to %1.</source>
        <extracomment>%1 = path of a file or folder</extracomment>
        <translation>Wtyczka nie jest zaufana: %1 mogą zmieniać także inni użytkownicy.</translation>
    </message>
</context>
<context>
    <name>KirvPluginsPage</name>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Załaduj</translation>
    </message>
    <message>
        <source>&amp;Unload</source>
        <translation>&amp;Wyładuj</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Wtyczki</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Wtyczka</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>About the plug-in</source>
        <translation>Informacje o wtyczce</translation>
    </message>
    <message>
        <source>Loads the plug-in; its accounts come back as they were.</source>
        <translation>Ładuje wtyczkę; jej konta wracają w takim stanie, w jakim były.</translation>
    </message>
    <message>
        <source>Logs the accounts of the plug-in out. They stay in your profile.</source>
        <translation>Wylogowuje konta wtyczki. Pozostają one w profilu.</translation>
    </message>
    <message>
        <source>Plug-ins are looked for in the folder %1.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation>Wtyczki są wyszukiwane w folderze %1.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Oczekiwanie</translation>
    </message>
    <message>
        <source>Being tested</source>
        <translation>Testowanie</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Ładowanie</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>Załadowana</translation>
    </message>
    <message>
        <source>Not loaded</source>
        <translation>Niezaładowana</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>There are no plug-ins.</source>
        <translation>Nie ma wtyczek.</translation>
    </message>
    <message>
        <source>&amp;Report…</source>
        <translation>&amp;Raport…</translation>
    </message>
    <message>
        <source>Puts versions, plug-ins and the states of the accounts together for somebody who helps.</source>
        <translation>Zestawia wersje, wtyczki i stany kont dla osoby, która pomaga.</translation>
    </message>
    <message>
        <source>When the plug-in %1 is unloaded, its account %2 goes off line.</source>
        <extracomment>%1 = name of a plug-in, %2 = name of an account</extracomment>
        <translation>Po wyładowaniu wtyczki %1 jej konto %2 zostanie rozłączone.</translation>
    </message>
    <message numerus="yes">
        <source>When the plug-in %1 is unloaded, its %n connected accounts go off line.</source>
        <extracomment>%1 = name of a plug-in</extracomment>
        <translation>
            <numerusform>Po wyładowaniu wtyczki %1 jej %n połączone konto zostanie rozłączone.</numerusform>
            <numerusform>Po wyładowaniu wtyczki %1 jej %n połączone konta zostaną rozłączone.</numerusform>
            <numerusform>Po wyładowaniu wtyczki %1 jej %n połączonych kont zostanie rozłączonych.</numerusform>
        </translation>
    </message>
    <message>
        <source>Unload Plug-in</source>
        <translation>Wyładuj wtyczkę</translation>
    </message>
    <message>
        <source>The accounts stay in your profile and come back when the plug-in is loaded again.</source>
        <translation>Konta pozostaną w profilu i wrócą, gdy wtyczka zostanie ponownie załadowana.</translation>
    </message>
</context>
<context>
    <name>KirvProfileCheck</name>
    <message>
        <source>The profile folder &quot;%1&quot; could not be made.</source>
        <translation>Nie udało się utworzyć folderu profilu „%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link. The program follows no link inside a profile: replace it by what it leads to.</source>
        <translation>„%1” jest dowiązaniem. Wewnątrz profilu program nie podąża za dowiązaniami: zastąp je tym, na co wskazuje.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file. Move it away to use the profile.</source>
        <translation>„%1” nie jest zwykłym plikiem. Przenieś go w inne miejsce, aby używać profilu.</translation>
    </message>
    <message>
        <source>Its database is missing.</source>
        <translation>Brakuje jego bazy danych.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not a profile: it holds other files. Nothing in it was changed: choose an empty folder.</source>
        <translation>Folder „%1” nie jest profilem: zawiera inne pliki. Nic w nim nie zmieniono: wybierz pusty folder.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; was written by a newer version of the program. Use that version to open it; nothing in it was changed.</source>
        <translation>Profil w „%1” zapisała nowsza wersja programu. Otwórz go za pomocą tej wersji; nic w nim nie zmieniono.</translation>
    </message>
    <message>
        <source>The end of its database is missing.</source>
        <translation>Brakuje końca jego bazy danych.</translation>
    </message>
    <message>
        <source>Tables or columns of its database are missing.</source>
        <translation>Brakuje tabel lub kolumn jego bazy danych.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is in use by another running instance of the program. Close that one first.</source>
        <translation>Profilu w „%1” używa inny działający egzemplarz programu. Najpierw go zamknij.</translation>
    </message>
    <message>
        <source>The profile folder &quot;%1&quot; cannot be written. Check its owner and permissions, and whether the disk is full.</source>
        <translation>Nie można zapisywać w folderze profilu „%1”. Sprawdź jego właściciela i uprawnienia oraz czy dysk nie jest pełny.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is damaged. %2 Nothing in it was changed.</source>
        <extracomment>%1 = path of a folder, %2 = a sentence about what is wrong with it</extracomment>
        <translation>Profil w „%1” jest uszkodzony. %2 Nic w nim nie zmieniono.</translation>
    </message>
    <message>
        <source>The file of its database does not hold one any more.</source>
        <translation>Plik jego bazy danych nie zawiera już bazy danych.</translation>
    </message>
    <message>
        <source>Parts of its database cannot be read, or contradict each other.</source>
        <translation>Części jego bazy danych nie można odczytać lub są ze sobą sprzeczne.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; belongs to another program. Nothing in it was changed.</source>
        <translation>Plik „%1” należy do innego programu. Nic w nim nie zmieniono.</translation>
    </message>
</context>
<context>
    <name>KirvProfileCommand</name>
    <message>
        <source>There is no profile in &quot;%1&quot; yet.</source>
        <translation>W „%1” nie ma jeszcze profilu.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is not damaged.</source>
        <translation>Profil w „%1” nie jest uszkodzony.</translation>
    </message>
    <message>
        <source>The profile is not damaged, so nothing was restored. Name a copy to go back to it.</source>
        <translation>Profil nie jest uszkodzony, dlatego nic nie przywrócono. Podaj kopię, aby do niej wrócić.</translation>
    </message>
    <message>
        <source>There is no copy of the profile that could be restored.</source>
        <translation>Nie ma kopii profilu, którą można by przywrócić.</translation>
    </message>
    <message>
        <source>There is no copy &quot;%1&quot; that could be restored.</source>
        <translation>Nie ma kopii „%1”, którą można by przywrócić.</translation>
    </message>
    <message>
        <source>The profile is not damaged, so there is nothing to recover.</source>
        <translation>Profil nie jest uszkodzony, dlatego nie ma czego odzyskiwać.</translation>
    </message>
    <message>
        <source>The option --restore restores the newest copy or the one that is named, and --recover reads what is still readable of the damaged database. To start fresh, move the folder away.</source>
        <translation>Opcja --restore przywraca najnowszą lub podaną kopię, a opcja --recover odczytuje z uszkodzonej bazy danych to, co jeszcze da się odczytać. Aby zacząć od nowa, przenieś folder w inne miejsce.</translation>
    </message>
    <message>
        <source>Copies of the profile, without passwords:</source>
        <translation>Kopie profilu, bez haseł:</translation>
    </message>
    <message>
        <source>  %1  %2  Accounts: %3</source>
        <extracomment>%1 = name of a file, %2 = date and time, %3 = number of accounts</extracomment>
        <translation>  %1  %2  Konta: %3</translation>
    </message>
</context>
<context>
    <name>KirvProfileCopies</name>
    <message>
        <source>No copy of the profile in &quot;%1&quot; could be kept. Check the permissions of the folder &quot;copies&quot; in it, and whether the disk is full.</source>
        <translation>Nie udało się zachować kopii profilu w „%1”. Sprawdź uprawnienia znajdującego się w nim folderu „copies” oraz czy dysk nie jest pełny.</translation>
    </message>
</context>
<context>
    <name>KirvProfileOpening</name>
    <message>
        <source>The profile folder &quot;%1&quot; could not be made.</source>
        <translation>Nie udało się utworzyć folderu profilu „%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be made. Check whether the disk is full.</source>
        <translation>Nie udało się utworzyć „%1”. Sprawdź, czy dysk nie jest pełny.</translation>
    </message>
</context>
<context>
    <name>KirvProfileRescue</name>
    <message>
        <source>There is no profile in &quot;%1&quot;.</source>
        <translation>W „%1” nie ma profilu.</translation>
    </message>
    <message>
        <source>The copy &quot;%1&quot; is damaged, too.</source>
        <translation>Kopia „%1” też jest uszkodzona.</translation>
    </message>
    <message>
        <source>Nothing in the damaged profile in &quot;%1&quot; can be read any more.</source>
        <translation>Z uszkodzonego profilu w „%1” nie da się już nic odczytać.</translation>
    </message>
</context>
<context>
    <name>KirvProfileSaver</name>
    <message>
        <source>&amp;Save to Another Folder…</source>
        <translation>Zapisz w &amp;innym folderze…</translation>
    </message>
    <message>
        <source>Save to an Empty Folder</source>
        <translation>Zapisz w pustym folderze</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Zapisz</translation>
    </message>
    <message>
        <source>Everything that was stored is in &quot;%1&quot; again. Continue to go on with it; the accounts log in again then.</source>
        <translation>Wszystko, co było zapisane, jest znów w „%1”. Wybierz „Kontynuuj”, aby dalej z tego korzystać; konta zalogują się wtedy ponownie.</translation>
    </message>
    <message>
        <source>Everything that was stored is in &quot;%1&quot; now. Continue to go on with it; the accounts log in again then. From the next start on, start the program with the option --profile &quot;%1&quot;.</source>
        <translation>Wszystko, co było zapisane, jest teraz w „%1”. Wybierz „Kontynuuj”, aby dalej z tego korzystać; konta zalogują się wtedy ponownie. Od następnego razu uruchamiaj program z opcją --profile &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>Kon&amp;tynuuj</translation>
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
        <translation>%1 (niesprawdzony; %2, %3)</translation>
    </message>
    <message>
        <source>Providers</source>
        <translation>Dostawcy</translation>
    </message>
    <message>
        <source>The Down key shows known providers.</source>
        <translation>Klawisz strzałki w dół pokazuje znanych dostawców.</translation>
    </message>
    <message>
        <source>The list of providers %1 cannot be read.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Nie można odczytać listy dostawców %1.</translation>
    </message>
    <message>
        <source>The list of providers %1 is not used: it is too large.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Lista dostawców %1 nie jest używana: jest za duża.</translation>
    </message>
    <message>
        <source>About the list of providers %1: %2</source>
        <extracomment>%1 = path of a file, %2 = a sentence</extracomment>
        <translation>Lista dostawców %1: %2</translation>
    </message>
    <message>
        <source>It is not used, because it has not the format of such a list.</source>
        <translation>Nie jest używana, ponieważ nie ma formatu takiej listy.</translation>
    </message>
    <message>
        <source>One entry is left out, because it is not complete.</source>
        <translation>Pominięto jeden wpis, ponieważ jest niepełny.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries are left out, because they are not complete.</source>
        <translation>
            <numerusform>Pominięto %n wpis, ponieważ jest niepełny.</numerusform>
            <numerusform>Pominięto %n wpisy, ponieważ są niepełne.</numerusform>
            <numerusform>Pominięto %n wpisów, ponieważ są niepełne.</numerusform>
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
        <translation>Brak</translation>
    </message>
    <message>
        <source>That of the system</source>
        <translation>Systemowy</translation>
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
        <translation>Przez co przechodzą wszystkie połączenia konta. Gdy ustawiono serwer proxy, konto nigdy nie łączy się z jego pominięciem, a nazwę serwera wyszukuje serwer proxy.</translation>
    </message>
    <message>
        <source>Proxy host</source>
        <translation>Host proxy</translation>
    </message>
    <message>
        <source>The name or address of a SOCKS5 or HTTP proxy.</source>
        <translation>Nazwa lub adres serwera proxy SOCKS5 lub HTTP.</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Port proxy</translation>
    </message>
    <message>
        <source>Ordinarily 1080 with SOCKS5, and 3128 or 8080 with HTTP.</source>
        <translation>Zwykle 1080 dla SOCKS5 oraz 3128 lub 8080 dla HTTP.</translation>
    </message>
    <message>
        <source>Proxy user</source>
        <translation>Użytkownik proxy</translation>
    </message>
    <message>
        <source>Empty: the proxy needs no log-in.</source>
        <translation>Puste: serwer proxy nie wymaga logowania.</translation>
    </message>
    <message>
        <source>Proxy password</source>
        <translation>Hasło proxy</translation>
    </message>
    <message>
        <source>The proxy receives it without encryption. Do not use the password of the account.</source>
        <translation>Serwer proxy otrzymuje je bez szyfrowania. Nie używaj hasła konta.</translation>
    </message>
    <message>
        <source>The kind of the proxy is not known.</source>
        <translation>Rodzaj serwera proxy nie jest znany.</translation>
    </message>
    <message>
        <source>The proxy has no host.</source>
        <translation>Nie podano hosta serwera proxy.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a proxy.</source>
        <translation>„%1” nie jest nazwą serwera proxy.</translation>
    </message>
    <message>
        <source>The port of the proxy must be a number from 1 to 65535.</source>
        <translation>Port serwera proxy musi być liczbą od 1 do 65535.</translation>
    </message>
    <message>
        <source>The user or the password of the proxy cannot be sent: it is too long or has characters that do not belong to a line.</source>
        <translation>Nie można wysłać nazwy użytkownika lub hasła serwera proxy: są za długie lub zawierają znaki, których nie może być w wierszu.</translation>
    </message>
    <message>
        <source>The user of an HTTP proxy cannot have a colon.</source>
        <translation>Nazwa użytkownika serwera proxy HTTP nie może zawierać dwukropka.</translation>
    </message>
    <message>
        <source>There is a password of the proxy, but no user.</source>
        <translation>Podano hasło serwera proxy, ale nie podano użytkownika.</translation>
    </message>
    <message>
        <source>it does not find the server, or does not allow a connection to it</source>
        <translation>nie znajduje serwera lub nie zezwala na połączenie z nim</translation>
    </message>
</context>
<context>
    <name>KirvRegistrationChooser</name>
    <message>
        <source>Register Account</source>
        <translation>Zarejestruj konto</translation>
    </message>
    <message>
        <source>For which &amp;protocol do you want to register a new account?</source>
        <translation>W którym &amp;protokole chcesz zarejestrować nowe konto?</translation>
    </message>
    <message>
        <source>Protocols</source>
        <translation>Protokoły</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>Kon&amp;tynuuj</translation>
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
        <translation>Brak biblioteki szyfrującej</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <extracomment>%1 = &quot;Debian GNU/Linux 12&quot;, %2 = &quot;linux 6.1&quot;, %3 = a processor</extracomment>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>%1: no versions stated</source>
        <extracomment>%1 = name of a protocol, %2 = &quot;QXmpp 1.4.0&quot;, or several such</extracomment>
        <translation>%1: nie podano wersji</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>(name)</source>
        <translation>(nazwa)</translation>
    </message>
    <message>
        <source>%1: %2, file %3</source>
        <extracomment>%1 = name of a plug-in, %2 = its state, %3 = name of a file</extracomment>
        <translation>%1: %2, plik %3</translation>
    </message>
    <message>
        <source>Account %1, %2</source>
        <extracomment>%1 = a number, %2 = name of a protocol</extracomment>
        <translation>Konto %1, %2</translation>
    </message>
    <message>
        <source>Login: %1</source>
        <extracomment>%1 = a login</extracomment>
        <translation>Login: %1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <extracomment>%1 = &quot;Connected&quot; or another state</extracomment>
        <translation>Stan: %1</translation>
    </message>
    <message>
        <source>Report of %1 (times in UTC)</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Raport z %1 (czas UTC)</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Wtyczki</translation>
    </message>
    <message numerus="yes">
        <source>%n more accounts are left out.</source>
        <translation>
            <numerusform>Pominięto jeszcze %n konto.</numerusform>
            <numerusform>Pominięto jeszcze %n konta.</numerusform>
            <numerusform>Pominięto jeszcze %n kont.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvReportWindow</name>
    <message>
        <source>&amp;Include logins and other names</source>
        <translation>&amp;Uwzględnij loginy i inne nazwy</translation>
    </message>
    <message>
        <source>Report for Somebody Who Helps</source>
        <translation>Raport dla osoby, która pomaga</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Raport</translation>
    </message>
    <message>
        <source>Passwords are left out. Read the report before you give it to anybody.</source>
        <translation>Hasła zostały pominięte. Przeczytaj raport, zanim go komuś przekażesz.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Zapisz…</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Zapisz raport</translation>
    </message>
    <message>
        <source>report</source>
        <translation>raport</translation>
    </message>
    <message>
        <source>The report was saved to %1.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Raport zapisano w pliku %1.</translation>
    </message>
    <message>
        <source>The report could not be saved to %1: %2.</source>
        <translation>Nie udało się zapisać raportu w pliku %1: %2.</translation>
    </message>
</context>
<context>
    <name>KirvRescueWindow</name>
    <message>
        <source>Damaged Profile</source>
        <translation>Uszkodzony profil</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Choose what to do. The damaged database is kept in any case, under a name with the date.</source>
        <translation>Wybierz, co zrobić. Uszkodzona baza danych zostanie w każdym przypadku zachowana pod nazwą z datą.</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Wynik</translation>
    </message>
    <message>
        <source>There is no copy of the profile that could be restored.</source>
        <translation>Nie ma kopii profilu, którą można by przywrócić.</translation>
    </message>
    <message>
        <source>Co&amp;pies of the profile:</source>
        <translation>&amp;Kopie profilu:</translation>
    </message>
    <message>
        <source>Copies of the profile</source>
        <translation>Kopie profilu</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Konta</translation>
    </message>
    <message>
        <source>&amp;Restore the Selected Copy</source>
        <translation>&amp;Przywróć wybraną kopię</translation>
    </message>
    <message>
        <source>Accounts and settings are then as they were at that time. Passwords and other secret settings are in no copy and have to be entered again.</source>
        <translation>Konta i ustawienia będą takie, jakie były w tamtym czasie. Kopie nie zawierają haseł ani innych poufnych ustawień; trzeba wprowadzić je ponownie.</translation>
    </message>
    <message>
        <source>Recover &amp;What Is Readable</source>
        <translation>&amp;Odzyskaj to, co da się odczytać</translation>
    </message>
    <message>
        <source>The damaged database is read row by row, with the passwords, and what was found is shown.</source>
        <translation>Uszkodzona baza danych jest odczytywana wiersz po wierszu, razem z hasłami, a potem program pokazuje, co znaleziono.</translation>
    </message>
    <message>
        <source>Start &amp;Fresh</source>
        <translation>&amp;Zacznij od nowa</translation>
    </message>
    <message>
        <source>The profile then has no accounts.</source>
        <translation>Profil nie będzie wtedy zawierał żadnych kont.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>Kon&amp;tynuuj</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Zakoń&amp;cz</translation>
    </message>
    <message>
        <source>The profile can be used again.</source>
        <translation>Profilu można znów używać.</translation>
    </message>
</context>
<context>
    <name>KirvRevealButton</name>
    <message>
        <source>Hide the text</source>
        <translation>Ukryj tekst</translation>
    </message>
    <message>
        <source>Show the text</source>
        <translation>Pokaż tekst</translation>
    </message>
</context>
<context>
    <name>KirvSecretTexts</name>
    <message>
        <source>in a file only you can read</source>
        <translation>w pliku, który możesz odczytać tylko Ty</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>where a password is kept; %1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>w %1</translation>
    </message>
    <message>
        <source>in %1 (locked: you will be asked to unlock it)</source>
        <extracomment>where a password is kept; %1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>w %1 (zablokowane: zobaczysz prośbę o odblokowanie)</translation>
    </message>
    <message>
        <source>Your keyring does not respond: it would be kept there when it responds again</source>
        <translation>Baza kluczy nie odpowiada: hasło zostałoby w niej zapisane, gdy znów odpowie</translation>
    </message>
    <message>
        <source>There is no keyring here: it would be kept in a file only you can read</source>
        <translation>Nie ma tu bazy kluczy: hasło zostałoby zapisane w pliku, który możesz odczytać tylko Ty</translation>
    </message>
    <message>
        <source>Reading the password…</source>
        <translation>Odczytywanie hasła…</translation>
    </message>
    <message>
        <source>The keyring is locked</source>
        <translation>Baza kluczy jest zablokowana</translation>
    </message>
    <message>
        <source>The keyring does not respond</source>
        <translation>Baza kluczy nie odpowiada</translation>
    </message>
    <message>
        <source>The keyring is not there</source>
        <translation>Brak bazy kluczy</translation>
    </message>
    <message>
        <source>The keyring cannot be read</source>
        <translation>Nie można odczytać bazy kluczy</translation>
    </message>
    <message>
        <source>Or enter the password: it is used until the program ends.</source>
        <translation>Możesz też wprowadzić hasło: będzie używane do zakończenia programu.</translation>
    </message>
    <message>
        <source>The password is being read from %1.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;, here and below</extracomment>
        <translation>Trwa odczytywanie hasła zapisanego w %1.</translation>
    </message>
    <message>
        <source>The password is in %1, which is locked. Unlock it.</source>
        <translation>Hasło jest w %1, ale dostęp jest zablokowany. Odblokuj dostęp.</translation>
    </message>
    <message>
        <source>The password is in %1, which was not unlocked. Reconnect asks again.</source>
        <translation>Hasło jest w %1, ale dostęp nie został odblokowany. Polecenie „Połącz ponownie” pyta jeszcze raz.</translation>
    </message>
    <message>
        <source>The password is in %1, which does not respond. The account connects when it does.</source>
        <translation>Hasło jest w %1, ale nie ma stamtąd odpowiedzi. Konto połączy się, gdy odpowiedź nadejdzie.</translation>
    </message>
    <message>
        <source>The password is in the keyring, which is not there. The account connects when it is started.</source>
        <translation>Hasło jest w bazie kluczy, której teraz nie ma. Konto połączy się, gdy zostanie ona uruchomiona.</translation>
    </message>
    <message>
        <source>The password is in %1, which cannot be read. Reconnect tries again.</source>
        <translation>Hasło jest w %1, ale nie można go odczytać. Polecenie „Połącz ponownie” próbuje jeszcze raz.</translation>
    </message>
    <message>
        <source>in your keyring</source>
        <extracomment>where a password is kept</extracomment>
        <translation>w bazie kluczy</translation>
    </message>
    <message>
        <source>in your keyring (locked: you will be asked to unlock it)</source>
        <extracomment>where a password is kept</extracomment>
        <translation>w bazie kluczy (zablokowana: zobaczysz prośbę o odblokowanie)</translation>
    </message>
    <message>
        <source>Passwords that are remembered are kept in a file only you can read.</source>
        <translation>Zapamiętane hasła są przechowywane w pliku, który możesz odczytać tylko Ty.</translation>
    </message>
    <message>
        <source>The program is finding out whether there is a keyring.</source>
        <translation>Program sprawdza, czy jest tu baza kluczy.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It is unlocked.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;, here and below</extracomment>
        <translation>Hasła przechowuje %1. Dostęp jest odblokowany.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It is unlocked.</source>
        <translation>Hasła przechowuje baza kluczy. Jest odblokowana.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It is locked.</source>
        <translation>Hasła przechowuje %1. Dostęp jest zablokowany.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It is locked.</source>
        <translation>Hasła przechowuje baza kluczy. Jest zablokowana.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It does not respond.</source>
        <translation>Hasła przechowuje %1. Nie ma stamtąd odpowiedzi.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It does not respond.</source>
        <translation>Hasła przechowuje baza kluczy. Nie odpowiada ona.</translation>
    </message>
    <message>
        <source>There is no keyring.</source>
        <translation>Nie ma bazy kluczy.</translation>
    </message>
    <message>
        <source>The password is being read from your keyring.</source>
        <translation>Trwa odczytywanie hasła z bazy kluczy.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which is locked. Unlock it.</source>
        <translation>Hasło jest w bazie kluczy, która jest zablokowana. Odblokuj ją.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which was not unlocked. Reconnect asks again.</source>
        <translation>Hasło jest w bazie kluczy, która nie została odblokowana. Polecenie „Połącz ponownie” pyta jeszcze raz.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which does not respond. The account connects when it does.</source>
        <translation>Hasło jest w bazie kluczy, która nie odpowiada. Konto połączy się, gdy odpowiedź nadejdzie.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which cannot be read. Reconnect tries again.</source>
        <translation>Hasło jest w bazie kluczy, której nie można odczytać. Polecenie „Połącz ponownie” próbuje jeszcze raz.</translation>
    </message>
    <message>
        <source>The password is being read. It stays as it is unless you enter another one.</source>
        <translation>Trwa odczytywanie hasła. Pozostanie ono bez zmian, chyba że wprowadzisz inne.</translation>
    </message>
    <message>
        <source>The keyring is locked. The password stays as it is unless you enter another one.</source>
        <translation>Baza kluczy jest zablokowana. Hasło pozostanie bez zmian, chyba że wprowadzisz inne.</translation>
    </message>
    <message>
        <source>The keyring does not respond. The password stays as it is unless you enter another one.</source>
        <translation>Baza kluczy nie odpowiada. Hasło pozostanie bez zmian, chyba że wprowadzisz inne.</translation>
    </message>
    <message>
        <source>The keyring is not there. The password stays as it is unless you enter another one.</source>
        <translation>Brak bazy kluczy. Hasło pozostanie bez zmian, chyba że wprowadzisz inne.</translation>
    </message>
    <message>
        <source>The keyring cannot be read. The password stays as it is unless you enter another one.</source>
        <translation>Nie można odczytać bazy kluczy. Hasło pozostanie bez zmian, chyba że wprowadzisz inne.</translation>
    </message>
    <message>
        <source>The password is not in the keyring any more.</source>
        <translation>Hasła nie ma już w bazie kluczy.</translation>
    </message>
    <message>
        <source>Or edit the account and enter its passwords again.</source>
        <translation>Albo edytuj konto i wpisz ponownie jego hasła.</translation>
    </message>
    <message>
        <source>Or edit the account and enter it again.</source>
        <translation>Albo edytuj konto i wpisz je ponownie.</translation>
    </message>
    <message>
        <source>Some passwords are still in a file only you can read. They are moved when the keyring is unlocked.</source>
        <translation>Niektóre hasła są jeszcze w pliku, który tylko Ty możesz odczytać. Zostaną przeniesione, gdy baza kluczy zostanie odblokowana.</translation>
    </message>
    <message>
        <source>There is no keyring here: it is kept in a file only you can read.</source>
        <extracomment>it = a password that was just stored</extracomment>
        <translation>Nie ma tu bazy kluczy: hasło jest zapisane w pliku, który możesz odczytać tylko Ty.</translation>
    </message>
</context>
<context>
    <name>KirvServerAssistant</name>
    <message>
        <source>Warning</source>
        <translation>Ostrzeżenie</translation>
    </message>
    <message>
        <source>Waiting for the server</source>
        <translation>Oczekiwanie na serwer</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Instrukcje</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfiguracja</translation>
    </message>
    <message>
        <source>Con&amp;figuration:</source>
        <translation>Kon&amp;figuracja:</translation>
    </message>
    <message>
        <source>&amp;Remember the password</source>
        <translation>Za&amp;pamiętaj hasło</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Komunikat</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Wstecz</translation>
    </message>
    <message>
        <source>Reading the picture for &quot;%1&quot;…</source>
        <extracomment>%1 = a caption</extracomment>
        <translation>Odczytywanie obrazu dla „%1”…</translation>
    </message>
    <message>
        <source>There is a picture for &quot;%1&quot;, which cannot be shown: %2</source>
        <extracomment>%1 = a caption, %2 = an address</extracomment>
        <translation>Obrazu dla „%1” nie można pokazać: %2</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>Za&amp;mknij</translation>
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
        <translation>Nie jest wystawiony dla %1.</translation>
    </message>
    <message>
        <source>It is for %1, and not for %2.</source>
        <extracomment>%1 and %2 = names of servers</extracomment>
        <translation>Jest wystawiony dla %1, a nie dla %2.</translation>
    </message>
    <message>
        <source>It is self-signed: no authority has issued it.</source>
        <translation>Ma podpis własny: nie wystawił go żaden urząd certyfikacji.</translation>
    </message>
    <message>
        <source>It is not from an authority that this computer trusts.</source>
        <translation>Nie pochodzi od urzędu certyfikacji, któremu ufa ten komputer.</translation>
    </message>
    <message>
        <source>It has expired: it was valid until %1.</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Stracił ważność: był ważny do %1.</translation>
    </message>
    <message>
        <source>A certificate of its issuer has expired.</source>
        <translation>Certyfikat jego wystawcy stracił ważność.</translation>
    </message>
    <message>
        <source>It is not valid before %1.</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Jest ważny dopiero od %1.</translation>
    </message>
    <message>
        <source>A certificate of its issuer is not valid yet.</source>
        <translation>Certyfikat jego wystawcy nie jest jeszcze ważny.</translation>
    </message>
    <message>
        <source>It was withdrawn.</source>
        <translation>Został unieważniony.</translation>
    </message>
    <message>
        <source>For</source>
        <extracomment>the servers that a certificate is for</extracomment>
        <translation>Dla</translation>
    </message>
    <message>
        <source>Owner</source>
        <extracomment>whom a certificate is for</extracomment>
        <translation>Właściciel</translation>
    </message>
    <message>
        <source>Issued by</source>
        <extracomment>as in &quot;Issued by: itself&quot;</extracomment>
        <translation>Wystawiony przez</translation>
    </message>
    <message>
        <source>itself</source>
        <translation>samego siebie</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Ważny od</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Ważny do</translation>
    </message>
    <message>
        <source>Fingerprint (SHA-256)</source>
        <translation>Odcisk palca (SHA-256)</translation>
    </message>
</context>
<context>
    <name>KirvServerCommands</name>
    <message>
        <source>None of the loaded plug-ins can register a new account.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>Żadna z załadowanych wtyczek nie może zarejestrować nowego konta.</translation>
    </message>
    <message>
        <source>New accounts cannot be registered with %1.</source>
        <translation>W protokole %1 nie można rejestrować nowych kont.</translation>
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
        <translation>Serwer przyjął formularz. Dodaj konto z loginem, który otrzymasz od serwera.</translation>
    </message>
    <message>
        <source>The account %1 is registered on the server, but it was not added here. %2</source>
        <extracomment>%1 = login of an account, %2 = the reason, a sentence</extracomment>
        <translation>Konto %1 jest zarejestrowane na serwerze, ale nie zostało tu dodane. %2</translation>
    </message>
    <message>
        <source>Add Again</source>
        <translation>Dodaj jeszcze raz</translation>
    </message>
    <message>
        <source>The account %1 has the new password on its server. The password is used until the program ends, but it is not stored. %2</source>
        <extracomment>%1 = name of an account, %2 = the reason, a sentence</extracomment>
        <translation>Konto %1 ma na swoim serwerze nowe hasło. Hasło będzie używane do zakończenia programu, ale nie zostało zapisane. %2</translation>
    </message>
    <message>
        <source>Store Again</source>
        <translation>Zapisz jeszcze raz</translation>
    </message>
    <message>
        <source>The account %1 is deleted on its server, but it was not removed here. %2</source>
        <extracomment>%1 = name of an account, %2 = the reason, a sentence</extracomment>
        <translation>Konto %1 zostało usunięte z serwera, ale nie zostało usunięte tutaj. %2</translation>
    </message>
    <message>
        <source>Remove Again</source>
        <translation>Usuń jeszcze raz</translation>
    </message>
    <message>
        <source>The password of the account %1 is changed on its server.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Hasło konta %1 zostało zmienione na jego serwerze.</translation>
    </message>
</context>
<context>
    <name>KirvSettingsManager</name>
    <message>
        <source>Name shown</source>
        <translation>Wyświetlana nazwa</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>Remember the password</source>
        <translation>Zapamiętaj hasło</translation>
    </message>
    <message>
        <source>Restore the last presence</source>
        <translation>Przywracaj ostatni status</translation>
    </message>
    <message>
        <source>Restore the last description</source>
        <translation>Przywracaj ostatni opis</translation>
    </message>
</context>
<context>
    <name>KirvSettingsWindow</name>
    <message>
        <source>Pages</source>
        <translation>Strony</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Kirv – Settings</source>
        <extracomment>window title; %1 = name of the main account</extracomment>
        <translation>Kirv – Ustawienia</translation>
    </message>
    <message>
        <source>Kirv – Settings – %1</source>
        <translation>Kirv – Ustawienia – %1</translation>
    </message>
</context>
<context>
    <name>KirvSocketSteps</name>
    <message>
        <source>%1, port %2</source>
        <extracomment>%1 = name of a server, %2 = number of a port</extracomment>
        <translation>%1, port %2</translation>
    </message>
    <message>
        <source>%1, which the proxy looks up</source>
        <extracomment>%1 = server and port</extracomment>
        <translation>%1; nazwę wyszukuje serwer proxy</translation>
    </message>
    <message>
        <source>through the proxy %1</source>
        <extracomment>%1 = name of a proxy</extracomment>
        <translation>przez serwer proxy %1</translation>
    </message>
    <message>
        <source>none, as the settings say</source>
        <translation>brak, zgodnie z ustawieniami</translation>
    </message>
    <message>
        <source>none: the server offers none</source>
        <translation>brak: serwer go nie oferuje</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 = &quot;TLS 1.3&quot;, %2 = about a certificate</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>certificate of %1, valid until %2, fingerprint %3 (SHA-256)</source>
        <extracomment>%1 = name of a server, %2 = a date, %3 = hexadecimal digits</extracomment>
        <translation>certyfikat %1, ważny do %2, odcisk palca %3 (SHA-256)</translation>
    </message>
</context>
<context>
    <name>KirvSortingHint</name>
    <message>
        <source>The list is sorted by a column. Accounts can be moved only in your own order.</source>
        <translation>Lista jest posortowana według kolumny. Konta można przesuwać tylko we własnej kolejności.</translation>
    </message>
    <message>
        <source>&amp;Own Order</source>
        <translation>Własna &amp;kolejność</translation>
    </message>
</context>
<context>
    <name>KirvStore</name>
    <message>
        <source>The account &quot;%1&quot; (%2) is not in the profile.</source>
        <translation>Konta „%1” (%2) nie ma w profilu.</translation>
    </message>
    <message>
        <source>There is no home folder to keep the profile in: the environment variable HOME is not set. Set it, or name a folder for the profile.</source>
        <translation>Nie ma folderu domowego, w którym można przechowywać profil: zmienna środowiskowa HOME nie jest ustawiona. Ustaw ją lub podaj folder na profil.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; was deleted, moved or replaced while the program was running, so nothing was stored. Save the accounts to another folder.</source>
        <translation>Profil w „%1” został usunięty, przeniesiony lub zastąpiony, gdy program działał, dlatego nic nie zapisano. Zapisz konta w innym folderze.</translation>
    </message>
    <message>
        <source>The copies of the profile in &quot;%1&quot; could not be removed. Check the permissions of the folder &quot;copies&quot; in it.</source>
        <translation>Nie udało się usunąć kopii profilu w „%1”. Sprawdź uprawnienia znajdującego się w nim folderu „copies”.</translation>
    </message>
    <message>
        <source>There is a profile in &quot;%1&quot; already. Choose an empty folder.</source>
        <translation>W „%1” jest już profil. Wybierz pusty folder.</translation>
    </message>
</context>
<context>
    <name>KirvXmppAvatar</name>
    <message>
        <source>The picture of the account cannot be read.</source>
        <translation>Nie można odczytać obrazu konta.</translation>
    </message>
</context>
<context>
    <name>KirvXmppConnection</name>
    <message>
        <source>The login must be an address such as user@domain.</source>
        <translation>Login musi być adresem takim jak nazwa@domena.</translation>
    </message>
    <message>
        <source>the server does not answer any more</source>
        <translation>serwer już nie odpowiada</translation>
    </message>
    <message>
        <source>The account is not connected.</source>
        <translation>Konto nie jest połączone.</translation>
    </message>
</context>
<context>
    <name>KirvXmppDeletionRequest</name>
    <message>
        <source>Delete Account on Server</source>
        <translation>Usuń konto z serwera</translation>
    </message>
    <message>
        <source>Do you want to delete the account %1 on its server? Its contacts and everything the server keeps for it are lost.</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>Czy usunąć konto %1 z jego serwera? Kontakty konta i wszystko, co serwer dla niego przechowuje, zostaną utracone.</translation>
    </message>
    <message>
        <source>Delete on Server</source>
        <translation>Usuń z serwera</translation>
    </message>
    <message>
        <source>This cannot be undone, and somebody else can take the address %1 afterwards. Is %1 really to be deleted?</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>Tego nie można cofnąć, a ktoś inny może potem zająć adres %1. Czy na pewno usunąć %1?</translation>
    </message>
    <message>
        <source>Delete for Good</source>
        <translation>Usuń na zawsze</translation>
    </message>
    <message>
        <source>Deleting the account…</source>
        <translation>Usuwanie konta…</translation>
    </message>
</context>
<context>
    <name>KirvXmppDirectory</name>
    <message>
        <source>The directory entry is too long to be sent.</source>
        <translation>Wpis w katalogu jest za długi, aby go wysłać.</translation>
    </message>
</context>
<context>
    <name>KirvXmppError</name>
    <message>
        <source>the name is already in use</source>
        <translation>nazwa jest już zajęta</translation>
    </message>
    <message>
        <source>the server does not accept what was sent</source>
        <translation>serwer nie przyjmuje wysłanych danych</translation>
    </message>
    <message>
        <source>the server does not allow it</source>
        <translation>serwer na to nie zezwala</translation>
    </message>
    <message>
        <source>the server does not allow it now</source>
        <translation>serwer teraz na to nie zezwala</translation>
    </message>
    <message>
        <source>the server requires encryption</source>
        <translation>serwer wymaga szyfrowania</translation>
    </message>
</context>
<context>
    <name>KirvXmppLoginGuard</name>
    <message>
        <source>It requires more than a log-in needs.</source>
        <translation>Serwer żąda więcej, niż potrzeba do zalogowania.</translation>
    </message>
    <message>
        <source>It requires more work to check the password than is allowed (%1 rounds, at most %2).</source>
        <translation>Serwer żąda przy sprawdzaniu hasła więcej obliczeń, niż jest dozwolone (rundy: %1, najwyżej %2).</translation>
    </message>
    <message>
        <source>It has not proved that it knows the password.</source>
        <translation>Serwer nie dowiódł, że zna hasło.</translation>
    </message>
    <message>
        <source>Its part of the log-in is wrong.</source>
        <translation>Część logowania po stronie serwera jest błędna.</translation>
    </message>
</context>
<context>
    <name>KirvXmppPasswordRequest</name>
    <message>
        <source>Change Password on Server</source>
        <translation>Zmień hasło na serwerze</translation>
    </message>
    <message>
        <source>The account %1 gets a new password on its server. All clients need it then.</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>Konto %1 otrzyma nowe hasło na swoim serwerze. Będą go wtedy potrzebować wszystkie klienty.</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nowe hasło</translation>
    </message>
    <message>
        <source>The same again</source>
        <translation>Powtórz hasło</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Zmień hasło</translation>
    </message>
    <message>
        <source>Enter the new password.</source>
        <translation>Wprowadź nowe hasło.</translation>
    </message>
    <message>
        <source>The two passwords are different. Enter the same password twice.</source>
        <translation>Hasła są różne. Wprowadź dwa razy to samo hasło.</translation>
    </message>
    <message>
        <source>The password holds characters that cannot be sent.</source>
        <translation>Hasło zawiera znaki, których nie można wysłać.</translation>
    </message>
    <message>
        <source>Changing the password…</source>
        <translation>Zmienianie hasła…</translation>
    </message>
</context>
<context>
    <name>KirvXmppProtocol</name>
    <message>
        <source>XMPP (Jabber): conversations between addresses of many independent servers.</source>
        <translation>XMPP (Jabber): rozmowy między adresami wielu niezależnych serwerów.</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Dostępny</translation>
    </message>
    <message>
        <source>Free to chat</source>
        <translation>Chętny do rozmowy</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Zaraz wracam</translation>
    </message>
    <message>
        <source>Extended away</source>
        <translation>Wracam później</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Nie przeszkadzać</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Niewidoczny</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Niedostępny</translation>
    </message>
    <message>
        <source>Change Password on Server…</source>
        <translation>Zmień hasło na serwerze…</translation>
    </message>
    <message>
        <source>Gives the account a new password on its server.</source>
        <translation>Nadaje kontu nowe hasło na jego serwerze.</translation>
    </message>
    <message>
        <source>Delete Account on Server…</source>
        <translation>Usuń konto z serwera…</translation>
    </message>
    <message>
        <source>Deletes the account on its server for good, and then here.</source>
        <translation>Usuwa konto na zawsze z jego serwera, a potem z programu.</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistration</name>
    <message>
        <source>registration of accounts</source>
        <translation>rejestracja kont</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistrationForm</name>
    <message>
        <source>User name</source>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Pseudonim</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Imię i nazwisko</translation>
    </message>
    <message>
        <source>First name</source>
        <translation>Imię</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>Nazwisko</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Miejscowość</translation>
    </message>
    <message>
        <source>State or region</source>
        <translation>Województwo lub region</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>Kod pocztowy</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Strona WWW</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be filled in.</source>
        <translation>Pole „%1” trzeba wypełnić.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds characters that cannot be sent.</source>
        <translation>Pole „%1” zawiera znaki, których nie można wysłać.</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistrationRequest</name>
    <message>
        <source>Domain</source>
        <translation>Domena</translation>
    </message>
    <message>
        <source>The part of the address after the @.</source>
        <translation>Część adresu po znaku @.</translation>
    </message>
    <message>
        <source>Register XMPP Account</source>
        <translation>Zarejestruj konto XMPP</translation>
    </message>
    <message>
        <source>Choose the server of the new account. The server determines what is to be filled in next.</source>
        <translation>Wybierz serwer nowego konta. Serwer określi, co trzeba wypełnić w następnym kroku.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Enter the domain of the server.</source>
        <translation>Wprowadź domenę serwera.</translation>
    </message>
    <message>
        <source>The name of a server holds characters that cannot be sent.</source>
        <translation>Nazwa serwera zawiera znaki, których nie można wysłać.</translation>
    </message>
    <message>
        <source>Requesting the registration form…</source>
        <translation>Pobieranie formularza rejestracji…</translation>
    </message>
    <message>
        <source>This server does not register accounts from within a client.</source>
        <translation>Ten serwer nie pozwala rejestrować kont z poziomu klienta.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Zarejestruj</translation>
    </message>
    <message>
        <source>The server sent another form. Check it and register again.</source>
        <translation>Serwer przysłał inny formularz. Sprawdź go i zarejestruj konto ponownie.</translation>
    </message>
    <message>
        <source>The server also names this address: %1</source>
        <extracomment>%1 = a web address</extracomment>
        <translation>Serwer podaje też ten adres: %1</translation>
    </message>
    <message>
        <source>Sending the form…</source>
        <translation>Wysyłanie formularza…</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted. Somebody between you and the server could read your password.</source>
        <translation>Certyfikat serwera nie jest zaufany. Ktoś między Tobą a serwerem mógłby odczytać Twoje hasło.</translation>
    </message>
    <message>
        <source>Trust for This Account</source>
        <translation>Zaufaj dla tego konta</translation>
    </message>
</context>
<context>
    <name>KirvXmppRoute</name>
    <message>
        <source>servers refer to one another without end</source>
        <translation>serwery bez końca odsyłają do siebie nawzajem</translation>
    </message>
    <message>
        <source>it refers to a server of a private network</source>
        <translation>odsyła do serwera w sieci prywatnej</translation>
    </message>
    <message>
        <source>%1 starts with encryption at once. Choose direct TLS, or another port.</source>
        <extracomment>%1 is a server and its port</extracomment>
        <translation>%1 od razu zaczyna od szyfrowania. Wybierz bezpośrednie TLS lub inny port.</translation>
    </message>
    <message>
        <source>%1 does not start with encryption at once. Do not choose direct TLS, or choose another port.</source>
        <extracomment>%1 is a server and its port</extracomment>
        <translation>%1 nie zaczyna od razu od szyfrowania. Nie wybieraj bezpośredniego TLS lub wybierz inny port.</translation>
    </message>
    <message>
        <source>servers of %1</source>
        <extracomment>%1 = a domain</extracomment>
        <translation>serwery domeny %1</translation>
    </message>
    <message>
        <source>the server refers to %1</source>
        <extracomment>%1 = a server</extracomment>
        <translation>serwer odsyła do %1</translation>
    </message>
</context>
<context>
    <name>KirvXmppServerLink</name>
    <message>
        <source>What the server sent is no XMPP stream.</source>
        <translation>To, co wysłał serwer, nie jest strumieniem XMPP.</translation>
    </message>
    <message>
        <source>The server sent data that is longer than allowed.</source>
        <translation>Serwer wysłał dane dłuższe, niż jest dozwolone.</translation>
    </message>
    <message>
        <source>The server sent data that is no valid XML.</source>
        <translation>Serwer wysłał dane, które nie są poprawnym kodem XML.</translation>
    </message>
    <message>
        <source>The server sent XML that is not allowed in a stream.</source>
        <translation>Serwer wysłał kod XML, który nie jest dozwolony w strumieniu.</translation>
    </message>
    <message>
        <source>the reply of the server is too large</source>
        <translation>odpowiedź serwera jest za duża</translation>
    </message>
    <message>
        <source>it refers to a server of a private network</source>
        <translation>odsyła do serwera w sieci prywatnej</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is the encryption, as &quot;TLSv1.3&quot;, %2 how the user has proved who he is, as &quot;SASL SCRAM-SHA-256&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not encrypted</source>
        <translation>bez szyfrowania</translation>
    </message>
    <message>
        <source>The server begins the log-in again and again.</source>
        <translation>Serwer wciąż od nowa rozpoczyna logowanie.</translation>
    </message>
    <message>
        <source>the server requires encryption</source>
        <translation>serwer wymaga szyfrowania</translation>
    </message>
    <message>
        <source>the server does not serve the domain of the login</source>
        <translation>serwer nie obsługuje domeny podanej w loginie</translation>
    </message>
    <message>
        <source>it refers to a server without a name</source>
        <translation>odsyła do serwera bez nazwy</translation>
    </message>
    <message>
        <source>It has logged in the account &quot;%1&quot;.</source>
        <extracomment>%1 is the address of an account</extracomment>
        <translation>Serwer zalogował konto „%1”.</translation>
    </message>
    <message>
        <source>the server does not answer any more</source>
        <translation>serwer już nie odpowiada</translation>
    </message>
    <message>
        <source>Its part of the log-in is wrong.</source>
        <translation>Część logowania po stronie serwera jest błędna.</translation>
    </message>
</context>
<context>
    <name>KirvXmppSettings</name>
    <message>
        <source>Resource</source>
        <translation>Zasób</translation>
    </message>
    <message>
        <source>Distinguishes this client from your other ones. Characters by chance take the place of a *. Empty: the server chooses.</source>
        <translation>Odróżnia tego klienta od pozostałych. W miejsce znaku * wstawiane są losowe znaki. Puste: wybiera serwer.</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorytet</translation>
    </message>
    <message>
        <source>Messages go to the client with the highest priority, and to none with a negative one. This client does not show messages.</source>
        <translation>Wiadomości trafiają do klienta o najwyższym priorytecie, a nigdy do klienta o priorytecie ujemnym. Ten klient nie wyświetla wiadomości.</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serwer</translation>
    </message>
    <message>
        <source>Only needed when it cannot be found by the domain of the login. Service records are not looked up where there is a proxy.</source>
        <translation>Potrzebny tylko wtedy, gdy nie można go znaleźć na podstawie domeny loginu. Gdy używany jest serwer proxy, rekordy usług nie są wyszukiwane.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Ordinarily %1, and %2 with direct TLS.</source>
        <translation>Zwykle %1, a z bezpośrednim TLS %2.</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Szyfrowanie</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Wymagane</translation>
    </message>
    <message>
        <source>If the server offers it</source>
        <translation>Jeśli serwer je oferuje</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Required at once (direct TLS)</source>
        <translation>Wymagane od razu (bezpośrednie TLS)</translation>
    </message>
    <message>
        <source>Without encryption others in the network can read along, your password included.</source>
        <translation>Bez szyfrowania inni w sieci mogą czytać przesyłane dane, w tym hasło.</translation>
    </message>
    <message>
        <source>Trusted certificate</source>
        <translation>Zaufany certyfikat</translation>
    </message>
    <message>
        <source>A file with a certificate (PEM) that is trusted besides those of the system.</source>
        <translation>Plik z certyfikatem (PEM), który jest zaufany oprócz certyfikatów systemowych.</translation>
    </message>
    <message>
        <source>Server of the domain</source>
        <translation>Serwer domeny</translation>
    </message>
    <message>
        <source>Server on this computer</source>
        <translation>Serwer na tym komputerze</translation>
    </message>
    <message>
        <source>Server on this computer, unencrypted</source>
        <translation>Serwer na tym komputerze, bez szyfrowania</translation>
    </message>
    <message>
        <source>An address contains no blanks.</source>
        <translation>Adres nie może zawierać spacji.</translation>
    </message>
    <message>
        <source>The character &quot;%1&quot; is not allowed in an address.</source>
        <translation>Znak „%1” nie jest dozwolony w adresie.</translation>
    </message>
    <message>
        <source>The domain is missing, as in anna@example.org.</source>
        <translation>Brakuje domeny, takiej jak w anna@example.org.</translation>
    </message>
    <message>
        <source>An address contains one &quot;@&quot; only.</source>
        <translation>Adres może zawierać tylko jeden znak „@”.</translation>
    </message>
    <message>
        <source>The name before the &quot;@&quot; is missing.</source>
        <translation>Brakuje nazwy przed znakiem „@”.</translation>
    </message>
    <message>
        <source>The domain after the &quot;@&quot; is missing.</source>
        <translation>Brakuje domeny po znaku „@”.</translation>
    </message>
    <message>
        <source>The domain after the &quot;@&quot; is not complete.</source>
        <translation>Domena po znaku „@” jest niepełna.</translation>
    </message>
    <message>
        <source>The address is too long.</source>
        <translation>Adres jest za długi.</translation>
    </message>
    <message>
        <source>The trusted certificate %1 cannot be read (%2).</source>
        <extracomment>%1 is a file name, %2 the reason</extracomment>
        <translation>Nie można odczytać zaufanego certyfikatu %1 (%2).</translation>
    </message>
    <message>
        <source>The file %1 does not hold a certificate in PEM format.</source>
        <translation>Plik %1 nie zawiera certyfikatu w formacie PEM.</translation>
    </message>
    <message>
        <source>The trusted certificate %1 is not a file.</source>
        <extracomment>%1 is a file name</extracomment>
        <translation>Zaufany certyfikat %1 nie jest plikiem.</translation>
    </message>
</context>
<context>
    <name>KirvXmppVCard</name>
    <message>
        <source>Birthday</source>
        <translation>Data urodzenia</translation>
    </message>
    <message>
        <source>Year, month and day, such as 1999-12-31.</source>
        <translation>Rok, miesiąc i dzień, np. 1999-12-31.</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Imię i nazwisko</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Pseudonim</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Miejscowość</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Kraj</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Strona WWW</translation>
    </message>
    <message>
        <source>Organisation</source>
        <translation>Organizacja</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O mnie</translation>
    </message>
    <message>
        <source>An address that begins with http:// or https://.</source>
        <translation>Adres, który zaczyna się od http:// lub https://.</translation>
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
        <translation>Protokół</translation>
    </message>
    <message>
        <source>Removing account</source>
        <comment>message box title</comment>
        <translation>Usuwanie konta</translation>
    </message>
    <message>
        <source>Do you want to remove account &apos;%1&apos; (%2) and all related data?</source>
        <comment>%1 = account alias, %2 = account protocol. Confirmation of removing account</comment>
        <translation>Czy usunąć konto „%1” (%2) i wszystkie powiązane dane?</translation>
    </message>
    <message>
        <source>Disabling account</source>
        <comment>message box title</comment>
        <translation>Wyłączanie konta</translation>
    </message>
    <message>
        <source>Do you want to disable account &apos;%1&apos; (%2) in which you are currently logged in.</source>
        <comment>%1 = account id, %2 = account protocol. Confirmation of disabling account</comment>
        <translation>Czy wyłączyć konto „%1” (%2), które jest teraz zalogowane?</translation>
    </message>
    <message>
        <source>None</source>
        <comment>nc</comment>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Add account</source>
        <comment>adding account error message box title</comment>
        <translation>Dodaj konto</translation>
    </message>
    <message>
        <source>Account &apos;%1&apos; alerady exists!</source>
        <comment>information about existing account while adding account</comment>
        <translation>Konto „%1” już istnieje!</translation>
    </message>
    <message>
        <source>Deleting directory entry</source>
        <comment>message box title</comment>
        <translation>Usuwanie wpisu w katalogu</translation>
    </message>
    <message>
        <source>Do you want to delete the directory entry of account &apos;%1&apos; (%2) from the server?</source>
        <comment>%1 = account id, %2 = account protocol. Confirmation of deleting the directory entry</comment>
        <translation>Czy usunąć z serwera wpis konta „%1” (%2) w katalogu?</translation>
    </message>
</context>
</TS>
