<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>KirvAccountCollection</name>
    <message numerus="yes">
        <source>The same is true of %n further logins.</source>
        <translation>
            <numerusform>The same is true of %n further login.</numerusform>
            <numerusform>The same is true of %n further logins.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvAccountGroup</name>
    <message numerus="yes">
        <source>Do you want to disable %n accounts? They are logged out.</source>
        <translation>
            <numerusform>Do you want to disable %n account? It is logged out.</numerusform>
            <numerusform>Do you want to disable %n accounts? They are logged out.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Do you want to remove %n accounts and all related data?</source>
        <translation>
            <numerusform>Do you want to remove %n account and all related data?</numerusform>
            <numerusform>Do you want to remove %n accounts and all related data?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvAccountStrip</name>
    <message numerus="yes">
        <source>%n accounts are selected.</source>
        <translation>
            <numerusform>%n account is selected.</numerusform>
            <numerusform>%n accounts are selected.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvAccountUndo</name>
    <message numerus="yes">
        <source>&amp;Undo Removing %n Accounts</source>
        <translation>
            <numerusform>&amp;Undo Removing %n Account</numerusform>
            <numerusform>&amp;Undo Removing %n Accounts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Disabling %n Accounts</source>
        <translation>
            <numerusform>&amp;Undo Disabling %n Account</numerusform>
            <numerusform>&amp;Undo Disabling %n Accounts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were removed.</source>
        <translation>
            <numerusform>%n account was removed.</numerusform>
            <numerusform>%n accounts were removed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were disabled.</source>
        <translation>
            <numerusform>%n account was disabled.</numerusform>
            <numerusform>%n accounts were disabled.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Importing %n Accounts</source>
        <translation>
            <numerusform>&amp;Undo Importing %n Account</numerusform>
            <numerusform>&amp;Undo Importing %n Accounts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were imported.</source>
        <translation>
            <numerusform>%n account was imported.</numerusform>
            <numerusform>%n accounts were imported.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The import of %n accounts was undone.</source>
        <translation>
            <numerusform>The import of %n account was undone.</numerusform>
            <numerusform>The import of %n accounts was undone.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvClient</name>
    <message numerus="yes">
        <source>%n passwords were moved to your keyring.</source>
        <translation>
            <numerusform>%n password was moved to your keyring.</numerusform>
            <numerusform>%n passwords were moved to your keyring.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n passwords were moved to your keyring, which is %1.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>
            <numerusform>%n password was moved to your keyring, which is %1.</numerusform>
            <numerusform>%n passwords were moved to your keyring, which is %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvExportWindow</name>
    <message numerus="yes">
        <source>%n accounts were exported to %1.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>
            <numerusform>%n account was exported to %1.</numerusform>
            <numerusform>%n accounts were exported to %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvImportWindow</name>
    <message numerus="yes">
        <source>&amp;Import %n Accounts</source>
        <translation>
            <numerusform>&amp;Import %n Account</numerusform>
            <numerusform>&amp;Import %n Accounts</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvLeftOut</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvPageCommands</name>
    <message numerus="yes">
        <source>&amp;Enable %n Accounts</source>
        <translation>
            <numerusform>&amp;Enable %n Account</numerusform>
            <numerusform>&amp;Enable %n Accounts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Disable %n Accounts</source>
        <translation>
            <numerusform>&amp;Disable %n Account</numerusform>
            <numerusform>&amp;Disable %n Accounts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Re&amp;move %n Accounts…</source>
        <translation>
            <numerusform>Re&amp;move %n Account…</numerusform>
            <numerusform>Re&amp;move %n Accounts…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>E&amp;xport %n Accounts…</source>
        <translation>
            <numerusform>E&amp;xport %n Account…</numerusform>
            <numerusform>E&amp;xport %n Accounts…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvPassPhrase</name>
    <message numerus="yes">
        <source>The pass phrase needs at least %n characters.</source>
        <translation>
            <numerusform>The pass phrase needs at least %n character.</numerusform>
            <numerusform>The pass phrase needs at least %n characters.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvPidginFile</name>
    <message numerus="yes">
        <source>The file has more than %n accounts.</source>
        <translation>
            <numerusform>The file has more than %n account.</numerusform>
            <numerusform>The file has more than %n accounts.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvPluginsPage</name>
    <message numerus="yes">
        <source>When the plug-in %1 is unloaded, its %n connected accounts go off line.</source>
        <extracomment>%1 = name of a plug-in</extracomment>
        <translation>
            <numerusform>When the plug-in %1 is unloaded, its %n connected account goes off line.</numerusform>
            <numerusform>When the plug-in %1 is unloaded, its %n connected accounts go off line.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvProviderList</name>
    <message numerus="yes">
        <source>%n entries are left out, because they are not complete.</source>
        <translation>
            <numerusform>%n entry is left out, because it is not complete.</numerusform>
            <numerusform>%n entries are left out, because they are not complete.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvReport</name>
    <message numerus="yes">
        <source>%n more accounts are left out.</source>
        <translation>
            <numerusform>%n more account is left out.</numerusform>
            <numerusform>%n more accounts are left out.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>translation</name>
    <message>
        <source>Account &apos;%1&apos; alerady exists!</source>
        <comment>information about existing account while adding account</comment>
        <translation>Account &apos;%1&apos; already exists!</translation>
    </message>
</context>
</TS>
