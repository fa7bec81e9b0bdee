<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name></name>
    <message>
        <source>User name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Town</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State or region</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year, month and day, such as 1999-12-31.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Country</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Organisation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Accounts</name>
    <message>
        <source>Accounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The check box of an account tells whether it is enabled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add an account that you already have</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the selected account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the selected account and all its data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a new account on a server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;gister…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Main account:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account that the rest of the program works with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main account</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AddAccount</name>
    <message>
        <source>Add Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Configuration:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A ready-made configuration fills in the settings for you</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Login:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name under which you log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If this is off, you are asked for the password when the account logs in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remember password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;tart as:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The presence that the account takes when it logs in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start as</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditAccount</name>
    <message>
        <source>Edit Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;lias:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name shown for the account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If this is off, you are asked for the password when the account logs in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remember password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account takes the presence and description that it had last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore the last pr&amp;esence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account takes the description that it had last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore the last descript&amp;ion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;tart as:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The presence that the account takes when it logs in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Descriptio&amp;n:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What your contacts read beside the presence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;ublic Directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask the server for your entry; changes that are not saved are lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fetch Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take your entry out of the directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete Entry…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvAccountActionsMenu</name>
    <message>
        <source>&amp;Server Account</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvAccountRegistry::Private</name>
    <message>
        <source>The account &quot;%1&quot; (%2) exists already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; could not be created: the protocol %2 is not loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An account needs a login.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvAccountRows</name>
    <message>
        <source>The plug-in of the protocol %1 is not loaded. Load it on the Plug-ins page.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvApplication</name>
    <message>
        <source>Kirv</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvAvatarFolder</name>
    <message>
        <source>The picture &quot;%1&quot; cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; is too large: at most %2 MB can be used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is not a picture that can be used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; has too many pixels: at most %2 million can be used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; could not be copied into the profile: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvAvatarPicture</name>
    <message>
        <source>The picture is too large: %1 × %2 pixels. Up to %3 million pixels are possible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file “%1” cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file “%1” is too large. Up to %2 MB are possible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file “%1” is not a picture that can be used. Pictures in the formats PNG, JPEG, GIF, BMP and WebP are possible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture in the file “%1” is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no picture that can be used.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvAvatarQuickSetWidget</name>
    <message>
        <source>Picture of the account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to choose a picture, or drop or paste one here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Choose Picture…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture cannot be stored on this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture of the Account</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvClient</name>
    <message>
        <source>Accounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no folder %1, so no protocol is available.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvClientOptions</name>
    <message>
        <source>Keep accounts and settings in &lt;folder&gt; instead of the person&apos;s own profile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load the protocol plug-ins of &lt;folder&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try it without an account: a throw-away profile and private servers on this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accounts of several instant-messaging protocols in one place.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvConnection</name>
    <message>
        <source>The connection ended before the server answered.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvConnectionModel</name>
    <message>
        <source>Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Since</source>
        <extracomment>column title: the time since when a connection has been in its state</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Problem</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug-in not loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logging out…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting, next try at %1</source>
        <extracomment>%1 = time of day</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (main account)</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvConnectionView</name>
    <message>
        <source>&amp;Presence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit Account…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter &amp;Password…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last problem of the account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logs the account out and in again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes another password and logs the account in with it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvDatabase</name>
    <message>
        <source>The SQLite driver of Qt, which the profile needs, is not installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The profile is not open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no space left on the disk, so nothing was stored. Free some space and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; could not be read or written (%2). The disk may be full or faulty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is damaged. Nothing in it was changed: restore it from a backup, or move it away to start with an empty one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; cannot be written. Check its owner and permissions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program is using the profile in &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; could not be used: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvDemo</name>
    <message>
        <source>No temporary folder for the profile can be made: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The demo needs the XMPP server Prosody (the package prosody), which did not start: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a try-out with a profile of its own; nothing is kept. A private XMPP server runs on this computer. Add an XMPP account, choose the configuration &quot;Server on this computer&quot; and type the login %1 and the password %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A private IRC server runs too: add an IRC account with the same configuration, with any nickname and any password.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvEditWindowBinding</name>
    <message>
        <source>&amp;Server Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What can be done with the account on its server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was changed. The window stays open, so that you can try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account must be connected before its directory entry can be read or changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking the server…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvExampleConnection</name>
    <message>
        <source>The server echoes: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvExampleProtocol</name>
    <message>
        <source>Answers after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long the server takes to answer, in milliseconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A protocol to learn from: its server lives inside the program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fast Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slow Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Town</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvFailure</name>
    <message>
        <source>The server did not accept the login or the password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A password is needed to log in, and none is known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server could not be found. Check its name and your network connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server does not accept connections. Check its name and port, or try again later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server did not answer in time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account requires encryption, and the server does not offer it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server offers no way to log in that this account can use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server closed the connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another client logged in to the account and took its place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name is already in use on the server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server does not allow this name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server denied access.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings of the account cannot be used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server does not offer what was asked for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The request failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; could not be found. Check its name and your network connection.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; does not accept connections. Check its name and port, or try again later.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not answer in time.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: %1</source>
        <extracomment>%1 is what is wrong with the certificate</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to the server was lost: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server closed the connection: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is already in use on the server.</source>
        <extracomment>%1 is the name of a user</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server does not allow the name &quot;%1&quot;.</source>
        <extracomment>%1 is the name of a user</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server denied access: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings of the account cannot be used: %1</source>
        <extracomment>%1 says which setting and what is wrong with it</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server does not offer what was asked for: %1</source>
        <extracomment>%1 is what was asked for</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The request failed: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error occurred: %1</source>
        <extracomment>%1 is what the server or the network said</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvFieldForm</name>
    <message>
        <source>%1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This must be filled in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This must be a whole number from %1 to %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This does not have the form that is asked for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide the text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvIrcConnection</name>
    <message>
        <source>There is no certificate in the file “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The nick “%1” could not be had; you are “%2” on this server now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server does not answer any more.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvIrcProtocol</name>
    <message>
        <source>Internet Relay Chat: conversations in channels of a network of servers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offline</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvIrcSettings</name>
    <message>
        <source>“%1” cannot be a nick.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No server is given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is not the name of a server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password cannot be sent: it is too long or has characters that do not belong to a line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name or address of the server. When it is empty, the part of the login after the @ is the server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usually 6697 with encryption and 6667 without.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Required (TLS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None: everybody on the way can read along</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With encryption the server must also prove who it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trusted certificate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The path of a file with a certificate (PEM) to trust besides those that this computer trusts already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use of the password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password of the server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password of a registered nick (SASL)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the account&apos;s password is for. Most networks need none, unless you have registered your nick there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SASL user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name under which the nick is registered. Empty: the nick itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Real name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What others see as your name when they ask for it. Empty: the nick.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alternative nicks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nicks to try when yours is in use, separated by commas.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server on this computer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvLayoutCatalog</name>
    <message>
        <source>“%1” is a %2, but must be a %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no %1 named “%2”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” has no standard button %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” needs two tabs: the account and its directory entry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layout file %1 cannot be used; the built-in layout takes its place.
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The window is a %1, but must be a %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvLayoutFile</name>
    <message>
        <source>It asks for a widget of the unknown class %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not a window layout: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is larger than %1 kB.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not a window layout of Qt Designer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its elements are nested too deeply.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvMessageBar</name>
    <message>
        <source>Messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close this message.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close This Message</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvPasswordDialog</name>
    <message>
        <source>&amp;Remember the password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password Needed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the password of the account %1 (%2).</source>
        <extracomment>%1 = name of an account, %2 = its protocol</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps the password in your profile, so that it is not asked for again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Log In</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvPluginRegistry</name>
    <message>
        <source>The file is not a plug-in library.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in is not one for protocols: its interface is &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in was built for version %1 of the plug-in interface; this program has version %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The library cannot be loaded: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in does not have the interface that it states.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in did not create its protocol and gave no reason.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The protocol has no name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A protocol with the name &quot;%1&quot; is loaded already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The protocol &quot;%1&quot; offers no presence.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvPluginsPage</name>
    <message>
        <source>&amp;Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Unload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About the plug-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loads the plug-in; its accounts come back as they were.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logs the accounts of the plug-in out. They stay in your profile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug-ins are looked for in the folder %1.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no plug-ins.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvRegistration</name>
    <message>
        <source>None of the loaded plug-ins can register a new account.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvRegistrationChooser</name>
    <message>
        <source>Register Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For which &amp;protocol do you want to register a new account?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protocols</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvSettingsManager</name>
    <message>
        <source>Name shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remember the password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore the last presence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore the last description</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvSettingsWindow</name>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kirv – Settings</source>
        <extracomment>window title; %1 = name of the main account</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kirv – Settings – %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvStore::Private</name>
    <message>
        <source>The profile folder &quot;%1&quot; could not be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The profile folder &quot;%1&quot; could not be closed to other users.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is in use by another running instance of the program. Close that one first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The profile folder &quot;%1&quot; cannot be written. Check its owner and permissions, and whether the disk is full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; cannot be written. Check its owner and permissions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; was written by a newer version of the program. Use that version to open it; nothing in it was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; belongs to another program; nothing in it was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is damaged. Nothing in it was changed: restore it from a backup, or move it away to start with an empty one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) is not in the profile.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvXmppConnection</name>
    <message>
        <source>The login must be an address such as user@domain.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture of the account cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account is not connected.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvXmppDirectory</name>
    <message>
        <source>The directory entry is too long to be sent.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvXmppLink</name>
    <message>
        <source>the name is already in use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the server does not accept what was sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the server does not allow it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the server does not allow it now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the server requires encryption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the server does not serve the domain of the login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the server does not answer any more</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvXmppProtocol</name>
    <message>
        <source>XMPP (Jabber): conversations between addresses of many independent servers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free to chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extended away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Password on Server…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives the account a new password on its server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Account on Server…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deletes the account on its server for good, and then here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistration</name>
    <message>
        <source>registration of accounts</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistrationForm</name>
    <message>
        <source>“%1” must be filled in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” holds characters that cannot be sent.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KirvXmppSettings</name>
    <message>
        <source>Resource</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tells this client from your other ones. Empty: the server chooses.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Priority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages go to the client with the highest priority.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only needed when it cannot be found by the domain of the login.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ordinarily %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If the server offers it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without encryption others in the network can read along, your password included.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trusted certificate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file with a certificate (PEM) that is trusted besides those of the system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server of the domain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server on this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server on this computer, unencrypted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The trusted certificate %1 cannot be read (%2).</source>
        <extracomment>%1 is a file name, %2 the reason</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 does not hold a certificate in PEM format.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>translation</name>
    <message>
        <source>Alias</source>
        <comment>account alias in account list</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protocol</source>
        <comment>account protocol in account list</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removing account</source>
        <comment>message box title</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to remove account &apos;%1&apos; (%2) and all related data?</source>
        <comment>%1 = account alias, %2 = account protocol. Confirmation of removing account</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disabling account</source>
        <comment>message box title</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to disable account &apos;%1&apos; (%2) in which you are currently logged in.</source>
        <comment>%1 = account id, %2 = account protocol. Confirmation of disabling account</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <comment>nc</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add account</source>
        <comment>adding account error message box title</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account &apos;%1&apos; alerady exists!</source>
        <comment>information about existing account while adding account</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting directory entry</source>
        <comment>message box title</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to delete the directory entry of account &apos;%1&apos; (%2) from the server?</source>
        <comment>%1 = account id, %2 = account protocol. Confirmation of deleting the directory entry</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
