<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Accounts</name>
    <message>
        <source>Accounts</source>
        <translation>Cuentas</translation>
    </message>
    <message>
        <source>The check box of an account tells whether it is enabled.</source>
        <translation>La casilla de una cuenta indica si está activada.</translation>
    </message>
    <message>
        <source>Add an account that you already have</source>
        <translation>Añadir una cuenta que ya tiene</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>Change the selected account</source>
        <translation>Cambiar la cuenta seleccionada</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Editar…</translation>
    </message>
    <message>
        <source>Remove the selected account and all its data</source>
        <translation>Eliminar la cuenta seleccionada y todos sus datos</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>Eli&amp;minar…</translation>
    </message>
    <message>
        <source>Create a new account on a server</source>
        <translation>Crear una cuenta nueva en un servidor</translation>
    </message>
    <message>
        <source>Re&amp;gister…</source>
        <translation>&amp;Registrar…</translation>
    </message>
    <message>
        <source>&amp;Main account:</source>
        <translation>Cuenta &amp;principal:</translation>
    </message>
    <message>
        <source>The account that the rest of the program works with</source>
        <translation>La cuenta con la que trabaja el resto del programa</translation>
    </message>
    <message>
        <source>Main account</source>
        <translation>Cuenta principal</translation>
    </message>
</context>
<context>
    <name>AddAccount</name>
    <message>
        <source>Add Account</source>
        <translation>Añadir una cuenta</translation>
    </message>
    <message>
        <source>&amp;Configuration:</source>
        <translation>&amp;Plantilla:</translation>
    </message>
    <message>
        <source>A ready-made configuration fills in the settings for you</source>
        <translation>Una plantilla ya preparada rellena los ajustes por usted</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Plantilla</translation>
    </message>
    <message>
        <source>&amp;Login:</source>
        <translation>Nombre de &amp;usuario:</translation>
    </message>
    <message>
        <source>The name under which you log in</source>
        <translation>El nombre con el que inicia sesión</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>Con&amp;traseña:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>If this is off, you are asked for the password when the account logs in</source>
        <translation>Si no está marcada, se le pedirá la contraseña cuando la cuenta inicie sesión</translation>
    </message>
    <message>
        <source>&amp;Remember password</source>
        <translation>&amp;Recordar contraseña</translation>
    </message>
    <message>
        <source>S&amp;tart as:</source>
        <translation>Presencia &amp;inicial:</translation>
    </message>
    <message>
        <source>The presence that the account takes when it logs in</source>
        <translation>La presencia que adopta la cuenta al iniciar sesión</translation>
    </message>
    <message>
        <source>Start as</source>
        <translation>Presencia inicial</translation>
    </message>
</context>
<context>
    <name>EditAccount</name>
    <message>
        <source>Edit Account</source>
        <translation>Editar la cuenta</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>Cue&amp;nta</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Cuenta:</translation>
    </message>
    <message>
        <source>Picture:</source>
        <translation>Imagen:</translation>
    </message>
    <message>
        <source>A&amp;lias:</source>
        <translation>&amp;Alias:</translation>
    </message>
    <message>
        <source>The name shown for the account</source>
        <translation>El nombre que se muestra para la cuenta</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>Con&amp;traseña:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>If this is off, you are asked for the password when the account logs in</source>
        <translation>Si no está marcada, se le pedirá la contraseña cuando la cuenta inicie sesión</translation>
    </message>
    <message>
        <source>&amp;Remember password</source>
        <translation>&amp;Recordar contraseña</translation>
    </message>
    <message>
        <source>The account takes the presence and description that it had last</source>
        <translation>La cuenta adopta la última presencia y la última descripción que tuvo</translation>
    </message>
    <message>
        <source>Restore the last pr&amp;esence</source>
        <translation>Restaurar la última pre&amp;sencia</translation>
    </message>
    <message>
        <source>The account takes the description that it had last</source>
        <translation>La cuenta adopta la última descripción que tuvo</translation>
    </message>
    <message>
        <source>Restore the last descript&amp;ion</source>
        <translation>Restaurar la última descri&amp;pción</translation>
    </message>
    <message>
        <source>S&amp;tart as:</source>
        <translation>Presencia &amp;inicial:</translation>
    </message>
    <message>
        <source>The presence that the account takes when it logs in</source>
        <translation>La presencia que adopta la cuenta al iniciar sesión</translation>
    </message>
    <message>
        <source>Start as</source>
        <translation>Presencia inicial</translation>
    </message>
    <message>
        <source>Descriptio&amp;n:</source>
        <translation>&amp;Descripción:</translation>
    </message>
    <message>
        <source>What your contacts read beside the presence</source>
        <translation>Lo que leen sus contactos junto a la presencia</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>P&amp;ublic Directory</source>
        <translation>Directorio pú&amp;blico</translation>
    </message>
    <message>
        <source>Ask the server for your entry; changes that are not saved are lost</source>
        <translation>Pedir su entrada al servidor; los cambios no guardados se pierden</translation>
    </message>
    <message>
        <source>&amp;Fetch Again</source>
        <translation>Obtener de nue&amp;vo</translation>
    </message>
    <message>
        <source>Take your entry out of the directory</source>
        <translation>Quitar su entrada del directorio</translation>
    </message>
    <message>
        <source>&amp;Delete Entry…</source>
        <translation>&amp;Eliminar la entrada…</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Presence</source>
        <translation>Presencia</translation>
    </message>
    <message>
        <source>Pages of the account</source>
        <translation>Páginas de la cuenta</translation>
    </message>
</context>
<context>
    <name>KirvAccount</name>
    <message>
        <source>A password could not be kept in the keyring. It is used until the program ends, and is kept when the keyring can be used.</source>
        <translation>No se pudo guardar una contraseña en el depósito de claves. Se usará hasta que termine el programa y se guardará cuando el depósito de claves se pueda usar.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 = a sentence, %2 = what the keyring says</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>other accounts connect first</source>
        <translation>antes se conectan otras cuentas</translation>
    </message>
    <message>
        <source>the next try is at %1</source>
        <extracomment>%1 = time of day</extracomment>
        <translation>próximo intento a las %1</translation>
    </message>
    <message>
        <source>A password could not be stored. It is used until the program ends. %1</source>
        <extracomment>%1 = the reason, a sentence</extracomment>
        <translation>No se pudo guardar una contraseña. Se usa hasta que termine el programa. %1</translation>
    </message>
</context>
<context>
    <name>KirvAccountActionsMenu</name>
    <message>
        <source>&amp;Server Account</source>
        <translation>Cuenta en e&amp;l servidor</translation>
    </message>
</context>
<context>
    <name>KirvAccountCheckList</name>
    <message>
        <source>&amp;All accounts</source>
        <translation>&amp;Todas las cuentas</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Cuentas</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protocolo</translation>
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
        <translation>Las cuentas «%1» y «%2» (%3) son la misma para el servidor. Se conservan las dos; elimine la que no necesite.</translation>
    </message>
    <message numerus="yes">
        <source>The same is true of %n further logins.</source>
        <translation>
            <numerusform>Lo mismo ocurre con %n nombre de usuario más.</numerusform>
            <numerusform>Lo mismo ocurre con %n nombres de usuario más.</numerusform>
        </translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) exists already.</source>
        <translation>La cuenta «%1» (%2) ya existe.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) exists already: it is the same as &quot;%3&quot; to the server.</source>
        <extracomment>%1 and %3 are two spellings of a login, %2 is the name of a protocol</extracomment>
        <translation>La cuenta «%1» (%2) ya existe: para el servidor es la misma que «%3».</translation>
    </message>
    <message>
        <source>An account needs a login.</source>
        <translation>Una cuenta necesita un nombre de usuario.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; could not be created: the protocol %2 is not loaded.</source>
        <translation>No se pudo crear la cuenta «%1»: el protocolo %2 no está cargado.</translation>
    </message>
    <message>
        <source>The pictures of the accounts could not be written into a temporary file.</source>
        <translation>No se pudieron escribir las imágenes de las cuentas en un archivo temporal.</translation>
    </message>
    <message>
        <source>There is no account &quot;%1&quot; (%2) any more.</source>
        <translation>La cuenta «%1» (%2) ya no existe.</translation>
    </message>
</context>
<context>
    <name>KirvAccountExport</name>
    <message>
        <source>The password of the account &quot;%1&quot; (%2) is left out: it is in the keyring and could not be read.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>Se omite la contraseña de la cuenta «%1» (%2): está en el depósito de claves y no se pudo leer.</translation>
    </message>
    <message>
        <source>Secret settings of the account &quot;%1&quot; (%2) are left out: they are in the keyring and could not be read.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>Se omiten ajustes secretos de la cuenta «%1» (%2): están en el depósito de claves y no se pudieron leer.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) is left out: it has texts that cannot be exported.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>Se omite la cuenta «%1» (%2): tiene textos que no se pueden exportar.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) is left out: it could not be read, or is too large.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>Se omite la imagen de la cuenta «%1» (%2): no se pudo leer o es demasiado grande.</translation>
    </message>
</context>
<context>
    <name>KirvAccountFile</name>
    <message>
        <source>The file is damaged, or it is not a file of exported accounts.</source>
        <translation>El archivo está dañado o no es un archivo de cuentas exportadas.</translation>
    </message>
    <message>
        <source>The passwords in the file are damaged, so nothing is imported from it.</source>
        <translation>Las contraseñas del archivo están dañadas, por lo que no se importa nada de él.</translation>
    </message>
    <message>
        <source>The file is too large. Up to %1 MB are possible.</source>
        <translation>El archivo es demasiado grande. Se admiten hasta %1 MB.</translation>
    </message>
    <message>
        <source>The file was made by a newer version of the program. This one cannot read it.</source>
        <translation>El archivo se creó con una versión más reciente del programa. Esta versión no puede leerlo.</translation>
    </message>
    <message>
        <source>The file has too many accounts. Up to %1 are possible.</source>
        <translation>El archivo tiene demasiadas cuentas. Se admiten hasta %1.</translation>
    </message>
    <message>
        <source>Account %1 in the file is damaged: &quot;%2&quot; cannot be used.</source>
        <extracomment>%1 = number of an account in a file, %2 = name of a value that is stored there</extracomment>
        <translation>La cuenta %1 del archivo está dañada: «%2» no se puede usar.</translation>
    </message>
    <message>
        <source>The file contains the account &quot;%1&quot; (%2) twice.</source>
        <extracomment>%1 = login, %2 = name of a protocol</extracomment>
        <translation>La cuenta «%1» (%2) está dos veces en el archivo.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) in the file is too large.</source>
        <translation>La imagen de la cuenta «%1» (%2) que contiene el archivo es demasiado grande.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) is left out: it is of a kind that cannot be used.</source>
        <translation>Se omite la imagen de la cuenta «%1» (%2): es de un tipo que no se puede usar.</translation>
    </message>
    <message>
        <source>The file is damaged: its main account is not in it.</source>
        <translation>El archivo está dañado: no contiene su cuenta principal.</translation>
    </message>
    <message>
        <source>The file contains no passwords that the pass phrase could decrypt. If it should contain some, somebody has changed it.</source>
        <translation>El archivo no tiene contraseñas, por lo que la frase de contraseña no tiene nada que abrir. Si debería tenerlas, alguien lo ha cambiado.</translation>
    </message>
    <message>
        <source>The passwords in the file are left out, as they need its pass phrase.</source>
        <translation>Se omiten las contraseñas del archivo, ya que necesitan su frase de contraseña.</translation>
    </message>
    <message>
        <source>Decrypting the passwords in the file needs more memory or time than is allowed, so nothing is imported from it.</source>
        <translation>Abrir las contraseñas del archivo necesita más memoria o tiempo de lo permitido, por lo que no se importa nada de él.</translation>
    </message>
    <message>
        <source>There is not enough memory to decrypt the passwords in the file.</source>
        <translation>No hay memoria suficiente para abrir las contraseñas del archivo.</translation>
    </message>
    <message>
        <source>The pass phrase does not decrypt the passwords in the file.</source>
        <translation>La frase de contraseña no abre las contraseñas del archivo.</translation>
    </message>
    <message>
        <source>The accounts in the file were changed after it was written. They do not belong to its passwords any more, so nothing is imported from it.</source>
        <translation>Las cuentas del archivo se cambiaron después de que se escribiera. Ya no corresponden a sus contraseñas, por lo que no se importa nada de él.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) has texts or a picture that cannot be exported.</source>
        <translation>La cuenta «%1» (%2) tiene textos o una imagen que no se pueden exportar.</translation>
    </message>
    <message>
        <source>There is not enough memory to encrypt the passwords.</source>
        <translation>No hay memoria suficiente para cifrar las contraseñas.</translation>
    </message>
    <message>
        <source>The file would have more than %1 MB or %2 accounts. Export fewer accounts at once.</source>
        <translation>El archivo tendría más de %1 MB o de %2 cuentas. Exporte menos cuentas a la vez.</translation>
    </message>
</context>
<context>
    <name>KirvAccountGroup</name>
    <message>
        <source>Disabling Accounts</source>
        <translation>Desactivar cuentas</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to disable %n accounts? They are logged out.</source>
        <translation>
            <numerusform>¿Desea desactivar %n cuenta? Se cerrará su sesión.</numerusform>
            <numerusform>¿Desea desactivar %n cuentas? Se cerrarán sus sesiones.</numerusform>
        </translation>
    </message>
    <message>
        <source>Removing Accounts</source>
        <translation>Eliminar cuentas</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to remove %n accounts and all related data?</source>
        <translation>
            <numerusform>¿Desea eliminar %n cuenta y todos los datos relacionados?</numerusform>
            <numerusform>¿Desea eliminar %n cuentas y todos los datos relacionados?</numerusform>
        </translation>
    </message>
    <message>
        <source>Disabling All Accounts</source>
        <translation>Desactivar todas las cuentas</translation>
    </message>
    <message>
        <source>Do you want to disable all accounts? They are logged out.</source>
        <translation>¿Desea desactivar todas las cuentas? Se cerrarán sus sesiones.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvAccountHistory</name>
    <message>
        <source>The account &quot;%1&quot; cannot be enabled again: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>La cuenta «%1» no se puede volver a activar: se eliminó.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be restored to what it was before the import: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>La cuenta «%1» no puede volver a ser como era antes de la importación: se eliminó.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be imported again: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>La cuenta «%1» no se puede importar de nuevo: se eliminó.</translation>
    </message>
</context>
<context>
    <name>KirvAccountImport</name>
    <message>
        <source>The file contains this login twice: &quot;%1&quot; is the same as &quot;%2&quot; to the server.</source>
        <extracomment>%1 and %2 are logins, which may be spelt the same</extracomment>
        <translation>El archivo tiene este nombre de usuario dos veces: para el servidor, «%1» es el mismo que «%2».</translation>
    </message>
    <message>
        <source>The account has no login.</source>
        <translation>La cuenta no tiene nombre de usuario.</translation>
    </message>
    <message>
        <source>The protocol %1 is not loaded.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>El protocolo %1 no está cargado.</translation>
    </message>
    <message>
        <source>Another account with this login was added or removed in the meantime.</source>
        <translation>Entretanto se añadió o se eliminó otra cuenta con este nombre de usuario.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be imported. %2</source>
        <extracomment>%1 = login, %2 = a sentence</extracomment>
        <translation>No se puede importar la cuenta «%1». %2</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; was left out. %2</source>
        <extracomment>%1 = name of an account, %2 = a sentence</extracomment>
        <translation>Se omitió la imagen de la cuenta «%1». %2</translation>
    </message>
    <message>
        <source>Stored passwords of the account &quot;%1&quot; are not kept, because its settings in the file differ. They must be entered again.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Las contraseñas guardadas de la cuenta «%1» no se conservan, porque sus ajustes en el archivo son distintos. Hay que volver a introducirlas.</translation>
    </message>
</context>
<context>
    <name>KirvAccountInvitation</name>
    <message>
        <source>Add an Account</source>
        <translation>Añadir una cuenta</translation>
    </message>
    <message>
        <source>Register a New One…</source>
        <translation>Registrar una nueva…</translation>
    </message>
    <message>
        <source>Create a new account on a server</source>
        <translation>Crear una cuenta nueva en un servidor</translation>
    </message>
    <message>
        <source>Add an account that you already have</source>
        <translation>Añadir una cuenta que ya tiene</translation>
    </message>
    <message>
        <source>No protocol is loaded. Load one on the Plug-ins page.</source>
        <translation>No hay ningún protocolo cargado. Cargue uno en la página «Complementos».</translation>
    </message>
    <message>
        <source>Take accounts over from a file</source>
        <translation>Importar cuentas de un archivo</translation>
    </message>
    <message>
        <source>Take the accounts of Pidgin over; its own file is only read</source>
        <translation>Importar las cuentas de Pidgin; su propio archivo solo se lee</translation>
    </message>
    <message>
        <source>There is no account yet. Add one that you already have, register a new one, or import accounts from a file.</source>
        <translation>Todavía no hay ninguna cuenta. Añada una que ya tenga, registre una nueva o importe cuentas de un archivo.</translation>
    </message>
    <message>
        <source>There is no account yet. Add one that you already have, register a new one, or import accounts. There are accounts of Pidgin on this computer.</source>
        <translation>Todavía no hay ninguna cuenta. Añada una que ya tenga, registre una nueva o importe cuentas. Pidgin tiene cuentas en este equipo.</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Import from Pidgin…</source>
        <translation>Importar de Pidgin…</translation>
    </message>
</context>
<context>
    <name>KirvAccountLog</name>
    <message>
        <source>Off line</source>
        <translation>Desconectada</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Conectando</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectada</translation>
    </message>
    <message>
        <source>Logging out</source>
        <translation>Cerrando la sesión</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>The program requests a log-in</source>
        <translation>El programa solicita un inicio de sesión</translation>
    </message>
    <message>
        <source>The program changes the presence</source>
        <translation>El programa cambia la presencia</translation>
    </message>
    <message>
        <source>The program requests a log-out</source>
        <translation>El programa solicita un cierre de sesión</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 (error)</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>%1 (éxito)</translation>
    </message>
    <message>
        <source>%1 begins</source>
        <translation>%1 (comienzo)</translation>
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
        <translation>Registro de eventos de %1</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copies the selected entries, or all when none is selected. They hold no passwords.</source>
        <translation>Copia las entradas seleccionadas, o todas si no hay ninguna seleccionada. No contienen contraseñas.</translation>
    </message>
    <message>
        <source>&amp;Report…</source>
        <translation>&amp;Informe…</translation>
    </message>
    <message>
        <source>Puts the log and the versions of the program together for somebody who helps.</source>
        <translation>Reúne el registro de eventos y las versiones del programa para quien le ayude.</translation>
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
        <translation>No hay ninguna cuenta «%1».</translation>
    </message>
    <message>
        <source>Several accounts are called &quot;%1&quot;. Name one of them with its protocol: %2</source>
        <extracomment>%1 = what was typed, %2 = names that could be meant</extracomment>
        <translation>Varias cuentas se llaman «%1». Indique una de ellas con su protocolo: %2</translation>
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
        <translation>Buscar cuentas</translation>
    </message>
    <message>
        <source>Search accounts, or “%1”…</source>
        <extracomment>%1 = the word that finds accounts whose state needs attention</extracomment>
        <translation>Buscar cuentas, o «%1»…</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problema</translation>
    </message>
    <message>
        <source>Shows the accounts with these words in their alias, login, protocol or state</source>
        <translation>Muestra las cuentas que tienen estas palabras en su alias, nombre de usuario, protocolo o estado</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>how many accounts a search shows, as &quot;3 of 120&quot;</extracomment>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>KirvAccountStatus</name>
    <message>
        <source>Connected</source>
        <translation>Conectada</translation>
    </message>
    <message>
        <source>Logging out…</source>
        <translation>Cerrando la sesión…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Off line</source>
        <translation>Desconectada</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desactivada</translation>
    </message>
    <message>
        <source>Its plug-in is not loaded</source>
        <translation>Su complemento no está cargado</translation>
    </message>
    <message>
        <source>Waiting to connect…</source>
        <extracomment>other accounts connect first</extracomment>
        <translation>Esperando para conectar…</translation>
    </message>
    <message>
        <source>Waiting, next try in %1 s</source>
        <extracomment>%1 = number of seconds; keep it short</extracomment>
        <translation>En espera, próximo intento en %1 s</translation>
    </message>
    <message>
        <source>Waiting, next try in %1 min</source>
        <extracomment>%1 = number of minutes; keep it short</extracomment>
        <translation>En espera, próximo intento en %1 min</translation>
    </message>
    <message>
        <source>Waiting, next try at %1</source>
        <extracomment>%1 = time of day</extracomment>
        <translation>En espera, próximo intento: %1</translation>
    </message>
    <message>
        <source>main account</source>
        <translation>cuenta principal</translation>
    </message>
    <message>
        <source> · </source>
        <extracomment>between the parts of the line below the name of an account, as in &quot;Connected · Away · main account&quot;</extracomment>
        <translation> · </translation>
    </message>
    <message>
        <source>The account is logged out. It can be logged in with Reconnect.</source>
        <translation>La cuenta está desconectada. Puede conectarse con «Reconectar».</translation>
    </message>
    <message>
        <source>The account does not log in. It can be enabled with its check box.</source>
        <translation>La cuenta no inicia sesión. Puede activarse con su casilla.</translation>
    </message>
    <message>
        <source>The plug-in of the protocol %1 is not loaded. Load it on the Plug-ins page.</source>
        <translation>El complemento del protocolo %1 no está cargado. Cárguelo en la página «Complementos».</translation>
    </message>
    <message>
        <source>Other accounts connect first.</source>
        <translation>Antes se conectan otras cuentas.</translation>
    </message>
    <message>
        <source>The next try is at %1.</source>
        <translation>Próximo intento: %1.</translation>
    </message>
    <message>
        <source>The presence is %1.</source>
        <translation>La presencia es «%1».</translation>
    </message>
    <message>
        <source>Protection: %1.</source>
        <translation>Protección: %1.</translation>
    </message>
    <message>
        <source>Since %1.</source>
        <extracomment>%1 = time of day, or date and time, since when a connection has been in its state</extracomment>
        <translation>Desde %1.</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Contraseña incorrecta</translation>
    </message>
    <message>
        <source>Password needed</source>
        <translation>Contraseña necesaria</translation>
    </message>
    <message>
        <source>Server not found</source>
        <translation>Servidor no encontrado</translation>
    </message>
    <message>
        <source>Server not reachable</source>
        <translation>Servidor inaccesible</translation>
    </message>
    <message>
        <source>No reply from the server</source>
        <translation>Sin respuesta del servidor</translation>
    </message>
    <message>
        <source>Certificate not trusted</source>
        <translation>Certificado no fiable</translation>
    </message>
    <message>
        <source>Encryption not offered</source>
        <translation>Cifrado no ofrecido</translation>
    </message>
    <message>
        <source>No usable log-in offered</source>
        <translation>Ningún inicio de sesión utilizable ofrecido</translation>
    </message>
    <message>
        <source>Server not available</source>
        <translation>Servidor no disponible</translation>
    </message>
    <message>
        <source>Connection lost</source>
        <translation>Conexión perdida</translation>
    </message>
    <message>
        <source>Connection closed by the server</source>
        <translation>Conexión cerrada por el servidor</translation>
    </message>
    <message>
        <source>Logged in elsewhere</source>
        <translation>Sesión iniciada en otro lugar</translation>
    </message>
    <message>
        <source>Name in use</source>
        <translation>Nombre en uso</translation>
    </message>
    <message>
        <source>Name not allowed</source>
        <translation>Nombre no permitido</translation>
    </message>
    <message>
        <source>Proxy not reachable</source>
        <translation>Proxy inaccesible</translation>
    </message>
    <message>
        <source>No reply from the proxy</source>
        <translation>Sin respuesta del proxy</translation>
    </message>
    <message>
        <source>Log-in refused by the proxy</source>
        <translation>Inicio de sesión rechazado por el proxy</translation>
    </message>
    <message>
        <source>Denied by the proxy</source>
        <translation>Denegado por el proxy</translation>
    </message>
    <message>
        <source>Proxy failed</source>
        <translation>Error del proxy</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Acceso denegado</translation>
    </message>
    <message>
        <source>Settings cannot be used</source>
        <translation>Ajustes inutilizables</translation>
    </message>
    <message>
        <source>Not supported by the server</source>
        <translation>No admitido por el servidor</translation>
    </message>
    <message>
        <source>Log-in failed</source>
        <translation>Error al iniciar sesión</translation>
    </message>
    <message>
        <source>Enter the password again, or edit the account if the login is wrong.</source>
        <translation>Vuelva a introducir la contraseña, o edite la cuenta si el nombre de usuario es incorrecto.</translation>
    </message>
    <message>
        <source>Enter the password.</source>
        <translation>Introduzca la contraseña.</translation>
    </message>
    <message>
        <source>Edit the account to change its settings.</source>
        <translation>Edite la cuenta para cambiar sus ajustes.</translation>
    </message>
    <message>
        <source>It can be logged in here again with Reconnect.</source>
        <translation>Puede volver a conectarse aquí con «Reconectar».</translation>
    </message>
    <message>
        <source>It can be tried again with Reconnect.</source>
        <translation>Puede volver a intentarlo con «Reconectar».</translation>
    </message>
    <message>
        <source>Look at it with Show Certificate.</source>
        <translation>Véalo con «Mostrar el certificado».</translation>
    </message>
    <message>
        <source>It is another one than the one that you have trusted.</source>
        <translation>No es el mismo en el que usted confió.</translation>
    </message>
</context>
<context>
    <name>KirvAccountStrip</name>
    <message>
        <source>Enter Password…</source>
        <translation>Introducir la contraseña…</translation>
    </message>
    <message>
        <source>Takes another password and logs the account in with it.</source>
        <translation>Pide otra contraseña e inicia con ella la sesión de la cuenta.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Reconectar</translation>
    </message>
    <message>
        <source>Logs the account out and in again.</source>
        <translation>Cierra la sesión de la cuenta y la inicia de nuevo.</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Editar…</translation>
    </message>
    <message>
        <source>Change the account</source>
        <translation>Cambiar la cuenta</translation>
    </message>
    <message>
        <source>Reason of the state of the account</source>
        <translation>Motivo del estado de la cuenta</translation>
    </message>
    <message>
        <source>No account is selected.</source>
        <translation>No hay ninguna cuenta seleccionada.</translation>
    </message>
    <message>
        <source>State of %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Estado de %1</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts are selected.</source>
        <translation>
            <numerusform>Hay %n cuenta seleccionada.</numerusform>
            <numerusform>Hay %n cuentas seleccionadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>They can be enabled, disabled and removed with the context menu.</source>
        <translation>Pueden activarse, desactivarse y eliminarse con el menú contextual.</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro de eventos</translation>
    </message>
    <message>
        <source>Shows what happened to the account&apos;s connection.</source>
        <translation>Muestra lo que ocurrió con la conexión de la cuenta.</translation>
    </message>
    <message>
        <source>What Is Wrong?</source>
        <translation>¿Qué falla?</translation>
    </message>
    <message>
        <source>Tries each step of the log-in with what is stored, beside the account&apos;s own connection.</source>
        <translation>Prueba cada paso del inicio de sesión con lo que está guardado, aparte de la conexión de la propia cuenta.</translation>
    </message>
    <message>
        <source>Show Certificate…</source>
        <translation>Mostrar el certificado…</translation>
    </message>
    <message>
        <source>Shows the certificate of the server and asks whether it is trusted.</source>
        <translation>Muestra el certificado del servidor y pregunta si confía en él.</translation>
    </message>
</context>
<context>
    <name>KirvAccountUndo</name>
    <message numerus="yes">
        <source>&amp;Undo Removing %n Accounts</source>
        <translation>
            <numerusform>Des&amp;hacer la eliminación de %n cuenta</numerusform>
            <numerusform>Des&amp;hacer la eliminación de %n cuentas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Disabling %n Accounts</source>
        <translation>
            <numerusform>Des&amp;hacer la desactivación de %n cuenta</numerusform>
            <numerusform>Des&amp;hacer la desactivación de %n cuentas</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Undo Removing %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Des&amp;hacer la eliminación de %1</translation>
    </message>
    <message>
        <source>&amp;Undo Disabling %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Des&amp;hacer la desactivación de %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Des&amp;hacer</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were removed.</source>
        <translation>
            <numerusform>Se eliminó %n cuenta.</numerusform>
            <numerusform>Se eliminaron %n cuentas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were disabled.</source>
        <translation>
            <numerusform>Se desactivó %n cuenta.</numerusform>
            <numerusform>Se desactivaron %n cuentas.</numerusform>
        </translation>
    </message>
    <message>
        <source>The account %1 (%2) was removed.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>Se eliminó la cuenta %1 (%2).</translation>
    </message>
    <message>
        <source>The account %1 (%2) was disabled.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>Se desactivó la cuenta %1 (%2).</translation>
    </message>
    <message>
        <source>&amp;Undo Importing %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Des&amp;hacer la importación de %1</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Importing %n Accounts</source>
        <translation>
            <numerusform>Des&amp;hacer la importación de %n cuenta</numerusform>
            <numerusform>Des&amp;hacer la importación de %n cuentas</numerusform>
        </translation>
    </message>
    <message>
        <source>The account %1 (%2) was imported.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>Se importó la cuenta %1 (%2).</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were imported.</source>
        <translation>
            <numerusform>Se importó %n cuenta.</numerusform>
            <numerusform>Se importaron %n cuentas.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Import Again</source>
        <translation>&amp;Importar de nuevo</translation>
    </message>
    <message>
        <source>The import of the account %1 (%2) was undone.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>Se deshizo la importación de la cuenta %1 (%2).</translation>
    </message>
    <message numerus="yes">
        <source>The import of %n accounts was undone.</source>
        <translation>
            <numerusform>Se deshizo la importación de %n cuenta.</numerusform>
            <numerusform>Se deshizo la importación de %n cuentas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvAccountsCommand</name>
    <message>
        <source>The profile in &quot;%1&quot; is open in another program, which does not take commands.</source>
        <translation>El perfil de «%1» está abierto en otro programa, que no acepta órdenes.</translation>
    </message>
    <message>
        <source>There is no profile in &quot;%1&quot; yet.</source>
        <translation>Todavía no hay ningún perfil en «%1».</translation>
    </message>
    <message>
        <source>The program that runs with this profile does not respond.</source>
        <translation>El programa que se ejecuta con este perfil no responde.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsOptions</name>
    <message>
        <source>Print one line of JSON.</source>
        <translation>Mostrar una línea de JSON.</translation>
    </message>
    <message>
        <source>Export: put passwords into the file, encrypted with a pass phrase.</source>
        <translation>Exportar: incluir en el archivo las contraseñas, cifradas con una frase de contraseña.</translation>
    </message>
    <message>
        <source>Export: overwrite a file that is there.</source>
        <translation>Exportar: sobrescribir el archivo si ya existe.</translation>
    </message>
    <message>
        <source>Import: leave out the passwords that are in the file.</source>
        <translation>Importar: omitir las contraseñas que haya en el archivo.</translation>
    </message>
    <message>
        <source>Import: replace accounts that exist by those of the file.</source>
        <translation>Importar: sustituir las cuentas existentes por las del archivo.</translation>
    </message>
    <message>
        <source>Import: say what would be done, and change nothing.</source>
        <translation>Importar: indicar qué se haría, sin cambiar nada.</translation>
    </message>
    <message>
        <source>Export and import: the pass phrase is the first line of &lt;file&gt;.</source>
        <translation>Exportar e importar: la frase de contraseña es la primera línea de &lt;archivo&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>archivo</translation>
    </message>
    <message>
        <source>Export and import: the pass phrase is the first line that can be read from the file descriptor &lt;number&gt;.</source>
        <translation>Exportar e importar: la frase de contraseña es la primera línea que se pueda leer del descriptor de archivo &lt;número&gt;.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>número</translation>
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
        <translation>Enumera, activa, desactiva, exporta e importa cuentas.
Una cuenta se indica como PROTOCOLO:ID, o por su ID cuando ninguna otra cuenta tiene el mismo.

  accounts list [cuenta…]
  accounts enable cuenta…
  accounts disable cuenta…
  accounts export archivo [cuenta…]
  accounts import archivo

Como archivo, - significa la salida o la entrada estándar.</translation>
    </message>
    <message>
        <source>list, enable, disable, export or import.</source>
        <translation>list, enable, disable, export o import.</translation>
    </message>
    <message>
        <source>A file or an account.</source>
        <translation>Un archivo o una cuenta.</translation>
    </message>
    <message>
        <source>[argument…]</source>
        <translation>[argumento…]</translation>
    </message>
    <message>
        <source>The command is missing: list, enable, disable, export or import.</source>
        <translation>Falta la orden: list, enable, disable, export o import.</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; is not known: it can be list, enable, disable, export or import.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>La orden «%1» no se conoce: puede ser list, enable, disable, export o import.</translation>
    </message>
    <message>
        <source>The option --%1 does not belong to the command &quot;%2&quot;.</source>
        <extracomment>%1 = name of an option, %2 = name of a command</extracomment>
        <translation>La opción --%1 no corresponde a la orden «%2».</translation>
    </message>
    <message>
        <source>The file is missing.</source>
        <translation>Falta el archivo.</translation>
    </message>
    <message>
        <source>The argument &quot;%1&quot; is not known.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>No se reconoce el argumento «%1».</translation>
    </message>
    <message>
        <source>The account is missing.</source>
        <translation>Falta la cuenta.</translation>
    </message>
    <message>
        <source>The option --json cannot be used when the file goes to the standard output.</source>
        <translation>La opción --json no se puede usar cuando el archivo va a la salida estándar.</translation>
    </message>
    <message>
        <source>A pass phrase is of no use when no passwords are exported or imported.</source>
        <translation>Una frase de contraseña no sirve de nada si no se incluyen contraseñas.</translation>
    </message>
    <message>
        <source>The file with the pass phrase is missing.</source>
        <translation>Falta el archivo con la frase de contraseña.</translation>
    </message>
    <message>
        <source>The option --pass-phrase-fd needs the number of a file descriptor.</source>
        <translation>La opción --pass-phrase-fd necesita el número de un descriptor de archivo.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsPageCompanion</name>
    <message>
        <source>The plug-in of the protocol %1 is not loaded. Load it on the Plug-ins page.</source>
        <translation>El complemento del protocolo %1 no está cargado. Cárguelo en la página «Complementos».</translation>
    </message>
</context>
<context>
    <name>KirvAccountsService</name>
    <message>
        <source>The account is missing.</source>
        <translation>Falta la cuenta.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsText</name>
    <message>
        <source>There are no accounts.</source>
        <translation>No hay cuentas.</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protocolo</translation>
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
        <translation>Activada</translation>
    </message>
    <message>
        <source>Main</source>
        <translation>Principal</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>%1 is enabled now.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>La cuenta %1 está ahora activada.</translation>
    </message>
    <message>
        <source>%1 is disabled now.</source>
        <translation>La cuenta %1 está ahora desactivada.</translation>
    </message>
    <message>
        <source>%1 was enabled already.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>La cuenta %1 ya estaba activada.</translation>
    </message>
    <message>
        <source>%1 was disabled already.</source>
        <translation>La cuenta %1 ya estaba desactivada.</translation>
    </message>
    <message>
        <source>Accounts exported: %1, with the passwords that are stored.</source>
        <extracomment>%1 = number</extracomment>
        <translation>Cuentas exportadas: %1, con las contraseñas guardadas.</translation>
    </message>
    <message>
        <source>Accounts exported: %1, without passwords.</source>
        <translation>Cuentas exportadas: %1, sin contraseñas.</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nueva</translation>
    </message>
    <message>
        <source>replaces %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>sustituye a %1</translation>
    </message>
    <message>
        <source>%1 is kept</source>
        <translation>se conserva %1</translation>
    </message>
    <message>
        <source>Accounts that would be imported: %1. Nothing was changed.</source>
        <extracomment>%1 = number</extracomment>
        <translation>Cuentas que se importarían: %1. No se cambió nada.</translation>
    </message>
    <message>
        <source>Accounts imported: %1.</source>
        <translation>Cuentas importadas: %1.</translation>
    </message>
</context>
<context>
    <name>KirvAddWindowCompanion</name>
    <message>
        <source>Add %1 Account</source>
        <extracomment>%1 = the name of a protocol</extracomment>
        <translation>Añadir una cuenta %1</translation>
    </message>
    <message>
        <source>Save Without a Password</source>
        <translation>Guardar sin contraseña</translation>
    </message>
    <message>
        <source>The login is missing.</source>
        <translation>Falta el nombre de usuario.</translation>
    </message>
    <message>
        <source>The login and the password are missing.</source>
        <translation>Faltan el nombre de usuario y la contraseña.</translation>
    </message>
    <message>
        <source>The account can be used without a password.</source>
        <translation>La cuenta se puede usar sin contraseña.</translation>
    </message>
    <message>
        <source>The password is missing.</source>
        <translation>Falta la contraseña.</translation>
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
        <translation>Avanzado</translation>
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
        <translation>No se pudo copiar la imagen «%1» en el perfil: %2</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be written.</source>
        <translation>No se puede escribir en la carpeta «%1».</translation>
    </message>
</context>
<context>
    <name>KirvAvatarQuickSetWidget</name>
    <message>
        <source>Picture of the account</source>
        <translation>Imagen de la cuenta</translation>
    </message>
    <message>
        <source>Click to choose a picture, or drop or paste one here</source>
        <translation>Haga clic para elegir una imagen, o arrastre o pegue una aquí</translation>
    </message>
    <message>
        <source>&amp;Choose Picture…</source>
        <translation>&amp;Elegir imagen…</translation>
    </message>
    <message>
        <source>&amp;Paste Picture</source>
        <translation>&amp;Pegar imagen</translation>
    </message>
    <message>
        <source>&amp;Remove Picture</source>
        <translation>&amp;Quitar imagen</translation>
    </message>
    <message>
        <source>Choose Picture</source>
        <translation>Elegir imagen</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Imágenes (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The picture cannot be stored on this computer.</source>
        <translation>No se puede guardar la imagen en este equipo.</translation>
    </message>
    <message>
        <source>Picture of the Account</source>
        <translation>Imagen de la cuenta</translation>
    </message>
</context>
<context>
    <name>KirvBoundedImage</name>
    <message>
        <source>The picture is too large: %1 × %2 pixels. Up to %3 million pixels are possible.</source>
        <translation>La imagen es demasiado grande: %1 × %2 píxeles. Se admiten hasta %3 millones de píxeles.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is too large. Up to %2 MB are possible.</source>
        <translation>El archivo «%1» es demasiado grande. Se admiten hasta %2 MB.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is not a picture that can be used. Pictures in the formats PNG, JPEG, GIF, BMP and WebP are possible.</source>
        <translation>El archivo «%1» no es una imagen que se pueda usar. Se admiten imágenes en los formatos PNG, JPEG, GIF, BMP y WebP.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read.</source>
        <translation>No se puede leer el archivo «%1».</translation>
    </message>
    <message>
        <source>The picture in the file &quot;%1&quot; is damaged.</source>
        <translation>La imagen del archivo «%1» está dañada.</translation>
    </message>
    <message>
        <source>There is no picture that can be used.</source>
        <translation>No hay ninguna imagen que se pueda usar.</translation>
    </message>
</context>
<context>
    <name>KirvCertificateQuestion</name>
    <message>
        <source>Trusted Certificate</source>
        <extracomment>%1 = name of a server</extracomment>
        <translation>Certificado de confianza</translation>
    </message>
    <message>
        <source>Certificate of %1</source>
        <translation>Certificado de %1</translation>
    </message>
    <message>
        <source>What is wrong with the certificate</source>
        <translation>Lo que está mal en el certificado</translation>
    </message>
    <message>
        <source>Somebody between you and the server could read your password.</source>
        <translation>Alguien entre usted y el servidor podría leer su contraseña.</translation>
    </message>
    <message>
        <source>You have chosen to trust this certificate for the account %1.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Usted decidió confiar en este certificado para la cuenta %1.</translation>
    </message>
    <message>
        <source>The server shows another certificate than the one that you have trusted for the account %1.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>El servidor presenta un certificado distinto de aquel en el que usted confió para la cuenta %1.</translation>
    </message>
    <message>
        <source>The certificate of the server of the account %1 is not trusted.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>El certificado del servidor de la cuenta %1 no es de confianza.</translation>
    </message>
    <message>
        <source>Trusted so far</source>
        <extracomment>the fingerprint of the certificate that was trusted so far</extracomment>
        <translation>De confianza hasta ahora</translation>
    </message>
    <message>
        <source>%1:</source>
        <extracomment>the caption of a line: %1 = what it is about</extracomment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>&amp;Trust for This Account</source>
        <translation>Con&amp;fiar para esta cuenta</translation>
    </message>
    <message>
        <source>&amp;Stop Trusting</source>
        <translation>&amp;Dejar de confiar</translation>
    </message>
    <message>
        <source>&amp;Do Not Connect</source>
        <translation>&amp;No conectar</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>KirvClient</name>
    <message>
        <source>Accounts</source>
        <translation>Cuentas</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Complementos</translation>
    </message>
    <message>
        <source>There is no folder %1, so no protocol is available.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation>No existe la carpeta %1, por lo que no hay ningún protocolo disponible.</translation>
    </message>
    <message>
        <source>The link cannot be opened: the protocol %1 is not available.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>No se puede abrir el enlace: el protocolo %1 no está disponible.</translation>
    </message>
    <message>
        <source>%1 is the main account now, because %2 was removed.</source>
        <translation>%1 es ahora la cuenta principal porque se eliminó %2.</translation>
    </message>
    <message>
        <source>%1 is the main account now, because %2 was disabled.</source>
        <translation>%1 es ahora la cuenta principal porque se desactivó %2.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = name of an account, %2 = one or more sentences about it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>One password was moved to your keyring.</source>
        <translation>Se movió una contraseña a su depósito de claves.</translation>
    </message>
    <message numerus="yes">
        <source>%n passwords were moved to your keyring.</source>
        <translation>
            <numerusform>Se movió %n contraseña a su depósito de claves.</numerusform>
            <numerusform>Se movieron %n contraseñas a su depósito de claves.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n passwords were moved to your keyring, which is %1.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>
            <numerusform>Se movió %n contraseña a su depósito de claves (%1).</numerusform>
            <numerusform>Se movieron %n contraseñas a su depósito de claves (%1).</numerusform>
        </translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>The link was not opened because another window waits for an answer. Close that, and open the link again.</source>
        <translation>No se abrió el enlace porque otra ventana espera una respuesta. Ciérrela y abra de nuevo el enlace.</translation>
    </message>
    <message>
        <source>The link was not opened because it is too long.</source>
        <translation>El enlace no se abrió porque es demasiado largo.</translation>
    </message>
</context>
<context>
    <name>KirvClientOptions</name>
    <message>
        <source>The option --%1 needs a folder.</source>
        <extracomment>%1 = name of an option</extracomment>
        <translation>La opción --%1 necesita una carpeta.</translation>
    </message>
    <message>
        <source>Say whether the profile is damaged, list its copies and end: with 0 when it can be used, 2 when it is damaged, and 1 when it cannot be used for another reason.</source>
        <translation>Indicar si el perfil está dañado, enumerar sus copias y terminar: con 0 cuando se puede usar, 2 cuando está dañado y 1 cuando no se puede usar por otro motivo.</translation>
    </message>
    <message>
        <source>Put a copy in the place of the profile&apos;s database and end: the newest, or the one that is named. Passwords are in no copy.</source>
        <translation>Poner una copia en el lugar de la base de datos del perfil y terminar: la más reciente, o la que se indique. Ninguna copia contiene contraseñas.</translation>
    </message>
    <message>
        <source>Read what is still readable of the profile&apos;s damaged database, keep that, and end.</source>
        <translation>Leer lo que aún sea legible de la base de datos dañada del perfil, conservarlo y terminar.</translation>
    </message>
    <message>
        <source>The copy to restore.</source>
        <translation>La copia que se va a restaurar.</translation>
    </message>
    <message>
        <source>[copy]</source>
        <translation>[copia]</translation>
    </message>
    <message>
        <source>A link that begins with xmpp:, irc: or ircs: opens the window for a new account of that protocol.</source>
        <translation>Un enlace que empiece por xmpp:, irc: o ircs: abre la ventana de una cuenta nueva de ese protocolo.</translation>
    </message>
    <message>
        <source>[link]</source>
        <translation>[enlace]</translation>
    </message>
    <message>
        <source>The options %1 and %2 cannot be used together.</source>
        <extracomment>%1, %2 = names of options</extracomment>
        <translation>Las opciones %1 y %2 no se pueden usar juntas.</translation>
    </message>
    <message>
        <source>The argument &quot;%1&quot; is not known.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>No se reconoce el argumento «%1».</translation>
    </message>
    <message>
        <source>Keep accounts and settings in &lt;folder&gt; instead of the user&apos;s own profile.</source>
        <translation>Guardar las cuentas y los ajustes en &lt;carpeta&gt; en lugar del perfil personal.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>carpeta</translation>
    </message>
    <message>
        <source>Load the protocol plug-ins of &lt;folder&gt;.</source>
        <translation>Cargar los complementos de protocolo de &lt;carpeta&gt;.</translation>
    </message>
    <message>
        <source>Accounts of several instant-messaging protocols in one place.
&quot;kirv accounts --help&quot; says how accounts are listed, enabled, disabled, exported and imported without windows.</source>
        <translation>Cuentas de varios protocolos de mensajería instantánea en un solo lugar.
«kirv accounts --help» explica cómo enumerar, activar, desactivar, exportar e importar cuentas sin ventanas.</translation>
    </message>
</context>
<context>
    <name>KirvCommandFile</name>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2</source>
        <extracomment>%1 = path of a file, %2 = what the system says</extracomment>
        <translation>No se puede leer el archivo «%1»: %2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is too large to be a file of exported accounts.</source>
        <translation>El archivo «%1» es demasiado grande para ser un archivo de cuentas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file that can be overwritten.</source>
        <translation>«%1» no es un archivo que se pueda sobrescribir.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists already. Use --force to overwrite it.</source>
        <translation>El archivo «%1» ya existe. Con --force se sobrescribe.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written.</source>
        <translation>No se puede escribir el archivo «%1».</translation>
    </message>
    <message>
        <source>The standard output cannot be written.</source>
        <translation>No se puede escribir en la salida estándar.</translation>
    </message>
</context>
<context>
    <name>KirvConnection</name>
    <message>
        <source>The account is not connected.</source>
        <translation>La cuenta no está conectada.</translation>
    </message>
</context>
<context>
    <name>KirvDamagedProfile</name>
    <message>
        <source>The copy of %1 was restored. Accounts: %2.</source>
        <extracomment>%1 = date and time, %2 = number of accounts</extracomment>
        <translation>Se restauró la copia de %1. Cuentas: %2.</translation>
    </message>
    <message>
        <source>Passwords and other secret settings are in no copy and have to be entered again.</source>
        <translation>Las contraseñas y otros ajustes secretos no están en ninguna copia y hay que introducirlos de nuevo.</translation>
    </message>
    <message>
        <source>Everything could be read.</source>
        <translation>Se pudo leer todo.</translation>
    </message>
    <message>
        <source>Only a part could be read. Accounts or settings are missing.</source>
        <translation>Solo se pudo leer una parte. Faltan cuentas o ajustes.</translation>
    </message>
    <message>
        <source>Accounts: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Cuentas: %1</translation>
    </message>
    <message>
        <source>Settings of accounts: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Ajustes de cuentas: %1</translation>
    </message>
    <message>
        <source>Passwords and other secret settings: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Contraseñas y otros ajustes secretos: %1</translation>
    </message>
    <message>
        <source>Settings of the program: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Ajustes del programa: %1</translation>
    </message>
    <message>
        <source>The profile has no accounts now.</source>
        <translation>El perfil ya no tiene cuentas.</translation>
    </message>
    <message>
        <source>The database that was there is kept in &quot;%1&quot;, with the passwords in it. Delete it when it is no longer needed.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>La base de datos anterior se conserva en «%1», con las contraseñas. Elimínela cuando ya no la necesite.</translation>
    </message>
</context>
<context>
    <name>KirvDatabase</name>
    <message>
        <source>The SQLite driver of Qt, which the profile needs, is not installed.</source>
        <translation>El controlador SQLite de Qt, que el perfil necesita, no está instalado.</translation>
    </message>
    <message>
        <source>The profile is not open.</source>
        <translation>El perfil no está abierto.</translation>
    </message>
    <message>
        <source>There is no space left on the disk, so nothing was stored. Free some space and try again.</source>
        <translation>No queda espacio en el disco, por lo que no se guardó nada. Libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; could not be read or written (%2). The disk may be full or faulty.</source>
        <translation>No se pudo leer o escribir el perfil de «%1» (%2). Puede que el disco esté lleno o defectuoso.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is damaged, so nothing was stored. Start the program again to see what can be done.</source>
        <translation>El perfil de «%1» está dañado, por lo que no se guardó nada. Inicie de nuevo el programa para ver qué se puede hacer.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; cannot be written. Check its owner and permissions.</source>
        <translation>No se puede escribir en el perfil de «%1». Compruebe su propietario y sus permisos.</translation>
    </message>
    <message>
        <source>Another program is using the profile in &quot;%1&quot;.</source>
        <translation>Otro programa está usando el perfil de «%1».</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; could not be used: %2</source>
        <translation>No se pudo usar el perfil de «%1»: %2</translation>
    </message>
</context>
<context>
    <name>KirvDemo</name>
    <message>
        <source>No temporary folder for the profile can be made: %1</source>
        <translation>No se puede crear una carpeta temporal para el perfil: %1</translation>
    </message>
    <message>
        <source>The demo needs the XMPP server Prosody (the package prosody), which did not start: %1</source>
        <translation>La demostración necesita el servidor XMPP Prosody (el paquete prosody), que no se inició: %1</translation>
    </message>
    <message>
        <source>This is a try-out with a profile of its own; nothing is kept. A private XMPP server runs on this computer. Add an XMPP account, choose the configuration &quot;Server on this computer&quot; and type the login %1 and the password %2.</source>
        <translation>Esto es una prueba con un perfil propio; no se conserva nada. En este equipo funciona un servidor XMPP privado. Añada una cuenta XMPP, elija la plantilla «Servidor en este equipo» e introduzca el nombre de usuario %1 y la contraseña %2.</translation>
    </message>
    <message>
        <source>A private IRC server runs too: add an IRC account with the same configuration, with any nickname and any password.</source>
        <translation>También funciona un servidor IRC privado: añada una cuenta IRC con la misma plantilla, con cualquier apodo y cualquier contraseña.</translation>
    </message>
</context>
<context>
    <name>KirvDirectoryGuard</name>
    <message>
        <source>&amp;Fetch Again</source>
        <translation>Obtener de nue&amp;vo</translation>
    </message>
    <message>
        <source>Publishing the directory entry…</source>
        <translation>Publicando la entrada del directorio…</translation>
    </message>
    <message>
        <source>Requesting the directory entry…</source>
        <translation>Solicitando la entrada del directorio…</translation>
    </message>
    <message>
        <source>The account must be connected before its directory entry can be read or changed.</source>
        <translation>La cuenta debe estar conectada para que se pueda leer o cambiar su entrada del directorio.</translation>
    </message>
    <message>
        <source>The directory entry is not known. Fetch it again to change it.</source>
        <translation>No se conoce la entrada del directorio. Obténgala de nuevo para cambiarla.</translation>
    </message>
    <message>
        <source>Nothing was saved, because the entry cannot be published like this. Correct what is marked.</source>
        <translation>No se guardó nada, porque la entrada no se puede publicar así. Corrija lo que está marcado.</translation>
    </message>
    <message>
        <source>The account was saved, but its directory entry was not published, as the account is not connected. Save again when it is.</source>
        <translation>La cuenta se guardó, pero su entrada del directorio no se publicó, porque la cuenta no está conectada. Guarde de nuevo cuando lo esté.</translation>
    </message>
</context>
<context>
    <name>KirvEditWindowCompanion</name>
    <message>
        <source>&amp;Server Account</source>
        <translation>Cuenta en e&amp;l servidor</translation>
    </message>
    <message>
        <source>What can be done with the account on its server.</source>
        <translation>Lo que se puede hacer con la cuenta en su servidor.</translation>
    </message>
    <message>
        <source>Saving Account</source>
        <translation>Guardar la cuenta</translation>
    </message>
    <message>
        <source>Nothing was changed. The window stays open, so that you can try again.</source>
        <translation>No se cambió nada. La ventana sigue abierta para que pueda intentarlo de nuevo.</translation>
    </message>
    <message>
        <source>Picture of the Account</source>
        <translation>Imagen de la cuenta</translation>
    </message>
    <message>
        <source>The picture was not changed.</source>
        <translation>No se cambió la imagen.</translation>
    </message>
    <message>
        <source>None is stored</source>
        <translation>No hay ninguna guardada</translation>
    </message>
</context>
<context>
    <name>KirvExportWindow</name>
    <message>
        <source>Export Accounts</source>
        <translation>Exportar cuentas</translation>
    </message>
    <message>
        <source>Include &amp;passwords (encrypted)</source>
        <translation>&amp;Incluir las contraseñas (cifradas)</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Several words that are not related are easy to remember and hard to guess. Whoever has the file and guesses the pass phrase has your passwords; without it, nobody can read them, not even you.</source>
        <translation>Varias palabras que no guardan relación entre sí son fáciles de recordar y difíciles de adivinar. Quien tenga el archivo y adivine la frase de contraseña tendrá sus contraseñas; sin ella nadie puede leerlas, ni siquiera usted.</translation>
    </message>
    <message>
        <source>Pass p&amp;hrase:</source>
        <translation>&amp;Frase de contraseña:</translation>
    </message>
    <message>
        <source>&amp;Repeat pass phrase:</source>
        <translation>&amp;Repetir la frase:</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportar…</translation>
    </message>
    <message>
        <source>Choose the file to which the accounts are written.</source>
        <translation>Elegir el archivo en el que se escriben las cuentas.</translation>
    </message>
    <message>
        <source>The two pass phrases must be the same.</source>
        <translation>La frase de contraseña y su repetición deben coincidir.</translation>
    </message>
    <message>
        <source>Exported accounts (*.json)</source>
        <translation>Cuentas exportadas (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The export was cancelled; nothing was written.</source>
        <translation>Se canceló la exportación; no se escribió nada.</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were exported to %1.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>
            <numerusform>Se exportó %n cuenta a %1.</numerusform>
            <numerusform>Se exportaron %n cuentas a %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file contains no passwords.</source>
        <translation>El archivo no contiene contraseñas.</translation>
    </message>
    <message>
        <source>The following is not in the file:</source>
        <translation>Lo siguiente no está en el archivo:</translation>
    </message>
    <message>
        <source>The stored passwords are in it, encrypted with the pass phrase.</source>
        <translation>Las contraseñas guardadas están en él, cifradas con la frase de contraseña.</translation>
    </message>
</context>
<context>
    <name>KirvFailure</name>
    <message>
        <source>The server did not accept the login or the password.</source>
        <translation>El servidor no aceptó el nombre de usuario o la contraseña.</translation>
    </message>
    <message>
        <source>A password is needed to log in, and none is known.</source>
        <translation>Se necesita una contraseña para iniciar sesión y no se conoce ninguna.</translation>
    </message>
    <message>
        <source>The server could not be found. Check its name and your network connection.</source>
        <translation>No se pudo encontrar el servidor. Compruebe su nombre y su conexión de red.</translation>
    </message>
    <message>
        <source>The server does not accept connections. Check its name and port, or try again later.</source>
        <translation>El servidor no acepta conexiones. Compruebe su nombre y su puerto, o inténtelo más tarde.</translation>
    </message>
    <message>
        <source>The server did not answer in time.</source>
        <translation>El servidor no respondió a tiempo.</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted.</source>
        <translation>El certificado del servidor no es de confianza.</translation>
    </message>
    <message>
        <source>The account requires encryption, and the server does not offer it.</source>
        <translation>La cuenta exige cifrado y el servidor no lo ofrece.</translation>
    </message>
    <message>
        <source>The server offers no way to log in that this account can use.</source>
        <translation>El servidor no ofrece ninguna forma de iniciar sesión que esta cuenta pueda usar.</translation>
    </message>
    <message>
        <source>The server cannot log the account in at the moment.</source>
        <translation>El servidor no puede iniciar la sesión de la cuenta en este momento.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>Se perdió la conexión con el servidor.</translation>
    </message>
    <message>
        <source>The server closed the connection.</source>
        <translation>El servidor cerró la conexión.</translation>
    </message>
    <message>
        <source>Another client logged in to the account and took its place.</source>
        <translation>Otro cliente inició sesión en la cuenta y ocupó el lugar de este.</translation>
    </message>
    <message>
        <source>The name is already in use on the server.</source>
        <translation>El nombre ya está en uso en el servidor.</translation>
    </message>
    <message>
        <source>The server does not allow this name.</source>
        <translation>El servidor no permite este nombre.</translation>
    </message>
    <message>
        <source>The proxy cannot be reached. Check its name and port and your network connection.</source>
        <translation>No se puede acceder al proxy. Compruebe su nombre y su puerto, y su conexión de red.</translation>
    </message>
    <message>
        <source>The proxy did not connect to the server in time.</source>
        <translation>El proxy no se conectó a tiempo con el servidor.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user or the password.</source>
        <translation>El proxy no aceptó el usuario o la contraseña.</translation>
    </message>
    <message>
        <source>The proxy does not allow a connection to the server.</source>
        <translation>El proxy no permite una conexión con el servidor.</translation>
    </message>
    <message>
        <source>The connection through the proxy failed.</source>
        <translation>La conexión a través del proxy falló.</translation>
    </message>
    <message>
        <source>The system did not say in time which proxy to use, so no connection was made.</source>
        <translation>El sistema no indicó a tiempo qué proxy usar, por lo que no se estableció ninguna conexión.</translation>
    </message>
    <message>
        <source>The server denied access.</source>
        <translation>El servidor denegó el acceso.</translation>
    </message>
    <message>
        <source>The settings of the account cannot be used.</source>
        <translation>Los ajustes de la cuenta no se pueden usar.</translation>
    </message>
    <message>
        <source>The server does not offer what was requested.</source>
        <translation>El servidor no ofrece lo que se solicitó.</translation>
    </message>
    <message>
        <source>The request failed.</source>
        <translation>La solicitud falló.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Se produjo un error desconocido.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; could not be found. Check its name and your network connection.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>No se pudo encontrar el servidor «%1». Compruebe su nombre y su conexión de red.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; does not accept connections. Check its name and port, or try again later.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>El servidor «%1» no acepta conexiones. Compruebe su nombre y su puerto, o inténtelo más tarde.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not answer in time.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>El servidor «%1» no respondió a tiempo.</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: %1</source>
        <extracomment>%1 is what is wrong with the certificate</extracomment>
        <translation>El certificado del servidor no es de confianza: %1</translation>
    </message>
    <message>
        <source>The server cannot log the account in at the moment: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>El servidor no puede iniciar la sesión de la cuenta en este momento: %1</translation>
    </message>
    <message>
        <source>The connection to the server was lost: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>Se perdió la conexión con el servidor: %1</translation>
    </message>
    <message>
        <source>The server closed the connection: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>El servidor cerró la conexión: %1</translation>
    </message>
    <message>
        <source>Another client logged in to the account and took its place: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>Otro cliente inició sesión en la cuenta y ocupó el lugar de este: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is already in use on the server.</source>
        <extracomment>%1 is the name of a user</extracomment>
        <translation>El nombre «%1» ya está en uso en el servidor.</translation>
    </message>
    <message>
        <source>The server does not allow the name &quot;%1&quot;.</source>
        <extracomment>%1 is the name of a user</extracomment>
        <translation>El servidor no permite el nombre «%1».</translation>
    </message>
    <message>
        <source>The server denied access: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>El servidor denegó el acceso: %1</translation>
    </message>
    <message>
        <source>The settings of the account cannot be used: %1</source>
        <extracomment>%1 says which setting and what is wrong with it</extracomment>
        <translation>Los ajustes de la cuenta no se pueden usar: %1</translation>
    </message>
    <message>
        <source>The server does not offer what was requested: %1</source>
        <extracomment>%1 is what was requested</extracomment>
        <translation>El servidor no ofrece lo que se solicitó: %1</translation>
    </message>
    <message>
        <source>The request failed: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>La solicitud falló: %1</translation>
    </message>
    <message>
        <source>An error occurred: %1</source>
        <extracomment>%1 is what the server or the network said</extracomment>
        <translation>Se produjo un error: %1</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its name and port and your network connection.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>No se puede acceder al proxy %1. Compruebe su nombre y su puerto, y su conexión de red.</translation>
    </message>
    <message>
        <source>The proxy %1 did not connect to the server in time.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>El proxy %1 no se conectó a tiempo con el servidor.</translation>
    </message>
    <message>
        <source>The proxy %1 did not accept the user or the password.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>El proxy %1 no aceptó el usuario o la contraseña.</translation>
    </message>
    <message>
        <source>The proxy %1 does not allow a connection to the server.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>El proxy %1 no permite una conexión con el servidor.</translation>
    </message>
    <message>
        <source>The connection through the proxy failed: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>La conexión a través del proxy falló: %1</translation>
    </message>
    <message>
        <source>The connection ended before the server answered.</source>
        <translation>La conexión terminó antes de que respondiera el servidor.</translation>
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
        <translation>Formato no válido.</translation>
    </message>
    <message>
        <source>Invalid format: %1</source>
        <translation>Formato no válido: %1</translation>
    </message>
    <message>
        <source>This must be filled in.</source>
        <translation>Es obligatorio rellenar este campo.</translation>
    </message>
    <message>
        <source>This text is too long to be shown in full and to be changed here.</source>
        <translation>Este texto es demasiado largo para mostrarse entero y cambiarse aquí.</translation>
    </message>
    <message>
        <source>This text is too long to be shown in full. It is kept as long as nothing is changed here.</source>
        <translation>Este texto es demasiado largo para mostrarse entero. Se conserva mientras no se cambie nada aquí.</translation>
    </message>
    <message>
        <source>This must be a whole number from %1 to %2.</source>
        <translation>El valor debe ser un número entero de %1 a %2.</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obligatorio</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>Sin elegir</translation>
    </message>
</context>
<context>
    <name>KirvFileButton</name>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Choose the file.</source>
        <translation>Elegir el archivo.</translation>
    </message>
    <message>
        <source>Choose the file for %1</source>
        <extracomment>%1 = what the file is, as &quot;Trusted certificate&quot;</extracomment>
        <translation>Elegir el archivo para «%1»</translation>
    </message>
    <message>
        <source>Certificates and keys (*.pem *.crt *.cer *.key)</source>
        <translation>Certificados y claves (*.pem *.crt *.cer *.key)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>KirvGeneralPage</name>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>&amp;Language of the program:</source>
        <translation>&amp;Idioma del programa:</translation>
    </message>
    <message>
        <source>As the system (%1)</source>
        <extracomment>entry of a list of languages; %1 = the language of the system in its own words, as &quot;Deutsch&quot;</extracomment>
        <translation>Como el sistema (%1)</translation>
    </message>
    <message>
        <source>No native speaker has read these texts yet.</source>
        <translation>Ningún hablante nativo ha leído todavía estos textos.</translation>
    </message>
    <message>
        <source>The language changes when the open windows are closed.</source>
        <translation>El idioma cambia cuando se cierran las ventanas abiertas.</translation>
    </message>
    <message>
        <source>Passwords</source>
        <translation>Contraseñas</translation>
    </message>
    <message>
        <source>&amp;Unlock…</source>
        <translation>&amp;Desbloquear…</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Your accounts and settings are in the folder %1.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation>Sus cuentas y ajustes están en la carpeta %1.</translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation>&amp;Abrir la carpeta</translation>
    </message>
    <message>
        <source>Shows the folder in the file manager.</source>
        <translation>Muestra la carpeta en el gestor de archivos.</translation>
    </message>
    <message>
        <source>Copies of the profile</source>
        <translation>Copias del perfil</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Cuentas</translation>
    </message>
    <message>
        <source>There are no copies of the profile yet.</source>
        <translation>Todavía no hay copias del perfil.</translation>
    </message>
    <message>
        <source>Copies of the profile, without passwords; one can be restored when the profile is damaged:</source>
        <translation>Copias del perfil, sin contraseñas; se puede restaurar una si el perfil está dañado:</translation>
    </message>
    <message>
        <source>&amp;Export Accounts…</source>
        <translation>&amp;Exportar cuentas…</translation>
    </message>
    <message>
        <source>Writes accounts to a file that can be imported on another computer.</source>
        <translation>Escribe cuentas en un archivo que se puede importar en otro equipo.</translation>
    </message>
    <message>
        <source>&amp;Import Accounts…</source>
        <translation>I&amp;mportar cuentas…</translation>
    </message>
    <message>
        <source>Takes accounts over from such a file, or from Pidgin.</source>
        <translation>Importa cuentas de un archivo de este tipo o de Pidgin.</translation>
    </message>
    <message>
        <source>The keyring asks you to unlock it. Then the passwords that accounts wait for are read, and those that are in a file are moved.</source>
        <translation>El depósito de claves le pide que lo desbloquee. Entonces se leen las contraseñas que esperan las cuentas y se trasladan las que están en un archivo.</translation>
    </message>
</context>
<context>
    <name>KirvImportWindow</name>
    <message>
        <source>Import Accounts</source>
        <translation>Importar cuentas</translation>
    </message>
    <message>
        <source>About the file</source>
        <translation>Acerca del archivo</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>Qué ocurre</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Omitido</translation>
    </message>
    <message>
        <source>&amp;Pass phrase:</source>
        <translation>&amp;Frase de contraseña:</translation>
    </message>
    <message>
        <source>Choose Another &amp;File…</source>
        <translation>Elegir &amp;otro archivo…</translation>
    </message>
    <message>
        <source>&amp;Without Passwords</source>
        <translation>&amp;Sin contraseñas</translation>
    </message>
    <message>
        <source>Lists the accounts; their passwords have to be entered here.</source>
        <translation>Muestra las cuentas; sus contraseñas habrá que introducirlas aquí.</translation>
    </message>
    <message>
        <source>Exported accounts, accounts of Pidgin (*.json *.xml)</source>
        <translation>Cuentas exportadas, cuentas de Pidgin (*.json *.xml)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The file %1 is being read…</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Leyendo el archivo %1…</translation>
    </message>
    <message>
        <source>The file %1 contains passwords. Enter the pass phrase with which they are encrypted.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>El archivo %1 contiene contraseñas. Introduzca la frase de contraseña con la que están cifradas.</translation>
    </message>
    <message>
        <source>The accounts in the file %1 cannot be imported.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>No se pueden importar las cuentas del archivo %1.</translation>
    </message>
    <message>
        <source>The file %1 contains no accounts that can be imported.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>No hay cuentas que se puedan importar en el archivo %1.</translation>
    </message>
    <message>
        <source>The file %1 contains these accounts. Nothing is changed before you import them, and the import can be undone.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Estas cuentas están en el archivo %1. No se cambia nada hasta que las importe, y la importación se puede deshacer.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Import %n Accounts</source>
        <translation>
            <numerusform>&amp;Importar %n cuenta</numerusform>
            <numerusform>&amp;Importar %n cuentas</numerusform>
        </translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nueva</translation>
    </message>
    <message>
        <source>New, will be left out</source>
        <translation>Nueva, se omite</translation>
    </message>
    <message>
        <source>Exists, will be replaced</source>
        <translation>Existe aquí, se sustituye</translation>
    </message>
    <message>
        <source>Exists, will be kept</source>
        <translation>Existe aquí, se conserva</translation>
    </message>
    <message>
        <source>Exists as %1, will be replaced</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>Existe aquí como %1, se sustituye</translation>
    </message>
    <message>
        <source>Exists as %1, will be kept</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>Existe aquí como %1, se conserva</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = the login of an account, %2 = a sentence about it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The following is not imported:</source>
        <translation>Lo siguiente no se importa:</translation>
    </message>
    <message>
        <source>Exists, will be replaced; its passwords must be entered again</source>
        <translation>Existe aquí, se sustituye; hay que volver a introducir sus contraseñas</translation>
    </message>
    <message>
        <source>Exists as %1, will be replaced; its passwords must be entered again</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>Existe aquí como %1, se sustituye; hay que volver a introducir sus contraseñas</translation>
    </message>
</context>
<context>
    <name>KirvInstanceMessage</name>
    <message>
        <source>The program that runs with this profile has another version. Quit it, and try again.</source>
        <translation>El programa que se ejecuta con este perfil tiene otra versión. Salga de él e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The message of the other program cannot be read.</source>
        <translation>No se puede leer el mensaje del otro programa.</translation>
    </message>
    <message>
        <source>The program that runs with this profile does not have that command.</source>
        <translation>El programa que se ejecuta con este perfil no conoce esa orden.</translation>
    </message>
</context>
<context>
    <name>KirvIrcConnection</name>
    <message>
        <source>The server sent a line that is longer than lines can be.</source>
        <translation>El servidor envió una línea más larga de lo permitido.</translation>
    </message>
    <message>
        <source>There is no certificate in the file &quot;%1&quot;.</source>
        <translation>No hay ningún certificado en el archivo «%1».</translation>
    </message>
    <message>
        <source>There is no private key that can be used in the file &quot;%1&quot;.</source>
        <translation>No hay ninguna clave privada que se pueda usar en el archivo «%1».</translation>
    </message>
    <message>
        <source>Other users of this computer can read or change the key file &quot;%1&quot;. Only its owner should.</source>
        <translation>Otros usuarios de este equipo pueden leer o cambiar el archivo de clave «%1». Solo debería poder hacerlo su propietario.</translation>
    </message>
    <message>
        <source>It does not offer SASL now, as it did before.</source>
        <translation>Ahora no ofrece SASL, aunque antes sí lo ofrecía.</translation>
    </message>
    <message>
        <source>The nick &quot;%1&quot; could not be had; you are &quot;%2&quot; on this server now.</source>
        <translation>No se pudo obtener el apodo «%1»; ahora es «%2» en este servidor.</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>%1 is what a server says first, as &quot;You are banned&quot;, %2 what it says when it closes the connection</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>password of the server</source>
        <translation>contraseña del servidor</translation>
    </message>
    <message>
        <source>no password</source>
        <translation>sin contraseña</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is the encryption, as &quot;TLSv1.3&quot;, %2 how the user has proved who he is, as &quot;SASL PLAIN&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not encrypted</source>
        <translation>sin cifrar</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Ausente</translation>
    </message>
    <message>
        <source>The server does not answer any more.</source>
        <translation>El servidor ya no responde.</translation>
    </message>
</context>
<context>
    <name>KirvIrcProtocol</name>
    <message>
        <source>Internet Relay Chat: conversations in channels of a network of servers.</source>
        <translation>Internet Relay Chat: conversaciones en canales de una red de servidores.</translation>
    </message>
    <message>
        <source>anna, or anna@irc.example.org</source>
        <translation>anna o anna@irc.example.org</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponible</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Ausente</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Desconectado</translation>
    </message>
</context>
<context>
    <name>KirvIrcSasl</name>
    <message>
        <source>The password is longer than the server accepts.</source>
        <translation>La contraseña es más larga de lo que acepta el servidor.</translation>
    </message>
    <message>
        <source>It has ended SASL before it was done.</source>
        <translation>Terminó SASL antes de que se completara.</translation>
    </message>
    <message>
        <source>The client certificate is not known there.</source>
        <translation>El certificado de cliente no se conoce allí.</translation>
    </message>
</context>
<context>
    <name>KirvIrcSettings</name>
    <message>
        <source>&quot;%1&quot; cannot be a nick.</source>
        <translation>«%1» no puede ser un apodo.</translation>
    </message>
    <message>
        <source>No server is given.</source>
        <translation>No se indicó ningún servidor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a server.</source>
        <translation>«%1» no es el nombre de un servidor.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>El puerto debe ser un número de 1 a 65535.</translation>
    </message>
    <message>
        <source>There is a key of a client certificate, but no client certificate.</source>
        <translation>Hay una clave de un certificado de cliente, pero ningún certificado de cliente.</translation>
    </message>
    <message>
        <source>A client certificate can be used with encryption only.</source>
        <translation>Un certificado de cliente solo se puede usar con cifrado.</translation>
    </message>
    <message>
        <source>The password cannot be sent: it is too long or has characters that do not belong to a line.</source>
        <translation>No se puede enviar la contraseña: es demasiado larga o tiene caracteres que no pueden formar parte de una línea.</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>The name or address of the server. When it is empty, the part of the login after the @ is the server.</source>
        <translation>El nombre o la dirección del servidor. Si está vacío, el servidor es la parte del nombre de usuario que sigue a la @.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Cifrado</translation>
    </message>
    <message>
        <source>Required (TLS)</source>
        <translation>Obligatorio (TLS)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>With encryption the server must also prove who it is. Without, everybody on the way can read along.</source>
        <translation>Con el cifrado, el servidor también debe demostrar quién es. Sin él, cualquiera en el camino puede leer lo que se envía.</translation>
    </message>
    <message>
        <source>Trusted certificate</source>
        <translation>Certificado de confianza</translation>
    </message>
    <message>
        <source>The path of a file with a certificate (PEM) to trust besides those that this computer trusts already.</source>
        <translation>La ruta de un archivo con un certificado (PEM) en el que confiar además de aquellos en los que este equipo ya confía.</translation>
    </message>
    <message>
        <source>Use of the password</source>
        <translation>Uso de la contraseña</translation>
    </message>
    <message>
        <source>Not used</source>
        <translation>No se usa</translation>
    </message>
    <message>
        <source>Password of the server</source>
        <translation>Contraseña del servidor</translation>
    </message>
    <message>
        <source>Password of a registered nick (SASL)</source>
        <translation>Contraseña de un apodo registrado (SASL)</translation>
    </message>
    <message>
        <source>What the account&apos;s password is for. Most networks need none, unless you have registered your nick there.</source>
        <translation>Para qué sirve la contraseña de la cuenta. La mayoría de las redes no necesitan ninguna, a menos que haya registrado allí su apodo.</translation>
    </message>
    <message>
        <source>SASL user</source>
        <translation>Usuario de SASL</translation>
    </message>
    <message>
        <source>The name under which the nick is registered. Empty: the nick itself.</source>
        <translation>El nombre con el que está registrado el apodo. Vacío: el propio apodo.</translation>
    </message>
    <message>
        <source>Real name</source>
        <translation>Nombre real</translation>
    </message>
    <message>
        <source>What others see as your name when they ask for it. Empty: the nick.</source>
        <translation>Lo que ven los demás como su nombre cuando lo consultan. Vacío: el apodo.</translation>
    </message>
    <message>
        <source>Alternative nicks</source>
        <translation>Apodos alternativos</translation>
    </message>
    <message>
        <source>Nicks to try when yours is in use, separated by commas.</source>
        <translation>Apodos que se intentarán cuando el suyo esté en uso, separados por comas.</translation>
    </message>
    <message>
        <source>Client certificate</source>
        <translation>Certificado de cliente</translation>
    </message>
    <message>
        <source>The path of a file with a certificate of your own (PEM), to log in with instead of the password (SASL EXTERNAL). Empty: none.</source>
        <translation>La ruta de un archivo con un certificado propio (PEM) con el que iniciar sesión en lugar de la contraseña (SASL EXTERNAL). Vacío: ninguno.</translation>
    </message>
    <message>
        <source>Key of the client certificate</source>
        <translation>Clave del certificado de cliente</translation>
    </message>
    <message>
        <source>The path of the file with the certificate&apos;s private key (PEM, without a password). Empty: it is in the certificate&apos;s file.</source>
        <translation>La ruta del archivo con la clave privada del certificado (PEM, sin contraseña). Vacío: está en el archivo del certificado.</translation>
    </message>
    <message>
        <source>Server on this computer</source>
        <translation>Servidor en este equipo</translation>
    </message>
    <message>
        <source>A nickname contains no blanks.</source>
        <translation>Un apodo no contiene espacios.</translation>
    </message>
    <message>
        <source>The nickname is missing.</source>
        <translation>Falta el apodo.</translation>
    </message>
    <message>
        <source>A nickname starts with a letter.</source>
        <translation>Un apodo empieza por una letra.</translation>
    </message>
    <message>
        <source>A nickname consists of unaccented letters, digits and the characters %1.</source>
        <translation>Un apodo consta de letras sin acento, cifras y los caracteres %1.</translation>
    </message>
    <message>
        <source>The server after the &quot;@&quot; is missing.</source>
        <translation>Falta el servidor después de la «@».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address of a server.</source>
        <translation>«%1» no es una dirección de servidor.</translation>
    </message>
    <message>
        <source>Usually 6697 with encryption and 6667 without. When the server is empty, a port in the login, as in ann@irc.example.org:6667, is used instead.</source>
        <translation>Normalmente 6697 con cifrado y 6667 sin él. Si el servidor está vacío y el nombre de usuario lleva un puerto, como en ann@irc.example.org:6667, se usa ese.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutCatalog</name>
    <message>
        <source>&quot;%1&quot; is a %2, but must be a %3.</source>
        <translation>«%1» es un %2, pero debe ser un %3.</translation>
    </message>
    <message>
        <source>There is no %1 named &quot;%2&quot;.</source>
        <translation>No hay ningún %1 llamado «%2».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no standard button %2.</source>
        <translation>«%1» no tiene el botón estándar %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs two tabs: the account and its directory entry.</source>
        <translation>«%1» necesita dos pestañas: la cuenta y su entrada del directorio.</translation>
    </message>
    <message>
        <source>The layout file %1 cannot be used; the built-in layout takes its place.
%2</source>
        <translation>El archivo de diseño %1 no se puede usar; el diseño incorporado ocupa su lugar.
%2</translation>
    </message>
    <message>
        <source>The window is a %1, but must be a %2.</source>
        <translation>La ventana es un %1, pero debe ser un %2.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutCheck</name>
    <message>
        <source>It declares a document type, which a layout cannot have.</source>
        <translation>Declara un tipo de documento, que un diseño no puede tener.</translation>
    </message>
    <message>
        <source>It is not a window layout of Qt Designer.</source>
        <translation>No es un diseño de ventana de Qt Designer.</translation>
    </message>
    <message>
        <source>Its elements are nested too deeply.</source>
        <translation>Sus elementos están anidados a demasiada profundidad.</translation>
    </message>
    <message>
        <source>It has too many widgets.</source>
        <translation>Tiene demasiados elementos gráficos.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>It connects widgets with each other, which only the program does.</source>
        <translation>Conecta elementos gráficos entre sí, cosa que solo hace el programa.</translation>
    </message>
    <message>
        <source>It has an element &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Tiene un elemento «%1», que un diseño no puede tener.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of an icon.</source>
        <translation>«%1» no es el nombre de un icono.</translation>
    </message>
    <message>
        <source>It has an attribute &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Tiene un atributo «%1», que un diseño no puede tener.</translation>
    </message>
    <message>
        <source>It has an attribute that is too long.</source>
        <translation>Tiene un atributo demasiado largo.</translation>
    </message>
    <message>
        <source>It has a row or column that is out of bounds: %1.</source>
        <translation>Tiene una fila o columna fuera de los límites: %1.</translation>
    </message>
    <message>
        <source>It has a number that is out of bounds: %1 (%2).</source>
        <translation>Tiene un número fuera de los límites: %1 (%2).</translation>
    </message>
    <message>
        <source>It has a text that can be read in more than one way: &quot;%1&quot;.</source>
        <translation>Tiene un texto que se puede leer de más de una manera: «%1».</translation>
    </message>
    <message>
        <source>It has a text of the format &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Tiene un texto con el formato «%1», que un diseño no puede tener.</translation>
    </message>
    <message>
        <source>It sets &quot;%1&quot; to a text, which a layout cannot do.</source>
        <translation>Asigna un texto a «%1», algo que un diseño no puede hacer.</translation>
    </message>
    <message>
        <source>Its style sheet contains &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Su hoja de estilo contiene «%1», que un diseño no puede tener.</translation>
    </message>
    <message>
        <source>Style sheets and rich texts name pictures by their whole path, &quot;%1&quot; does not.</source>
        <translation>Las hojas de estilo y los textos enriquecidos indican las imágenes con su ruta completa; «%1» no lo hace.</translation>
    </message>
    <message>
        <source>It has a rich text that is too large.</source>
        <translation>Tiene un texto enriquecido demasiado grande.</translation>
    </message>
    <message>
        <source>There is no picture &quot;%1&quot;.</source>
        <translation>No existe la imagen «%1».</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; is not in the folder of the layout.</source>
        <translation>La imagen «%1» no está en la carpeta del diseño.</translation>
    </message>
    <message>
        <source>It uses the unknown class %1.</source>
        <translation>Pide un elemento gráfico de la clase desconocida %1.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutFile</name>
    <message>
        <source>It uses the unknown class %1.</source>
        <translation>Pide un elemento gráfico de la clase desconocida %1.</translation>
    </message>
    <message>
        <source>It is not a window layout: %1</source>
        <translation>No es un diseño de ventana: %1</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>No es un archivo ordinario.</translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>No se puede leer: %1</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Está vacío.</translation>
    </message>
    <message>
        <source>It is larger than %1 kB.</source>
        <translation>Ocupa más de %1 kB.</translation>
    </message>
</context>
<context>
    <name>KirvLeftOut</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvLengthLimit</name>
    <message>
        <source>The text is too long here. At most %1 characters are kept.</source>
        <translation>El texto es demasiado largo aquí. Se conservan como máximo %1 caracteres.</translation>
    </message>
</context>
<context>
    <name>KirvLoginLine</name>
    <message>
        <source>A login cannot contain this.</source>
        <translation>Un nombre de usuario no puede contener esto.</translation>
    </message>
</context>
<context>
    <name>KirvLoginStep</name>
    <message>
        <source>Name look-up</source>
        <translation>Resolución del nombre</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Cifrado</translation>
    </message>
    <message>
        <source>Log-in</source>
        <translation>Inicio de sesión</translation>
    </message>
</context>
<context>
    <name>KirvLoginTest</name>
    <message>
        <source>The plug-in gives no connection.</source>
        <translation>El complemento no proporciona ninguna conexión.</translation>
    </message>
    <message>
        <source>The log-in works.</source>
        <translation>El inicio de sesión funciona.</translation>
    </message>
    <message>
        <source>The test was cancelled.</source>
        <translation>Se canceló la prueba.</translation>
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
        <translation>en curso</translation>
    </message>
    <message>
        <source>done</source>
        <translation>éxito</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>error</translation>
    </message>
    <message>
        <source>Test of a log-in, %1</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Prueba de un inicio de sesión, %1</translation>
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
        <translation>Inicio de sesión de %1</translation>
    </message>
</context>
<context>
    <name>KirvLoginTestView</name>
    <message>
        <source>Copy Report</source>
        <translation>Copiar el informe</translation>
    </message>
    <message>
        <source>Steps of the log-in</source>
        <translation>Pasos del inicio de sesión</translation>
    </message>
    <message>
        <source>Copies the steps and the versions of the program, without the password.</source>
        <translation>Copia los pasos y las versiones del programa, sin la contraseña.</translation>
    </message>
    <message>
        <source>Test Log-In</source>
        <translation>Probar el inicio de sesión</translation>
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
        <translation>Cancelar la prueba</translation>
    </message>
    <message>
        <source>Test Again</source>
        <translation>Probar de nuevo</translation>
    </message>
    <message>
        <source>Logs in once with what is here, and shows each step. Nothing is stored.</source>
        <translation>Inicia sesión una vez con lo que hay aquí y muestra cada paso. No se guarda nada.</translation>
    </message>
</context>
<context>
    <name>KirvMainAccountSelector</name>
    <message>
        <source>%1 (its plug-in is not loaded)</source>
        <extracomment>%1 = name of the main account</extracomment>
        <translation>%1 (su complemento no está cargado)</translation>
    </message>
</context>
<context>
    <name>KirvMessageBar</name>
    <message>
        <source>Messages</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Close this message.</source>
        <translation>Cerrar este mensaje.</translation>
    </message>
    <message>
        <source>Close This Message</source>
        <translation>Cerrar este mensaje</translation>
    </message>
</context>
<context>
    <name>KirvMoveDialog</name>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
</context>
<context>
    <name>KirvMovingCommands</name>
    <message>
        <source>Passwords of the account &quot;%1&quot; are left out: the keyring is locked.</source>
        <extracomment>%1 = name of an account, as XMPP:anna@example.org</extracomment>
        <translation>Se omiten contraseñas de la cuenta «%1»: el depósito de claves está bloqueado.</translation>
    </message>
    <message>
        <source>A pass phrase is needed.</source>
        <translation>Se necesita una frase de contraseña.</translation>
    </message>
</context>
<context>
    <name>KirvMovingFile</name>
    <message>
        <source>%1 is not an ordinary file.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>%1 no es un archivo ordinario.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read: %2.</source>
        <extracomment>%1 = path of a file, %2 = the system&apos;s reason</extracomment>
        <translation>No se puede leer el archivo %1: %2.</translation>
    </message>
    <message>
        <source>%1 is a link to another file. Choose another name.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>%1 es un enlace a otro archivo. Elija otro nombre.</translation>
    </message>
    <message>
        <source>The file %1 is larger than %L2 MB, so it is not read.</source>
        <extracomment>%1 = path of a file, %L2 = a number</extracomment>
        <translation>El archivo %1 tiene más de %L2 MB, por lo que no se lee.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <extracomment>%1 = path of a file, %2 = the system&apos;s reason</extracomment>
        <translation>No se puede escribir el archivo %1: %2.</translation>
    </message>
</context>
<context>
    <name>KirvNgircdServer</name>
    <message>
        <source>The files of the server could not be given to it.</source>
        <translation>No se pudo transferir al servidor la propiedad de sus archivos.</translation>
    </message>
</context>
<context>
    <name>KirvPageCommands</name>
    <message numerus="yes">
        <source>&amp;Enable %n Accounts</source>
        <translation>
            <numerusform>&amp;Activar %n cuenta</numerusform>
            <numerusform>&amp;Activar %n cuentas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Disable %n Accounts</source>
        <translation>
            <numerusform>&amp;Desactivar %n cuenta</numerusform>
            <numerusform>&amp;Desactivar %n cuentas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Re&amp;move %n Accounts…</source>
        <translation>
            <numerusform>Eli&amp;minar %n cuenta…</numerusform>
            <numerusform>Eli&amp;minar %n cuentas…</numerusform>
        </translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>Eli&amp;minar…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Editar…</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Cambiar de &amp;nombre</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>&amp;Desactivar</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>&amp;Activar</translation>
    </message>
    <message>
        <source>Make Main &amp;Account</source>
        <translation>Establecer como cuenta &amp;principal</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>&amp;Reconectar</translation>
    </message>
    <message>
        <source>Enter &amp;Password…</source>
        <translation>Introducir la &amp;contraseña…</translation>
    </message>
    <message>
        <source>Pre&amp;sence</source>
        <translation>Pre&amp;sencia</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Disable A&amp;ll…</source>
        <translation>Desactivar &amp;todas…</translation>
    </message>
    <message>
        <source>Enable Those &amp;Again</source>
        <translation>Volver a acti&amp;var estas</translation>
    </message>
    <message>
        <source>&amp;Own Order</source>
        <translation>&amp;Orden propio</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Des&amp;hacer</translation>
    </message>
    <message>
        <source>Show &amp;Certificate…</source>
        <translation>Mostrar el cert&amp;ificado…</translation>
    </message>
    <message>
        <source>&amp;Test Log-In</source>
        <translation>Pro&amp;bar el inicio de sesión</translation>
    </message>
    <message>
        <source>L&amp;og</source>
        <translation>Re&amp;gistro de eventos</translation>
    </message>
    <message numerus="yes">
        <source>E&amp;xport %n Accounts…</source>
        <translation>
            <numerusform>E&amp;xportar %n cuenta…</numerusform>
            <numerusform>E&amp;xportar %n cuentas…</numerusform>
        </translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>E&amp;xportar…</translation>
    </message>
</context>
<context>
    <name>KirvPassPhrase</name>
    <message numerus="yes">
        <source>The pass phrase needs at least %n characters.</source>
        <translation>
            <numerusform>La frase de contraseña necesita al menos %n carácter.</numerusform>
            <numerusform>La frase de contraseña necesita al menos %n caracteres.</numerusform>
        </translation>
    </message>
    <message>
        <source>The pass phrase is too long.</source>
        <translation>La frase de contraseña es demasiado larga.</translation>
    </message>
</context>
<context>
    <name>KirvPassPhraseInput</name>
    <message>
        <source>The pass phrase cannot be read from file descriptor %1.</source>
        <translation>No se puede leer la frase de contraseña desde el descriptor de archivo %1.</translation>
    </message>
    <message>
        <source>The pass phrase from file descriptor %1 is too long.</source>
        <translation>La frase de contraseña leída desde el descriptor de archivo %1 es demasiado larga.</translation>
    </message>
    <message>
        <source>There is no pass phrase to be read from file descriptor %1.</source>
        <translation>No hay ninguna frase de contraseña que leer desde el descriptor de archivo %1.</translation>
    </message>
    <message>
        <source>The pass phrase cannot be read from the file &quot;%1&quot;.</source>
        <translation>No se puede leer la frase de contraseña desde el archivo «%1».</translation>
    </message>
    <message>
        <source>The pass phrase in the file &quot;%1&quot; is too long.</source>
        <translation>La frase de contraseña en el archivo «%1» es demasiado larga.</translation>
    </message>
    <message>
        <source>There is no pass phrase in the file &quot;%1&quot;.</source>
        <translation>No hay ninguna frase de contraseña en el archivo «%1».</translation>
    </message>
    <message>
        <source>A pass phrase is needed, and there is no terminal to enter it on. Use --pass-phrase-file or --pass-phrase-fd.</source>
        <translation>Se necesita una frase de contraseña y no hay ningún terminal en el que introducirla. Indíquela con --pass-phrase-file o --pass-phrase-fd.</translation>
    </message>
    <message>
        <source>Pass phrase for the file: </source>
        <translation>Frase de contraseña del archivo: </translation>
    </message>
    <message>
        <source>No pass phrase was entered.</source>
        <translation>No se introdujo ninguna frase de contraseña.</translation>
    </message>
    <message>
        <source>Repeat the pass phrase: </source>
        <translation>La misma otra vez: </translation>
    </message>
    <message>
        <source>The two pass phrases are not the same.</source>
        <translation>La frase de contraseña no se introdujo las dos veces igual.</translation>
    </message>
</context>
<context>
    <name>KirvPasswordDialog</name>
    <message>
        <source>&amp;Remember the password</source>
        <translation>&amp;Recordar contraseña</translation>
    </message>
    <message>
        <source>Password Needed</source>
        <translation>Contraseña necesaria</translation>
    </message>
    <message>
        <source>Enter the password of the account %1 (%2).</source>
        <extracomment>%1 = name of an account, %2 = its protocol</extracomment>
        <translation>Introduzca la contraseña de la cuenta %1 (%2).</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Keeps the password, so that it is not asked for again.</source>
        <translation>Guarda la contraseña para que no se vuelva a pedir.</translation>
    </message>
    <message>
        <source>&amp;Log In</source>
        <translation>Iniciar &amp;sesión</translation>
    </message>
    <message>
        <source>The server did not accept the password that was used last.</source>
        <translation>El servidor no aceptó la última contraseña utilizada.</translation>
    </message>
    <message>
        <source>The account has a password; the one that you enter takes its place.</source>
        <translation>La cuenta tiene una contraseña; la que introduzca la sustituirá.</translation>
    </message>
    <message>
        <source>No password was entered for this account yet.</source>
        <translation>Todavía no se ha introducido ninguna contraseña para esta cuenta.</translation>
    </message>
    <message>
        <source>The password is not remembered, so it is needed when the account logs in.</source>
        <translation>La contraseña no se recuerda, por lo que se necesita cuando la cuenta inicia sesión.</translation>
    </message>
</context>
<context>
    <name>KirvPidginFile</name>
    <message>
        <source>The account &quot;%1&quot; was left out: the protocol %2 is not supported.</source>
        <extracomment>%1 = login, %2 = name of a protocol</extracomment>
        <translation>Se omitió la cuenta «%1»: el protocolo %2 no se admite.</translation>
    </message>
    <message>
        <source>An account was left out: it has no login.</source>
        <translation>Se omitió una cuenta: no tiene nombre de usuario.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; was left out: it is not in the file.</source>
        <extracomment>%1 = login</extracomment>
        <translation>Se omitió la imagen de la cuenta «%1»: no está en el archivo.</translation>
    </message>
    <message>
        <source>The resource of the account &quot;%1&quot; was left out: it has the name of the computer in it, or characters that mean something else here.</source>
        <extracomment>%1 = login</extracomment>
        <translation>Se omitió el recurso de la cuenta «%1»: contiene el nombre del equipo o caracteres que aquí significan otra cosa.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; now requires encryption: what the file says of it is not known.</source>
        <translation>La cuenta «%1» ahora exige cifrado: no se conoce lo que el archivo indica al respecto.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; does not send its password without encryption any more.</source>
        <translation>La cuenta «%1» ya no envía su contraseña sin cifrado.</translation>
    </message>
    <message>
        <source>The server of the account &quot;%1&quot; was left out: it is not the name or address of a server.</source>
        <translation>Se omitió el servidor de la cuenta «%1»: no es un nombre ni una dirección de servidor.</translation>
    </message>
    <message>
        <source>The port of the account &quot;%1&quot; was left out: it is not a number from 1 to 65535.</source>
        <translation>Se omitió el puerto de la cuenta «%1»: no es un número del 1 al 65535.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; has no server. Enter one before it is used.</source>
        <translation>La cuenta «%1» no tiene servidor. Introduzca uno antes de usarla.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; uses UTF-8 instead of the encoding %2, which is not supported.</source>
        <extracomment>%1 = login, %2 = name of a character encoding</extracomment>
        <translation>La cuenta «%1» usa UTF-8 en lugar de la codificación %2, que no se admite.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; now requires encryption: otherwise its password would be sent without it.</source>
        <translation>La cuenta «%1» ahora exige cifrado: de lo contrario, su contraseña se enviaría sin cifrar.</translation>
    </message>
    <message>
        <source>Its kind is not supported.</source>
        <translation>Su tipo no se admite.</translation>
    </message>
    <message>
        <source>The proxy of the account &quot;%1&quot; was left out. %2 The account is disabled, so that it does not connect without the proxy.</source>
        <extracomment>%1 = login, %2 = a sentence</extracomment>
        <translation>Se omitió el proxy de la cuenta «%1». %2 La cuenta está desactivada para que no se conecte sin el proxy.</translation>
    </message>
    <message>
        <source>Settings of the account &quot;%1&quot; were left out, as there are no such settings here: %2.</source>
        <extracomment>%1 = login, %2 = names, separated by commas</extracomment>
        <translation>Se omitieron ajustes de la cuenta «%1», ya que aquí no existen ajustes equivalentes: %2.</translation>
    </message>
    <message>
        <source>The file is no text.</source>
        <translation>El archivo no es de texto.</translation>
    </message>
    <message>
        <source>A text in the file is too long.</source>
        <translation>Un texto del archivo es demasiado largo.</translation>
    </message>
    <message>
        <source>The file is damaged or no XML (line %1: %2).</source>
        <extracomment>%1 = number of a line, %2 = what is wrong there</extracomment>
        <translation>El archivo está dañado o no es XML (línea %1: %2).</translation>
    </message>
    <message>
        <source>The file is not encoded as UTF-8.</source>
        <translation>El archivo no está codificado en UTF-8.</translation>
    </message>
    <message>
        <source>The file declares a document type or uses entities, which no file of Pidgin does.</source>
        <translation>El archivo declara un tipo de documento o usa entidades, algo que ningún archivo de Pidgin hace.</translation>
    </message>
    <message>
        <source>The elements of the file are nested too deeply, or have too many attributes.</source>
        <translation>Los elementos del archivo están anidados a demasiada profundidad o tienen demasiados atributos.</translation>
    </message>
    <message>
        <source>There are elements in the file where a text is expected (line %1).</source>
        <translation>En el archivo hay elementos donde se espera un texto (línea %1).</translation>
    </message>
    <message>
        <source>Something follows the accounts in the file.</source>
        <translation>En el archivo hay algo más después de las cuentas.</translation>
    </message>
    <message>
        <source>An account in the file has too many settings.</source>
        <translation>Una cuenta del archivo tiene demasiados ajustes.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>El archivo es demasiado grande.</translation>
    </message>
    <message>
        <source>The file does not hold accounts of Pidgin.</source>
        <translation>El archivo no contiene cuentas de Pidgin.</translation>
    </message>
    <message>
        <source>The file is of another version of Pidgin, which is not known.</source>
        <translation>El archivo es de otra versión de Pidgin, que no se conoce.</translation>
    </message>
    <message numerus="yes">
        <source>The file has more than %n accounts.</source>
        <translation>
            <numerusform>El archivo tiene más de %n cuenta.</numerusform>
            <numerusform>El archivo tiene más de %n cuentas.</numerusform>
        </translation>
    </message>
    <message>
        <source>If Pidgin uses a proxy for all accounts, it is not in this file. Set it for the accounts before they log in.</source>
        <translation>Si Pidgin usa un proxy para todas las cuentas, no está en este archivo. Establézcalo en las cuentas antes de que inicien sesión.</translation>
    </message>
</context>
<context>
    <name>KirvPluginCall</name>
    <message>
        <source>an exception of an unknown kind</source>
        <translation>una excepción de tipo desconocido</translation>
    </message>
    <message>
        <source>The plug-in failed: %1</source>
        <translation>El complemento falló: %1</translation>
    </message>
</context>
<context>
    <name>KirvPluginFile</name>
    <message>
        <source>The file is not a plug-in library.</source>
        <translation>El archivo no es una biblioteca de complementos.</translation>
    </message>
    <message>
        <source>The plug-in is not one for protocols: its interface is &quot;%1&quot;.</source>
        <translation>El complemento no es de protocolos: su interfaz es «%1».</translation>
    </message>
    <message>
        <source>The plug-in was built for version %1 of the plug-in interface; this program has version %2.</source>
        <translation>El complemento se compiló para la versión %1 de la interfaz de complementos; este programa tiene la versión %2.</translation>
    </message>
    <message>
        <source>The plug-in did not create its protocol and gave no reason.</source>
        <translation>El complemento no creó su protocolo y no indicó ningún motivo.</translation>
    </message>
    <message>
        <source>The library cannot be loaded: %1</source>
        <translation>No se puede cargar la biblioteca: %1</translation>
    </message>
    <message>
        <source>The plug-in does not have the interface that it states.</source>
        <translation>El complemento no tiene la interfaz que declara.</translation>
    </message>
    <message>
        <source>The protocol has no name.</source>
        <translation>El protocolo no tiene nombre.</translation>
    </message>
    <message>
        <source>The name of the protocol has more than %1 characters.</source>
        <translation>El nombre del protocolo tiene más de %1 caracteres.</translation>
    </message>
    <message>
        <source>The protocol &quot;%1&quot; offers no presence.</source>
        <translation>El protocolo «%1» no ofrece ninguna presencia.</translation>
    </message>
</context>
<context>
    <name>KirvPluginLoader</name>
    <message>
        <source>A protocol with the name &quot;%1&quot; is loaded already.</source>
        <translation>Ya está cargado un protocolo con el nombre «%1».</translation>
    </message>
</context>
<context>
    <name>KirvPluginQueue</name>
    <message>
        <source>The plug-in &quot;%1&quot; was left out, because the program ended when it was loaded the last time. It can be loaded on the page of the plug-ins.</source>
        <extracomment>%1 = name of a plug-in</extracomment>
        <translation>El complemento «%1» se omitió porque el programa terminó la última vez que se cargó. Puede cargarlo en la página de los complementos.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it crashed when it was tested.</source>
        <translation>El complemento se omitió porque se cerró inesperadamente al probarlo.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it ended the process in which it was tested.</source>
        <translation>El complemento se omitió porque terminó el proceso en el que se probaba.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it was not ready within %1 s when it was tested.</source>
        <translation>El complemento se omitió porque no estuvo listo en %1 s al probarlo.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because the program ended when it was loaded the last time.</source>
        <translation>El complemento se omitió porque el programa terminó la última vez que se cargó.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>No se puede leer el archivo.</translation>
    </message>
</context>
<context>
    <name>KirvPluginTrust</name>
    <message>
        <source>The file cannot be examined.</source>
        <translation>No se puede examinar el archivo.</translation>
    </message>
    <message>
        <source>The plug-in is not trusted: %1 belongs to another user.</source>
        <extracomment>%1 = path of a file or folder</extracomment>
        <translation>El complemento no es de confianza: %1 pertenece a otro usuario.</translation>
    </message>
    <message>
        <source>The plug-in is not trusted: others than you may write to %1.</source>
        <extracomment>%1 = path of a file or folder</extracomment>
        <translation>El complemento no es de confianza: otros además de usted pueden escribir en %1.</translation>
    </message>
</context>
<context>
    <name>KirvPluginsPage</name>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Cargar</translation>
    </message>
    <message>
        <source>&amp;Unload</source>
        <translation>&amp;Quitar de memoria</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Complementos</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Complemento</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>About the plug-in</source>
        <translation>Acerca del complemento</translation>
    </message>
    <message>
        <source>Loads the plug-in; its accounts come back as they were.</source>
        <translation>Carga el complemento; sus cuentas vuelven tal como estaban.</translation>
    </message>
    <message>
        <source>Logs the accounts of the plug-in out. They stay in your profile.</source>
        <translation>Cierra la sesión de las cuentas del complemento. Las cuentas permanecen en su perfil.</translation>
    </message>
    <message>
        <source>Plug-ins are looked for in the folder %1.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation>Los complementos se buscan en la carpeta %1.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Being tested</source>
        <translation>Probándose</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Cargándose</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>Cargado</translation>
    </message>
    <message>
        <source>Not loaded</source>
        <translation>No cargado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>There are no plug-ins.</source>
        <translation>No hay complementos.</translation>
    </message>
    <message>
        <source>&amp;Report…</source>
        <translation>&amp;Informe…</translation>
    </message>
    <message>
        <source>Puts versions, plug-ins and the states of the accounts together for somebody who helps.</source>
        <translation>Reúne las versiones, los complementos y el estado de las cuentas para quien le ayude.</translation>
    </message>
    <message>
        <source>When the plug-in %1 is unloaded, its account %2 goes off line.</source>
        <extracomment>%1 = name of a plug-in, %2 = name of an account</extracomment>
        <translation>Al quitar de memoria el complemento %1, su cuenta %2 queda desconectada.</translation>
    </message>
    <message numerus="yes">
        <source>When the plug-in %1 is unloaded, its %n connected accounts go off line.</source>
        <extracomment>%1 = name of a plug-in</extracomment>
        <translation>
            <numerusform>Al quitar de memoria el complemento %1, su %n cuenta conectada queda desconectada.</numerusform>
            <numerusform>Al quitar de memoria el complemento %1, sus %n cuentas conectadas quedan desconectadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Unload Plug-in</source>
        <translation>Quitar de memoria el complemento</translation>
    </message>
    <message>
        <source>The accounts stay in your profile and come back when the plug-in is loaded again.</source>
        <translation>Las cuentas permanecen en su perfil y vuelven cuando el complemento se carga de nuevo.</translation>
    </message>
</context>
<context>
    <name>KirvProfileCheck</name>
    <message>
        <source>The profile folder &quot;%1&quot; could not be made.</source>
        <translation>No se pudo crear la carpeta del perfil «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link. The program follows no link inside a profile: replace it by what it leads to.</source>
        <translation>«%1» es un enlace. El programa no sigue ningún enlace dentro de un perfil: sustitúyalo por aquello a lo que apunta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file. Move it away to use the profile.</source>
        <translation>«%1» no es un archivo ordinario. Muévalo a otro lugar para usar el perfil.</translation>
    </message>
    <message>
        <source>Its database is missing.</source>
        <translation>Falta su base de datos.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not a profile: it holds other files. Nothing in it was changed: choose an empty folder.</source>
        <translation>La carpeta «%1» no es un perfil: contiene otros archivos. No se cambió nada en ella: elija una carpeta vacía.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; was written by a newer version of the program. Use that version to open it; nothing in it was changed.</source>
        <translation>El perfil de «%1» se escribió con una versión más reciente del programa. Use esa versión para abrirlo; no se cambió nada en él.</translation>
    </message>
    <message>
        <source>The end of its database is missing.</source>
        <translation>Falta el final de su base de datos.</translation>
    </message>
    <message>
        <source>Tables or columns of its database are missing.</source>
        <translation>Faltan tablas o columnas de su base de datos.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is in use by another running instance of the program. Close that one first.</source>
        <translation>Otra instancia en ejecución del programa está usando el perfil de «%1». Ciérrela primero.</translation>
    </message>
    <message>
        <source>The profile folder &quot;%1&quot; cannot be written. Check its owner and permissions, and whether the disk is full.</source>
        <translation>No se puede escribir en la carpeta del perfil «%1». Compruebe su propietario y sus permisos, y si el disco está lleno.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is damaged. %2 Nothing in it was changed.</source>
        <extracomment>%1 = path of a folder, %2 = a sentence about what is wrong with it</extracomment>
        <translation>El perfil de «%1» está dañado. %2 No se cambió nada en él.</translation>
    </message>
    <message>
        <source>The file of its database does not hold one any more.</source>
        <translation>El archivo de su base de datos ya no contiene ninguna.</translation>
    </message>
    <message>
        <source>Parts of its database cannot be read, or contradict each other.</source>
        <translation>Hay partes de su base de datos que no se pueden leer o que se contradicen.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; belongs to another program. Nothing in it was changed.</source>
        <translation>El archivo «%1» pertenece a otro programa. No se cambió nada en él.</translation>
    </message>
</context>
<context>
    <name>KirvProfileCommand</name>
    <message>
        <source>There is no profile in &quot;%1&quot; yet.</source>
        <translation>Todavía no hay ningún perfil en «%1».</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is not damaged.</source>
        <translation>El perfil de «%1» no está dañado.</translation>
    </message>
    <message>
        <source>The profile is not damaged, so nothing was restored. Name a copy to go back to it.</source>
        <translation>El perfil no está dañado, por lo que no se restauró nada. Indique una copia para volver a ella.</translation>
    </message>
    <message>
        <source>There is no copy of the profile that could be restored.</source>
        <translation>No hay ninguna copia del perfil que se pueda restaurar.</translation>
    </message>
    <message>
        <source>There is no copy &quot;%1&quot; that could be restored.</source>
        <translation>No hay ninguna copia «%1» que se pueda restaurar.</translation>
    </message>
    <message>
        <source>The profile is not damaged, so there is nothing to recover.</source>
        <translation>El perfil no está dañado, por lo que no hay nada que recuperar.</translation>
    </message>
    <message>
        <source>The option --restore restores the newest copy or the one that is named, and --recover reads what is still readable of the damaged database. To start fresh, move the folder away.</source>
        <translation>La opción --restore restaura la copia más reciente o la que se indique, y --recover lee lo que aún sea legible de la base de datos dañada. Para empezar de cero, mueva la carpeta a otro lugar.</translation>
    </message>
    <message>
        <source>Copies of the profile, without passwords:</source>
        <translation>Copias del perfil, sin contraseñas:</translation>
    </message>
    <message>
        <source>  %1  %2  Accounts: %3</source>
        <extracomment>%1 = name of a file, %2 = date and time, %3 = number of accounts</extracomment>
        <translation>  %1  %2  Cuentas: %3</translation>
    </message>
</context>
<context>
    <name>KirvProfileCopies</name>
    <message>
        <source>No copy of the profile in &quot;%1&quot; could be kept. Check the permissions of the folder &quot;copies&quot; in it, and whether the disk is full.</source>
        <translation>No se pudo guardar ninguna copia del perfil de «%1». Compruebe los permisos de su carpeta «copies», y si el disco está lleno.</translation>
    </message>
</context>
<context>
    <name>KirvProfileOpening</name>
    <message>
        <source>The profile folder &quot;%1&quot; could not be made.</source>
        <translation>No se pudo crear la carpeta del perfil «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be made. Check whether the disk is full.</source>
        <translation>No se pudo crear «%1». Compruebe si el disco está lleno.</translation>
    </message>
</context>
<context>
    <name>KirvProfileRescue</name>
    <message>
        <source>There is no profile in &quot;%1&quot;.</source>
        <translation>No hay ningún perfil en «%1».</translation>
    </message>
    <message>
        <source>The copy &quot;%1&quot; is damaged, too.</source>
        <translation>La copia «%1» también está dañada.</translation>
    </message>
    <message>
        <source>Nothing in the damaged profile in &quot;%1&quot; can be read any more.</source>
        <translation>Ya no se puede leer nada del perfil dañado de «%1».</translation>
    </message>
</context>
<context>
    <name>KirvProfileSaver</name>
    <message>
        <source>&amp;Save to Another Folder…</source>
        <translation>&amp;Guardar en otra carpeta…</translation>
    </message>
    <message>
        <source>Save to an Empty Folder</source>
        <translation>Guardar en una carpeta vacía</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>G&amp;uardar</translation>
    </message>
    <message>
        <source>Everything that was stored is in &quot;%1&quot; again. Continue to go on with it; the accounts log in again then.</source>
        <translation>Todo lo que estaba guardado está de nuevo en «%1». Elija «Continuar» para seguir con este perfil; las cuentas volverán entonces a iniciar sesión.</translation>
    </message>
    <message>
        <source>Everything that was stored is in &quot;%1&quot; now. Continue to go on with it; the accounts log in again then. From the next start on, start the program with the option --profile &quot;%1&quot;.</source>
        <translation>Todo lo que estaba guardado está ahora en «%1». Elija «Continuar» para seguir con este perfil; las cuentas volverán entonces a iniciar sesión. La próxima vez y en adelante, inicie el programa con la opción --profile &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuar</translation>
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
        <translation>%1 (sin verificar; %2, %3)</translation>
    </message>
    <message>
        <source>Providers</source>
        <translation>Proveedores</translation>
    </message>
    <message>
        <source>The Down key shows known providers.</source>
        <translation>La tecla Flecha abajo muestra los proveedores conocidos.</translation>
    </message>
    <message>
        <source>The list of providers %1 cannot be read.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>No se puede leer la lista de proveedores %1.</translation>
    </message>
    <message>
        <source>The list of providers %1 is not used: it is too large.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>La lista de proveedores %1 no se usa: es demasiado grande.</translation>
    </message>
    <message>
        <source>About the list of providers %1: %2</source>
        <extracomment>%1 = path of a file, %2 = a sentence</extracomment>
        <translation>Sobre la lista de proveedores %1: %2</translation>
    </message>
    <message>
        <source>It is not used, because it has not the format of such a list.</source>
        <translation>No se usa, porque no tiene el formato de una lista de este tipo.</translation>
    </message>
    <message>
        <source>One entry is left out, because it is not complete.</source>
        <translation>Se omite una entrada porque está incompleta.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries are left out, because they are not complete.</source>
        <translation>
            <numerusform>Se omite %n entrada porque está incompleta.</numerusform>
            <numerusform>Se omiten %n entradas porque están incompletas.</numerusform>
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
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>That of the system</source>
        <translation>El del sistema</translation>
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
        <translation>Por dónde pasan todas las conexiones de la cuenta. Con un proxy, la cuenta nunca se conecta sin él, y es el proxy el que resuelve el nombre del servidor.</translation>
    </message>
    <message>
        <source>Proxy host</source>
        <translation>Servidor proxy</translation>
    </message>
    <message>
        <source>The name or address of a SOCKS5 or HTTP proxy.</source>
        <translation>El nombre o la dirección de un proxy SOCKS5 o HTTP.</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Puerto del proxy</translation>
    </message>
    <message>
        <source>Ordinarily 1080 with SOCKS5, and 3128 or 8080 with HTTP.</source>
        <translation>Normalmente 1080 con SOCKS5, y 3128 u 8080 con HTTP.</translation>
    </message>
    <message>
        <source>Proxy user</source>
        <translation>Usuario del proxy</translation>
    </message>
    <message>
        <source>Empty: the proxy needs no log-in.</source>
        <translation>Vacío: el proxy no necesita inicio de sesión.</translation>
    </message>
    <message>
        <source>Proxy password</source>
        <translation>Contraseña del proxy</translation>
    </message>
    <message>
        <source>The proxy receives it without encryption. Do not use the password of the account.</source>
        <translation>El proxy la recibe sin cifrar. No use la contraseña de la cuenta.</translation>
    </message>
    <message>
        <source>The kind of the proxy is not known.</source>
        <translation>No se conoce el tipo del proxy.</translation>
    </message>
    <message>
        <source>The proxy has no host.</source>
        <translation>No se indicó el servidor proxy.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a proxy.</source>
        <translation>«%1» no es el nombre de un proxy.</translation>
    </message>
    <message>
        <source>The port of the proxy must be a number from 1 to 65535.</source>
        <translation>El puerto del proxy debe ser un número de 1 a 65535.</translation>
    </message>
    <message>
        <source>The user or the password of the proxy cannot be sent: it is too long or has characters that do not belong to a line.</source>
        <translation>No se puede enviar el usuario o la contraseña del proxy: es demasiado largo o tiene caracteres que no pueden formar parte de una línea.</translation>
    </message>
    <message>
        <source>The user of an HTTP proxy cannot have a colon.</source>
        <translation>El usuario de un proxy HTTP no puede contener dos puntos.</translation>
    </message>
    <message>
        <source>There is a password of the proxy, but no user.</source>
        <translation>Hay una contraseña del proxy, pero ningún usuario.</translation>
    </message>
    <message>
        <source>it does not find the server, or does not allow a connection to it</source>
        <translation>no encuentra el servidor, o no permite una conexión con él</translation>
    </message>
</context>
<context>
    <name>KirvRegistrationChooser</name>
    <message>
        <source>Register Account</source>
        <translation>Registrar una cuenta</translation>
    </message>
    <message>
        <source>For which &amp;protocol do you want to register a new account?</source>
        <translation>¿Para qué &amp;protocolo desea registrar una cuenta nueva?</translation>
    </message>
    <message>
        <source>Protocols</source>
        <translation>Protocolos</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuar</translation>
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
        <translation>Ninguna biblioteca de cifrado</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <extracomment>%1 = &quot;Debian GNU/Linux 12&quot;, %2 = &quot;linux 6.1&quot;, %3 = a processor</extracomment>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>%1: no versions stated</source>
        <extracomment>%1 = name of a protocol, %2 = &quot;QXmpp 1.4.0&quot;, or several such</extracomment>
        <translation>%1: no se indican versiones</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>(name)</source>
        <translation>(nombre)</translation>
    </message>
    <message>
        <source>%1: %2, file %3</source>
        <extracomment>%1 = name of a plug-in, %2 = its state, %3 = name of a file</extracomment>
        <translation>%1: %2, archivo %3</translation>
    </message>
    <message>
        <source>Account %1, %2</source>
        <extracomment>%1 = a number, %2 = name of a protocol</extracomment>
        <translation>Cuenta %1, %2</translation>
    </message>
    <message>
        <source>Login: %1</source>
        <extracomment>%1 = a login</extracomment>
        <translation>Nombre de usuario: %1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <extracomment>%1 = &quot;Connected&quot; or another state</extracomment>
        <translation>Estado: %1</translation>
    </message>
    <message>
        <source>Report of %1 (times in UTC)</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Informe del %1 (horas en UTC)</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Complementos</translation>
    </message>
    <message numerus="yes">
        <source>%n more accounts are left out.</source>
        <translation>
            <numerusform>Se omite %n cuenta más.</numerusform>
            <numerusform>Se omiten %n cuentas más.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvReportWindow</name>
    <message>
        <source>&amp;Include logins and other names</source>
        <translation>&amp;Incluir los nombres de usuario y otros nombres</translation>
    </message>
    <message>
        <source>Report for Somebody Who Helps</source>
        <translation>Informe para quien le ayude</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Passwords are left out. Read the report before you give it to anybody.</source>
        <translation>Se omiten las contraseñas. Lea el informe antes de dárselo a alguien.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Guardar…</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Guardar el informe</translation>
    </message>
    <message>
        <source>report</source>
        <translation>informe</translation>
    </message>
    <message>
        <source>The report was saved to %1.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>El informe se guardó en %1.</translation>
    </message>
    <message>
        <source>The report could not be saved to %1: %2.</source>
        <translation>No se pudo guardar el informe en %1: %2.</translation>
    </message>
</context>
<context>
    <name>KirvRescueWindow</name>
    <message>
        <source>Damaged Profile</source>
        <translation>Perfil dañado</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Choose what to do. The damaged database is kept in any case, under a name with the date.</source>
        <translation>Elija qué hacer. La base de datos dañada se conserva en cualquier caso, con un nombre que incluye la fecha.</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>There is no copy of the profile that could be restored.</source>
        <translation>No hay ninguna copia del perfil que se pueda restaurar.</translation>
    </message>
    <message>
        <source>Co&amp;pies of the profile:</source>
        <translation>Co&amp;pias del perfil:</translation>
    </message>
    <message>
        <source>Copies of the profile</source>
        <translation>Copias del perfil</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Cuentas</translation>
    </message>
    <message>
        <source>&amp;Restore the Selected Copy</source>
        <translation>&amp;Restaurar la copia seleccionada</translation>
    </message>
    <message>
        <source>Accounts and settings are then as they were at that time. Passwords and other secret settings are in no copy and have to be entered again.</source>
        <translation>Las cuentas y los ajustes quedan como estaban en ese momento. Las contraseñas y otros ajustes secretos no están en ninguna copia y hay que introducirlos de nuevo.</translation>
    </message>
    <message>
        <source>Recover &amp;What Is Readable</source>
        <translation>Recuperar &amp;lo que se pueda leer</translation>
    </message>
    <message>
        <source>The damaged database is read row by row, with the passwords, and what was found is shown.</source>
        <translation>La base de datos dañada se lee fila por fila, con las contraseñas, y se muestra lo que se encontró.</translation>
    </message>
    <message>
        <source>Start &amp;Fresh</source>
        <translation>&amp;Empezar de cero</translation>
    </message>
    <message>
        <source>The profile then has no accounts.</source>
        <translation>El perfil queda entonces sin cuentas.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>The profile can be used again.</source>
        <translation>El perfil se puede usar de nuevo.</translation>
    </message>
</context>
<context>
    <name>KirvRevealButton</name>
    <message>
        <source>Hide the text</source>
        <translation>Ocultar el texto</translation>
    </message>
    <message>
        <source>Show the text</source>
        <translation>Mostrar el texto</translation>
    </message>
</context>
<context>
    <name>KirvSecretTexts</name>
    <message>
        <source>in a file only you can read</source>
        <translation>en un archivo que solo usted puede leer</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>where a password is kept; %1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>en %1</translation>
    </message>
    <message>
        <source>in %1 (locked: you will be asked to unlock it)</source>
        <extracomment>where a password is kept; %1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>en %1 (bloqueado: se le pedirá que lo desbloquee)</translation>
    </message>
    <message>
        <source>Your keyring does not respond: it would be kept there when it responds again</source>
        <translation>Su depósito de claves no responde: la contraseña se guardaría allí cuando vuelva a responder</translation>
    </message>
    <message>
        <source>There is no keyring here: it would be kept in a file only you can read</source>
        <translation>Aquí no hay ningún depósito de claves: la contraseña se guardaría en un archivo que solo usted puede leer</translation>
    </message>
    <message>
        <source>Reading the password…</source>
        <translation>Leyendo la contraseña…</translation>
    </message>
    <message>
        <source>The keyring is locked</source>
        <translation>El depósito de claves está bloqueado</translation>
    </message>
    <message>
        <source>The keyring does not respond</source>
        <translation>El depósito de claves no responde</translation>
    </message>
    <message>
        <source>The keyring is not there</source>
        <translation>El depósito de claves no está disponible</translation>
    </message>
    <message>
        <source>The keyring cannot be read</source>
        <translation>No se puede leer el depósito de claves</translation>
    </message>
    <message>
        <source>Or enter the password: it is used until the program ends.</source>
        <translation>O introduzca la contraseña: se usará hasta que termine el programa.</translation>
    </message>
    <message>
        <source>The password is being read from %1.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;, here and below</extracomment>
        <translation>Se está leyendo la contraseña de %1.</translation>
    </message>
    <message>
        <source>The password is in %1, which is locked. Unlock it.</source>
        <translation>La contraseña está en %1, que está bloqueado. Desbloquéelo.</translation>
    </message>
    <message>
        <source>The password is in %1, which was not unlocked. Reconnect asks again.</source>
        <translation>La contraseña está en %1, que no se desbloqueó. «Reconectar» vuelve a pedir que lo desbloquee.</translation>
    </message>
    <message>
        <source>The password is in %1, which does not respond. The account connects when it does.</source>
        <translation>La contraseña está en %1, que no responde. La cuenta se conectará cuando responda.</translation>
    </message>
    <message>
        <source>The password is in the keyring, which is not there. The account connects when it is started.</source>
        <translation>La contraseña está en el depósito de claves, que no está disponible. La cuenta se conectará cuando se inicie.</translation>
    </message>
    <message>
        <source>The password is in %1, which cannot be read. Reconnect tries again.</source>
        <translation>La contraseña está en %1, que no se puede leer. «Reconectar» lo intenta de nuevo.</translation>
    </message>
    <message>
        <source>in your keyring</source>
        <extracomment>where a password is kept</extracomment>
        <translation>en su depósito de claves</translation>
    </message>
    <message>
        <source>in your keyring (locked: you will be asked to unlock it)</source>
        <extracomment>where a password is kept</extracomment>
        <translation>en su depósito de claves (bloqueado: se le pedirá que lo desbloquee)</translation>
    </message>
    <message>
        <source>Passwords that are remembered are kept in a file only you can read.</source>
        <translation>Las contraseñas recordadas se guardan en un archivo que solo usted puede leer.</translation>
    </message>
    <message>
        <source>The program is finding out whether there is a keyring.</source>
        <translation>El programa está comprobando si hay un depósito de claves.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It is unlocked.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;, here and below</extracomment>
        <translation>%1 guarda las contraseñas. Este depósito de claves está desbloqueado.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It is unlocked.</source>
        <translation>Su depósito de claves guarda las contraseñas. Está desbloqueado.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It is locked.</source>
        <translation>%1 guarda las contraseñas. Este depósito de claves está bloqueado.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It is locked.</source>
        <translation>Su depósito de claves guarda las contraseñas. Está bloqueado.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It does not respond.</source>
        <translation>%1 guarda las contraseñas. Este depósito de claves no responde.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It does not respond.</source>
        <translation>Su depósito de claves guarda las contraseñas. No responde.</translation>
    </message>
    <message>
        <source>There is no keyring.</source>
        <translation>No hay ningún depósito de claves.</translation>
    </message>
    <message>
        <source>The password is being read from your keyring.</source>
        <translation>Se está leyendo la contraseña de su depósito de claves.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which is locked. Unlock it.</source>
        <translation>La contraseña está en su depósito de claves, que está bloqueado. Desbloquéelo.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which was not unlocked. Reconnect asks again.</source>
        <translation>La contraseña está en su depósito de claves, que no se desbloqueó. «Reconectar» vuelve a pedir que lo desbloquee.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which does not respond. The account connects when it does.</source>
        <translation>La contraseña está en su depósito de claves, que no responde. La cuenta se conectará cuando responda.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which cannot be read. Reconnect tries again.</source>
        <translation>La contraseña está en su depósito de claves, que no se puede leer. «Reconectar» lo intenta de nuevo.</translation>
    </message>
    <message>
        <source>The password is being read. It stays as it is unless you enter another one.</source>
        <translation>Se está leyendo la contraseña. Se queda como está a menos que introduzca otra.</translation>
    </message>
    <message>
        <source>The keyring is locked. The password stays as it is unless you enter another one.</source>
        <translation>El depósito de claves está bloqueado. La contraseña se queda como está a menos que introduzca otra.</translation>
    </message>
    <message>
        <source>The keyring does not respond. The password stays as it is unless you enter another one.</source>
        <translation>El depósito de claves no responde. La contraseña se queda como está a menos que introduzca otra.</translation>
    </message>
    <message>
        <source>The keyring is not there. The password stays as it is unless you enter another one.</source>
        <translation>El depósito de claves no está disponible. La contraseña se queda como está a menos que introduzca otra.</translation>
    </message>
    <message>
        <source>The keyring cannot be read. The password stays as it is unless you enter another one.</source>
        <translation>No se puede leer el depósito de claves. La contraseña se queda como está a menos que introduzca otra.</translation>
    </message>
    <message>
        <source>The password is not in the keyring any more.</source>
        <translation>La contraseña ya no está en el depósito de claves.</translation>
    </message>
    <message>
        <source>Or edit the account and enter its passwords again.</source>
        <translation>O edite la cuenta y vuelva a introducir sus contraseñas.</translation>
    </message>
    <message>
        <source>Or edit the account and enter it again.</source>
        <translation>O edite la cuenta y vuelva a introducirla.</translation>
    </message>
    <message>
        <source>Some passwords are still in a file only you can read. They are moved when the keyring is unlocked.</source>
        <translation>Algunas contraseñas están todavía en un archivo que solo usted puede leer. Se trasladan cuando se desbloquea el depósito de claves.</translation>
    </message>
    <message>
        <source>There is no keyring here: it is kept in a file only you can read.</source>
        <extracomment>it = a password that was just stored</extracomment>
        <translation>Aquí no hay ningún depósito de claves: la contraseña se guarda en un archivo que solo usted puede leer.</translation>
    </message>
</context>
<context>
    <name>KirvServerAssistant</name>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Waiting for the server</source>
        <translation>Esperando al servidor</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Instrucciones</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Plantilla</translation>
    </message>
    <message>
        <source>Con&amp;figuration:</source>
        <translation>P&amp;lantilla:</translation>
    </message>
    <message>
        <source>&amp;Remember the password</source>
        <translation>&amp;Recordar contraseña</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>Reading the picture for &quot;%1&quot;…</source>
        <extracomment>%1 = a caption</extracomment>
        <translation>Leyendo la imagen para «%1»…</translation>
    </message>
    <message>
        <source>There is a picture for &quot;%1&quot;, which cannot be shown: %2</source>
        <extracomment>%1 = a caption, %2 = an address</extracomment>
        <translation>Hay una imagen para «%1» que no se puede mostrar: %2</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>&amp;Cerrar</translation>
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
        <translation>No es para %1.</translation>
    </message>
    <message>
        <source>It is for %1, and not for %2.</source>
        <extracomment>%1 and %2 = names of servers</extracomment>
        <translation>Es para %1, y no para %2.</translation>
    </message>
    <message>
        <source>It is self-signed: no authority has issued it.</source>
        <translation>Está autofirmado: ninguna autoridad lo ha emitido.</translation>
    </message>
    <message>
        <source>It is not from an authority that this computer trusts.</source>
        <translation>No es de una autoridad en la que confíe este equipo.</translation>
    </message>
    <message>
        <source>It has expired: it was valid until %1.</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Ha caducado: era válido hasta el %1.</translation>
    </message>
    <message>
        <source>A certificate of its issuer has expired.</source>
        <translation>Un certificado de su emisor ha caducado.</translation>
    </message>
    <message>
        <source>It is not valid before %1.</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>No es válido antes del %1.</translation>
    </message>
    <message>
        <source>A certificate of its issuer is not valid yet.</source>
        <translation>Un certificado de su emisor todavía no es válido.</translation>
    </message>
    <message>
        <source>It was withdrawn.</source>
        <translation>Fue revocado.</translation>
    </message>
    <message>
        <source>For</source>
        <extracomment>the servers that a certificate is for</extracomment>
        <translation>Para</translation>
    </message>
    <message>
        <source>Owner</source>
        <extracomment>whom a certificate is for</extracomment>
        <translation>Titular</translation>
    </message>
    <message>
        <source>Issued by</source>
        <extracomment>as in &quot;Issued by: itself&quot;</extracomment>
        <translation>Emitido por</translation>
    </message>
    <message>
        <source>itself</source>
        <translation>él mismo</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Válido desde</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Válido hasta</translation>
    </message>
    <message>
        <source>Fingerprint (SHA-256)</source>
        <translation>Huella digital (SHA-256)</translation>
    </message>
</context>
<context>
    <name>KirvServerCommands</name>
    <message>
        <source>None of the loaded plug-ins can register a new account.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>Ninguno de los complementos cargados puede registrar una cuenta nueva.</translation>
    </message>
    <message>
        <source>New accounts cannot be registered with %1.</source>
        <translation>No se pueden registrar cuentas nuevas con %1.</translation>
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
        <translation>El servidor aceptó el formulario. Añada la cuenta con el nombre de usuario que le dé el servidor.</translation>
    </message>
    <message>
        <source>The account %1 is registered on the server, but it was not added here. %2</source>
        <extracomment>%1 = login of an account, %2 = the reason, a sentence</extracomment>
        <translation>La cuenta %1 está registrada en el servidor, pero no se añadió aquí. %2</translation>
    </message>
    <message>
        <source>Add Again</source>
        <translation>Volver a añadir</translation>
    </message>
    <message>
        <source>The account %1 has the new password on its server. The password is used until the program ends, but it is not stored. %2</source>
        <extracomment>%1 = name of an account, %2 = the reason, a sentence</extracomment>
        <translation>La cuenta %1 tiene la contraseña nueva en su servidor. La contraseña se usará hasta que termine el programa, pero no está guardada. %2</translation>
    </message>
    <message>
        <source>Store Again</source>
        <translation>Volver a guardar</translation>
    </message>
    <message>
        <source>The account %1 is deleted on its server, but it was not removed here. %2</source>
        <extracomment>%1 = name of an account, %2 = the reason, a sentence</extracomment>
        <translation>La cuenta %1 está eliminada en su servidor, pero no se eliminó aquí. %2</translation>
    </message>
    <message>
        <source>Remove Again</source>
        <translation>Volver a eliminar</translation>
    </message>
    <message>
        <source>The password of the account %1 is changed on its server.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Se cambió la contraseña de la cuenta %1 en su servidor.</translation>
    </message>
</context>
<context>
    <name>KirvSettingsManager</name>
    <message>
        <source>Name shown</source>
        <translation>Nombre que se muestra</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Remember the password</source>
        <translation>Recordar contraseña</translation>
    </message>
    <message>
        <source>Restore the last presence</source>
        <translation>Restaurar la última presencia</translation>
    </message>
    <message>
        <source>Restore the last description</source>
        <translation>Restaurar la última descripción</translation>
    </message>
</context>
<context>
    <name>KirvSettingsWindow</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Kirv – Settings</source>
        <extracomment>window title; %1 = name of the main account</extracomment>
        <translation>Kirv – Ajustes</translation>
    </message>
    <message>
        <source>Kirv – Settings – %1</source>
        <translation>Kirv – Ajustes – %1</translation>
    </message>
</context>
<context>
    <name>KirvSocketSteps</name>
    <message>
        <source>%1, port %2</source>
        <extracomment>%1 = name of a server, %2 = number of a port</extracomment>
        <translation>%1, puerto %2</translation>
    </message>
    <message>
        <source>%1, which the proxy looks up</source>
        <extracomment>%1 = server and port</extracomment>
        <translation>%1; el proxy busca el nombre</translation>
    </message>
    <message>
        <source>through the proxy %1</source>
        <extracomment>%1 = name of a proxy</extracomment>
        <translation>a través del proxy %1</translation>
    </message>
    <message>
        <source>none, as the settings say</source>
        <translation>ninguno, según los ajustes</translation>
    </message>
    <message>
        <source>none: the server offers none</source>
        <translation>ninguno: el servidor no lo ofrece</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 = &quot;TLS 1.3&quot;, %2 = about a certificate</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>certificate of %1, valid until %2, fingerprint %3 (SHA-256)</source>
        <extracomment>%1 = name of a server, %2 = a date, %3 = hexadecimal digits</extracomment>
        <translation>certificado de %1, válido hasta el %2, huella digital %3 (SHA-256)</translation>
    </message>
</context>
<context>
    <name>KirvSortingHint</name>
    <message>
        <source>The list is sorted by a column. Accounts can be moved only in your own order.</source>
        <translation>La lista está ordenada por una columna. Las cuentas solo se pueden mover en el orden propio.</translation>
    </message>
    <message>
        <source>&amp;Own Order</source>
        <translation>&amp;Orden propio</translation>
    </message>
</context>
<context>
    <name>KirvStore</name>
    <message>
        <source>The account &quot;%1&quot; (%2) is not in the profile.</source>
        <translation>La cuenta «%1» (%2) no está en el perfil.</translation>
    </message>
    <message>
        <source>There is no home folder to keep the profile in: the environment variable HOME is not set. Set it, or name a folder for the profile.</source>
        <translation>No hay ninguna carpeta personal en la que guardar el perfil: la variable de entorno HOME no está definida. Defínala, o indique una carpeta para el perfil.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; was deleted, moved or replaced while the program was running, so nothing was stored. Save the accounts to another folder.</source>
        <translation>El perfil de «%1» se eliminó, se movió o se sustituyó mientras se ejecutaba el programa, por lo que no se guardó nada. Guarde las cuentas en otra carpeta.</translation>
    </message>
    <message>
        <source>The copies of the profile in &quot;%1&quot; could not be removed. Check the permissions of the folder &quot;copies&quot; in it.</source>
        <translation>No se pudieron eliminar las copias del perfil de «%1». Compruebe los permisos de su carpeta «copies».</translation>
    </message>
    <message>
        <source>There is a profile in &quot;%1&quot; already. Choose an empty folder.</source>
        <translation>Ya hay un perfil en «%1». Elija una carpeta vacía.</translation>
    </message>
</context>
<context>
    <name>KirvXmppAvatar</name>
    <message>
        <source>The picture of the account cannot be read.</source>
        <translation>No se puede leer la imagen de la cuenta.</translation>
    </message>
</context>
<context>
    <name>KirvXmppConnection</name>
    <message>
        <source>The login must be an address such as user@domain.</source>
        <translation>El nombre de usuario debe ser una dirección como usuario@dominio.</translation>
    </message>
    <message>
        <source>the server does not answer any more</source>
        <translation>el servidor ya no responde</translation>
    </message>
    <message>
        <source>The account is not connected.</source>
        <translation>La cuenta no está conectada.</translation>
    </message>
</context>
<context>
    <name>KirvXmppDeletionRequest</name>
    <message>
        <source>Delete Account on Server</source>
        <translation>Eliminar la cuenta en el servidor</translation>
    </message>
    <message>
        <source>Do you want to delete the account %1 on its server? Its contacts and everything the server keeps for it are lost.</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>¿Desea eliminar la cuenta %1 en su servidor? Se perderán sus contactos y todo lo que el servidor guarda de ella.</translation>
    </message>
    <message>
        <source>Delete on Server</source>
        <translation>Eliminar en el servidor</translation>
    </message>
    <message>
        <source>This cannot be undone, and somebody else can take the address %1 afterwards. Is %1 really to be deleted?</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>Esto no se puede deshacer, y después otra persona podrá tomar la dirección %1. ¿Desea realmente eliminar %1?</translation>
    </message>
    <message>
        <source>Delete for Good</source>
        <translation>Eliminar definitivamente</translation>
    </message>
    <message>
        <source>Deleting the account…</source>
        <translation>Eliminando la cuenta…</translation>
    </message>
</context>
<context>
    <name>KirvXmppDirectory</name>
    <message>
        <source>The directory entry is too long to be sent.</source>
        <translation>La entrada del directorio es demasiado larga para enviarla.</translation>
    </message>
</context>
<context>
    <name>KirvXmppError</name>
    <message>
        <source>the name is already in use</source>
        <translation>el nombre ya está en uso</translation>
    </message>
    <message>
        <source>the server does not accept what was sent</source>
        <translation>el servidor no acepta lo que se envió</translation>
    </message>
    <message>
        <source>the server does not allow it</source>
        <translation>el servidor no lo permite</translation>
    </message>
    <message>
        <source>the server does not allow it now</source>
        <translation>el servidor no lo permite ahora</translation>
    </message>
    <message>
        <source>the server requires encryption</source>
        <translation>el servidor exige cifrado</translation>
    </message>
</context>
<context>
    <name>KirvXmppLoginGuard</name>
    <message>
        <source>It requires more than a log-in needs.</source>
        <translation>Pide más de lo que necesita un inicio de sesión.</translation>
    </message>
    <message>
        <source>It requires more work to check the password than is allowed (%1 rounds, at most %2).</source>
        <translation>Pide más trabajo del permitido para comprobar la contraseña (%1 iteraciones, como máximo %2).</translation>
    </message>
    <message>
        <source>It has not proved that it knows the password.</source>
        <translation>No ha demostrado que conoce la contraseña.</translation>
    </message>
    <message>
        <source>Its part of the log-in is wrong.</source>
        <translation>Su parte del inicio de sesión es incorrecta.</translation>
    </message>
</context>
<context>
    <name>KirvXmppPasswordRequest</name>
    <message>
        <source>Change Password on Server</source>
        <translation>Cambiar la contraseña en el servidor</translation>
    </message>
    <message>
        <source>The account %1 gets a new password on its server. All clients need it then.</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>La cuenta %1 recibe una contraseña nueva en su servidor. Todos los clientes la necesitarán entonces.</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Contraseña nueva</translation>
    </message>
    <message>
        <source>The same again</source>
        <translation>Repetir la contraseña</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Cambiar la contraseña</translation>
    </message>
    <message>
        <source>Enter the new password.</source>
        <translation>Introduzca la contraseña nueva.</translation>
    </message>
    <message>
        <source>The two passwords are different. Enter the same password twice.</source>
        <translation>Las dos contraseñas son distintas. Introduzca dos veces la misma contraseña.</translation>
    </message>
    <message>
        <source>The password holds characters that cannot be sent.</source>
        <translation>La contraseña contiene caracteres que no se pueden enviar.</translation>
    </message>
    <message>
        <source>Changing the password…</source>
        <translation>Cambiando la contraseña…</translation>
    </message>
</context>
<context>
    <name>KirvXmppProtocol</name>
    <message>
        <source>XMPP (Jabber): conversations between addresses of many independent servers.</source>
        <translation>XMPP (Jabber): conversaciones entre direcciones de muchos servidores independientes.</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponible</translation>
    </message>
    <message>
        <source>Free to chat</source>
        <translation>Disponible para conversar</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Ausente</translation>
    </message>
    <message>
        <source>Extended away</source>
        <translation>Ausencia prolongada</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>No molestar</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Invisible</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Desconectado</translation>
    </message>
    <message>
        <source>Change Password on Server…</source>
        <translation>Cambiar la contraseña en el servidor…</translation>
    </message>
    <message>
        <source>Gives the account a new password on its server.</source>
        <translation>Pone una contraseña nueva a la cuenta en su servidor.</translation>
    </message>
    <message>
        <source>Delete Account on Server…</source>
        <translation>Eliminar la cuenta en el servidor…</translation>
    </message>
    <message>
        <source>Deletes the account on its server for good, and then here.</source>
        <translation>Elimina definitivamente la cuenta en su servidor y después aquí.</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistration</name>
    <message>
        <source>registration of accounts</source>
        <translation>registro de cuentas</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistrationForm</name>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Apodo</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Nombre completo</translation>
    </message>
    <message>
        <source>First name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>Apellidos</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Localidad</translation>
    </message>
    <message>
        <source>State or region</source>
        <translation>Estado o región</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>Código postal</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Página web</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be filled in.</source>
        <translation>Es obligatorio rellenar «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds characters that cannot be sent.</source>
        <translation>«%1» contiene caracteres que no se pueden enviar.</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistrationRequest</name>
    <message>
        <source>Domain</source>
        <translation>Dominio</translation>
    </message>
    <message>
        <source>The part of the address after the @.</source>
        <translation>La parte de la dirección que sigue a la @.</translation>
    </message>
    <message>
        <source>Register XMPP Account</source>
        <translation>Registrar una cuenta XMPP</translation>
    </message>
    <message>
        <source>Choose the server of the new account. The server determines what is to be filled in next.</source>
        <translation>Elija el servidor de la cuenta nueva. El servidor determina qué hay que rellenar a continuación.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Enter the domain of the server.</source>
        <translation>Introduzca el dominio del servidor.</translation>
    </message>
    <message>
        <source>The name of a server holds characters that cannot be sent.</source>
        <translation>El nombre de un servidor contiene caracteres que no se pueden enviar.</translation>
    </message>
    <message>
        <source>Requesting the registration form…</source>
        <translation>Solicitando el formulario de registro…</translation>
    </message>
    <message>
        <source>This server does not register accounts from within a client.</source>
        <translation>Este servidor no registra cuentas desde un cliente.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrar</translation>
    </message>
    <message>
        <source>The server sent another form. Check it and register again.</source>
        <translation>El servidor envió otro formulario. Compruébelo y vuelva a registrar.</translation>
    </message>
    <message>
        <source>The server also names this address: %1</source>
        <extracomment>%1 = a web address</extracomment>
        <translation>El servidor indica también esta dirección: %1</translation>
    </message>
    <message>
        <source>Sending the form…</source>
        <translation>Enviando el formulario…</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted. Somebody between you and the server could read your password.</source>
        <translation>El certificado del servidor no es de confianza. Alguien entre usted y el servidor podría leer su contraseña.</translation>
    </message>
    <message>
        <source>Trust for This Account</source>
        <translation>Confiar para esta cuenta</translation>
    </message>
</context>
<context>
    <name>KirvXmppRoute</name>
    <message>
        <source>servers refer to one another without end</source>
        <translation>unos servidores remiten a otros sin fin</translation>
    </message>
    <message>
        <source>it refers to a server of a private network</source>
        <translation>remite a un servidor de una red privada</translation>
    </message>
    <message>
        <source>%1 starts with encryption at once. Choose direct TLS, or another port.</source>
        <extracomment>%1 is a server and its port</extracomment>
        <translation>%1 comienza inmediatamente con cifrado. Elija TLS directo u otro puerto.</translation>
    </message>
    <message>
        <source>%1 does not start with encryption at once. Do not choose direct TLS, or choose another port.</source>
        <extracomment>%1 is a server and its port</extracomment>
        <translation>%1 no comienza inmediatamente con cifrado. No elija TLS directo, o elija otro puerto.</translation>
    </message>
    <message>
        <source>servers of %1</source>
        <extracomment>%1 = a domain</extracomment>
        <translation>servidores de %1</translation>
    </message>
    <message>
        <source>the server refers to %1</source>
        <extracomment>%1 = a server</extracomment>
        <translation>el servidor remite a %1</translation>
    </message>
</context>
<context>
    <name>KirvXmppServerLink</name>
    <message>
        <source>What the server sent is no XMPP stream.</source>
        <translation>Lo que envió el servidor no es un flujo XMPP.</translation>
    </message>
    <message>
        <source>The server sent data that is longer than allowed.</source>
        <translation>El servidor envió datos más largos de lo permitido.</translation>
    </message>
    <message>
        <source>The server sent data that is no valid XML.</source>
        <translation>El servidor envió datos que no son XML válido.</translation>
    </message>
    <message>
        <source>The server sent XML that is not allowed in a stream.</source>
        <translation>El servidor envió XML que no está permitido en un flujo.</translation>
    </message>
    <message>
        <source>the reply of the server is too large</source>
        <translation>la respuesta del servidor es demasiado grande</translation>
    </message>
    <message>
        <source>it refers to a server of a private network</source>
        <translation>remite a un servidor de una red privada</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is the encryption, as &quot;TLSv1.3&quot;, %2 how the user has proved who he is, as &quot;SASL SCRAM-SHA-256&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not encrypted</source>
        <translation>sin cifrar</translation>
    </message>
    <message>
        <source>The server begins the log-in again and again.</source>
        <translation>El servidor comienza el inicio de sesión una y otra vez.</translation>
    </message>
    <message>
        <source>the server requires encryption</source>
        <translation>el servidor exige cifrado</translation>
    </message>
    <message>
        <source>the server does not serve the domain of the login</source>
        <translation>el servidor no atiende el dominio del nombre de usuario</translation>
    </message>
    <message>
        <source>it refers to a server without a name</source>
        <translation>remite a un servidor sin nombre</translation>
    </message>
    <message>
        <source>It has logged in the account &quot;%1&quot;.</source>
        <extracomment>%1 is the address of an account</extracomment>
        <translation>Ha iniciado la sesión de la cuenta «%1».</translation>
    </message>
    <message>
        <source>the server does not answer any more</source>
        <translation>el servidor ya no responde</translation>
    </message>
    <message>
        <source>Its part of the log-in is wrong.</source>
        <translation>Su parte del inicio de sesión es incorrecta.</translation>
    </message>
</context>
<context>
    <name>KirvXmppSettings</name>
    <message>
        <source>Resource</source>
        <translation>Recurso</translation>
    </message>
    <message>
        <source>Distinguishes this client from your other ones. Characters by chance take the place of a *. Empty: the server chooses.</source>
        <translation>Distingue este cliente de los demás que usa. Unos caracteres al azar ocupan el lugar de un *. Vacío: elige el servidor.</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Messages go to the client with the highest priority, and to none with a negative one. This client does not show messages.</source>
        <translation>Los mensajes van al cliente con la prioridad más alta, y a ninguno con una negativa. Este cliente no muestra mensajes.</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Only needed when it cannot be found by the domain of the login. Service records are not looked up where there is a proxy.</source>
        <translation>Solo se necesita cuando no se puede encontrar a partir del dominio del nombre de usuario. Los registros de servicio no se consultan cuando hay un proxy.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Ordinarily %1, and %2 with direct TLS.</source>
        <translation>Normalmente %1, y %2 con TLS directo.</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Cifrado</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obligatorio</translation>
    </message>
    <message>
        <source>If the server offers it</source>
        <translation>Si el servidor lo ofrece</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Required at once (direct TLS)</source>
        <translation>Obligatorio desde el principio (TLS directo)</translation>
    </message>
    <message>
        <source>Without encryption others in the network can read along, your password included.</source>
        <translation>Sin cifrado, otros en la red pueden leer lo que se envía, incluida su contraseña.</translation>
    </message>
    <message>
        <source>Trusted certificate</source>
        <translation>Certificado de confianza</translation>
    </message>
    <message>
        <source>A file with a certificate (PEM) that is trusted besides those of the system.</source>
        <translation>Un archivo con un certificado (PEM) en el que se confía además de los del sistema.</translation>
    </message>
    <message>
        <source>Server of the domain</source>
        <translation>Servidor del dominio</translation>
    </message>
    <message>
        <source>Server on this computer</source>
        <translation>Servidor en este equipo</translation>
    </message>
    <message>
        <source>Server on this computer, unencrypted</source>
        <translation>Servidor en este equipo, sin cifrar</translation>
    </message>
    <message>
        <source>An address contains no blanks.</source>
        <translation>Una dirección no contiene espacios.</translation>
    </message>
    <message>
        <source>The character &quot;%1&quot; is not allowed in an address.</source>
        <translation>El carácter «%1» no está permitido en una dirección.</translation>
    </message>
    <message>
        <source>The domain is missing, as in anna@example.org.</source>
        <translation>Falta el dominio (ejemplo: anna@example.org).</translation>
    </message>
    <message>
        <source>An address contains one &quot;@&quot; only.</source>
        <translation>Una dirección solo contiene una «@».</translation>
    </message>
    <message>
        <source>The name before the &quot;@&quot; is missing.</source>
        <translation>Falta el nombre antes de la «@».</translation>
    </message>
    <message>
        <source>The domain after the &quot;@&quot; is missing.</source>
        <translation>Falta el dominio después de la «@».</translation>
    </message>
    <message>
        <source>The domain after the &quot;@&quot; is not complete.</source>
        <translation>El dominio después de la «@» no está completo.</translation>
    </message>
    <message>
        <source>The address is too long.</source>
        <translation>La dirección es demasiado larga.</translation>
    </message>
    <message>
        <source>The trusted certificate %1 cannot be read (%2).</source>
        <extracomment>%1 is a file name, %2 the reason</extracomment>
        <translation>No se puede leer el certificado de confianza %1 (%2).</translation>
    </message>
    <message>
        <source>The file %1 does not hold a certificate in PEM format.</source>
        <translation>El archivo %1 no contiene ningún certificado en formato PEM.</translation>
    </message>
    <message>
        <source>The trusted certificate %1 is not a file.</source>
        <extracomment>%1 is a file name</extracomment>
        <translation>El certificado de confianza %1 no es un archivo.</translation>
    </message>
</context>
<context>
    <name>KirvXmppVCard</name>
    <message>
        <source>Birthday</source>
        <translation>Fecha de nacimiento</translation>
    </message>
    <message>
        <source>Year, month and day, such as 1999-12-31.</source>
        <translation>Año, mes y día, por ejemplo 1999-12-31.</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Nombre completo</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Apodo</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Localidad</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Página web</translation>
    </message>
    <message>
        <source>Organisation</source>
        <translation>Organización</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de mí</translation>
    </message>
    <message>
        <source>An address that begins with http:// or https://.</source>
        <translation>Una dirección que empiece por http:// o https://.</translation>
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
        <translation>Protocolo</translation>
    </message>
    <message>
        <source>Removing account</source>
        <comment>message box title</comment>
        <translation>Eliminar la cuenta</translation>
    </message>
    <message>
        <source>Do you want to remove account &apos;%1&apos; (%2) and all related data?</source>
        <comment>%1 = account alias, %2 = account protocol. Confirmation of removing account</comment>
        <translation>¿Desea eliminar la cuenta «%1» (%2) y todos los datos relacionados?</translation>
    </message>
    <message>
        <source>Disabling account</source>
        <comment>message box title</comment>
        <translation>Desactivar la cuenta</translation>
    </message>
    <message>
        <source>Do you want to disable account &apos;%1&apos; (%2) in which you are currently logged in.</source>
        <comment>%1 = account id, %2 = account protocol. Confirmation of disabling account</comment>
        <translation>¿Desea desactivar la cuenta «%1» (%2), en la que tiene iniciada la sesión actualmente?</translation>
    </message>
    <message>
        <source>None</source>
        <comment>nc</comment>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Add account</source>
        <comment>adding account error message box title</comment>
        <translation>Añadir una cuenta</translation>
    </message>
    <message>
        <source>Account &apos;%1&apos; alerady exists!</source>
        <comment>information about existing account while adding account</comment>
        <translation>¡La cuenta «%1» ya existe!</translation>
    </message>
    <message>
        <source>Deleting directory entry</source>
        <comment>message box title</comment>
        <translation>Eliminar la entrada del directorio</translation>
    </message>
    <message>
        <source>Do you want to delete the directory entry of account &apos;%1&apos; (%2) from the server?</source>
        <comment>%1 = account id, %2 = account protocol. Confirmation of deleting the directory entry</comment>
        <translation>¿Desea eliminar del servidor la entrada del directorio de la cuenta «%1» (%2)?</translation>
    </message>
</context>
</TS>
