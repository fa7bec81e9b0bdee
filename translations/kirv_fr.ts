<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Accounts</name>
    <message>
        <source>Accounts</source>
        <translation>Comptes</translation>
    </message>
    <message>
        <source>The check box of an account tells whether it is enabled.</source>
        <translation>La case à cocher d’un compte indique s’il est activé.</translation>
    </message>
    <message>
        <source>Add an account that you already have</source>
        <translation>Ajouter un compte que vous avez déjà</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>Change the selected account</source>
        <translation>Modifier le compte sélectionné</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Modifier…</translation>
    </message>
    <message>
        <source>Remove the selected account and all its data</source>
        <translation>Supprimer le compte sélectionné et toutes ses données</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>Create a new account on a server</source>
        <translation>Créer un nouveau compte sur un serveur</translation>
    </message>
    <message>
        <source>Re&amp;gister…</source>
        <translation>&amp;Créer…</translation>
    </message>
    <message>
        <source>&amp;Main account:</source>
        <translation>Compte &amp;principal&#xa0;:</translation>
    </message>
    <message>
        <source>The account that the rest of the program works with</source>
        <translation>Le compte avec lequel travaille le reste du programme</translation>
    </message>
    <message>
        <source>Main account</source>
        <translation>Compte principal</translation>
    </message>
</context>
<context>
    <name>AddAccount</name>
    <message>
        <source>Add Account</source>
        <translation>Ajouter un compte</translation>
    </message>
    <message>
        <source>&amp;Configuration:</source>
        <translation>&amp;Modèle&#xa0;:</translation>
    </message>
    <message>
        <source>A ready-made configuration fills in the settings for you</source>
        <translation>Un modèle prêt à l’emploi remplit les paramètres à votre place</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>&amp;Login:</source>
        <translation>&amp;Identifiant&#xa0;:</translation>
    </message>
    <message>
        <source>The name under which you log in</source>
        <translation>Le nom sous lequel vous vous connectez</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>Mot de &amp;passe&#xa0;:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>If this is off, you are asked for the password when the account logs in</source>
        <translation>Si cette case n’est pas cochée, le mot de passe vous est demandé lorsque le compte se connecte</translation>
    </message>
    <message>
        <source>&amp;Remember password</source>
        <translation>&amp;Retenir le mot de passe</translation>
    </message>
    <message>
        <source>S&amp;tart as:</source>
        <translation>S&amp;tatut initial&#xa0;:</translation>
    </message>
    <message>
        <source>The presence that the account takes when it logs in</source>
        <translation>Le statut que prend le compte lorsqu’il se connecte</translation>
    </message>
    <message>
        <source>Start as</source>
        <translation>Statut initial</translation>
    </message>
</context>
<context>
    <name>EditAccount</name>
    <message>
        <source>Edit Account</source>
        <translation>Modifier le compte</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>&amp;Compte</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Compte&#xa0;:</translation>
    </message>
    <message>
        <source>Picture:</source>
        <translation>Image&#xa0;:</translation>
    </message>
    <message>
        <source>A&amp;lias:</source>
        <translation>A&amp;lias&#xa0;:</translation>
    </message>
    <message>
        <source>The name shown for the account</source>
        <translation>Le nom affiché pour le compte</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>Mot de &amp;passe&#xa0;:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>If this is off, you are asked for the password when the account logs in</source>
        <translation>Si cette case n’est pas cochée, le mot de passe vous est demandé lorsque le compte se connecte</translation>
    </message>
    <message>
        <source>&amp;Remember password</source>
        <translation>&amp;Retenir le mot de passe</translation>
    </message>
    <message>
        <source>The account takes the presence and description that it had last</source>
        <translation>Le compte reprend son dernier statut et sa dernière description</translation>
    </message>
    <message>
        <source>Restore the last pr&amp;esence</source>
        <translation>Rétablir le d&amp;ernier statut</translation>
    </message>
    <message>
        <source>The account takes the description that it had last</source>
        <translation>Le compte reprend sa dernière description</translation>
    </message>
    <message>
        <source>Restore the last descript&amp;ion</source>
        <translation>Rétablir la dernière descr&amp;iption</translation>
    </message>
    <message>
        <source>S&amp;tart as:</source>
        <translation>S&amp;tatut initial&#xa0;:</translation>
    </message>
    <message>
        <source>The presence that the account takes when it logs in</source>
        <translation>Le statut que prend le compte lorsqu’il se connecte</translation>
    </message>
    <message>
        <source>Start as</source>
        <translation>Statut initial</translation>
    </message>
    <message>
        <source>Descriptio&amp;n:</source>
        <translation>Descriptio&amp;n&#xa0;:</translation>
    </message>
    <message>
        <source>What your contacts read beside the presence</source>
        <translation>Ce que vos contacts lisent à côté du statut</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>P&amp;ublic Directory</source>
        <translation>Annuaire p&amp;ublic</translation>
    </message>
    <message>
        <source>Ask the server for your entry; changes that are not saved are lost</source>
        <translation>Demander votre fiche au serveur&#xa0;; les modifications non enregistrées sont perdues</translation>
    </message>
    <message>
        <source>&amp;Fetch Again</source>
        <translation>Récupérer à nou&amp;veau</translation>
    </message>
    <message>
        <source>Take your entry out of the directory</source>
        <translation>Retirer votre fiche de l’annuaire</translation>
    </message>
    <message>
        <source>&amp;Delete Entry…</source>
        <translation>Supprimer la &amp;fiche…</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>État&#xa0;:</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Presence</source>
        <translation>Statut</translation>
    </message>
    <message>
        <source>Pages of the account</source>
        <translation>Pages du compte</translation>
    </message>
</context>
<context>
    <name>KirvAccount</name>
    <message>
        <source>A password could not be kept in the keyring. It is used until the program ends, and is kept when the keyring can be used.</source>
        <translation>Un mot de passe n’a pas pu être conservé dans le trousseau de clés. Il est utilisé jusqu’à la fin du programme et sera conservé lorsque le trousseau sera utilisable.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 = a sentence, %2 = what the keyring says</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>other accounts connect first</source>
        <translation>d’autres comptes se connectent d’abord</translation>
    </message>
    <message>
        <source>the next try is at %1</source>
        <extracomment>%1 = time of day</extracomment>
        <translation>prochain essai à %1</translation>
    </message>
    <message>
        <source>A password could not be stored. It is used until the program ends. %1</source>
        <extracomment>%1 = the reason, a sentence</extracomment>
        <translation>Un mot de passe n’a pas pu être enregistré. Il est utilisé jusqu’à la fin du programme. %1</translation>
    </message>
</context>
<context>
    <name>KirvAccountActionsMenu</name>
    <message>
        <source>&amp;Server Account</source>
        <translation>Compte sur &amp;le serveur</translation>
    </message>
</context>
<context>
    <name>KirvAccountCheckList</name>
    <message>
        <source>&amp;All accounts</source>
        <translation>&amp;Tous les comptes</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Comptes</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protocole</translation>
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
        <translation>Les comptes «&#xa0;%1&#xa0;» et «&#xa0;%2&#xa0;» (%3) ne font qu’un pour le serveur. Les deux sont conservés&#xa0;; supprimez celui qui est inutile.</translation>
    </message>
    <message numerus="yes">
        <source>The same is true of %n further logins.</source>
        <translation>
            <numerusform>Il en va de même pour %n autre identifiant.</numerusform>
            <numerusform>Il en va de même pour %n autres identifiants.</numerusform>
        </translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) exists already.</source>
        <translation>Le compte «&#xa0;%1&#xa0;» (%2) existe déjà.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) exists already: it is the same as &quot;%3&quot; to the server.</source>
        <extracomment>%1 and %3 are two spellings of a login, %2 is the name of a protocol</extracomment>
        <translation>Le compte «&#xa0;%1&#xa0;» (%2) existe déjà&#xa0;: pour le serveur, il est identique à «&#xa0;%3&#xa0;».</translation>
    </message>
    <message>
        <source>An account needs a login.</source>
        <translation>Un compte doit avoir un identifiant.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; could not be created: the protocol %2 is not loaded.</source>
        <translation>Le compte «&#xa0;%1&#xa0;» n’a pas pu être créé&#xa0;: le protocole %2 n’est pas chargé.</translation>
    </message>
    <message>
        <source>The pictures of the accounts could not be written into a temporary file.</source>
        <translation>Les images des comptes n’ont pas pu être écrites dans un fichier temporaire.</translation>
    </message>
    <message>
        <source>There is no account &quot;%1&quot; (%2) any more.</source>
        <translation>Le compte «&#xa0;%1&#xa0;» (%2) n’existe plus.</translation>
    </message>
</context>
<context>
    <name>KirvAccountExport</name>
    <message>
        <source>The password of the account &quot;%1&quot; (%2) is left out: it is in the keyring and could not be read.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>Le mot de passe du compte «&#xa0;%1&#xa0;» (%2) est omis&#xa0;: il se trouve dans le trousseau de clés et n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>Secret settings of the account &quot;%1&quot; (%2) are left out: they are in the keyring and could not be read.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>Des paramètres secrets du compte «&#xa0;%1&#xa0;» (%2) sont omis&#xa0;: ils se trouvent dans le trousseau de clés et n’ont pas pu être lus.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) is left out: it has texts that cannot be exported.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>Le compte «&#xa0;%1&#xa0;» (%2) est omis&#xa0;: il contient des textes qui ne peuvent pas être exportés.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) is left out: it could not be read, or is too large.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>L’image du compte «&#xa0;%1&#xa0;» (%2) est omise&#xa0;: elle n’a pas pu être lue ou est trop grande.</translation>
    </message>
</context>
<context>
    <name>KirvAccountFile</name>
    <message>
        <source>The file is damaged, or it is not a file of exported accounts.</source>
        <translation>Le fichier est endommagé, ou ce n’est pas un fichier de comptes exportés.</translation>
    </message>
    <message>
        <source>The passwords in the file are damaged, so nothing is imported from it.</source>
        <translation>Les mots de passe du fichier sont endommagés, rien n’en est donc importé.</translation>
    </message>
    <message>
        <source>The file is too large. Up to %1 MB are possible.</source>
        <translation>Le fichier est trop volumineux. La taille maximale est de %1 Mo.</translation>
    </message>
    <message>
        <source>The file was made by a newer version of the program. This one cannot read it.</source>
        <translation>Le fichier a été créé par une version plus récente du programme. Celle-ci ne peut pas le lire.</translation>
    </message>
    <message>
        <source>The file has too many accounts. Up to %1 are possible.</source>
        <translation>Le fichier contient trop de comptes. Le maximum est de %1.</translation>
    </message>
    <message>
        <source>Account %1 in the file is damaged: &quot;%2&quot; cannot be used.</source>
        <extracomment>%1 = number of an account in a file, %2 = name of a value that is stored there</extracomment>
        <translation>Le compte %1 du fichier est endommagé&#xa0;: «&#xa0;%2&#xa0;» n’est pas utilisable.</translation>
    </message>
    <message>
        <source>The file contains the account &quot;%1&quot; (%2) twice.</source>
        <extracomment>%1 = login, %2 = name of a protocol</extracomment>
        <translation>Le fichier contient deux fois le compte «&#xa0;%1&#xa0;» (%2).</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) in the file is too large.</source>
        <translation>L’image du compte «&#xa0;%1&#xa0;» (%2) dans le fichier est trop grande.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) is left out: it is of a kind that cannot be used.</source>
        <translation>L’image du compte «&#xa0;%1&#xa0;» (%2) est omise&#xa0;: elle est d’un type qui ne peut pas être utilisé.</translation>
    </message>
    <message>
        <source>The file is damaged: its main account is not in it.</source>
        <translation>Le fichier est endommagé&#xa0;: son compte principal n’y figure pas.</translation>
    </message>
    <message>
        <source>The file contains no passwords that the pass phrase could decrypt. If it should contain some, somebody has changed it.</source>
        <translation>Le fichier ne contient aucun mot de passe, la phrase secrète n’a donc rien à ouvrir. S’il devait en contenir, quelqu’un l’a modifié.</translation>
    </message>
    <message>
        <source>The passwords in the file are left out, as they need its pass phrase.</source>
        <translation>Les mots de passe du fichier sont omis, car sa phrase secrète est nécessaire pour les lire.</translation>
    </message>
    <message>
        <source>Decrypting the passwords in the file needs more memory or time than is allowed, so nothing is imported from it.</source>
        <translation>L’ouverture des mots de passe du fichier demande plus de mémoire ou de temps que ce qui est permis, rien n’en est donc importé.</translation>
    </message>
    <message>
        <source>There is not enough memory to decrypt the passwords in the file.</source>
        <translation>Il n’y a pas assez de mémoire pour ouvrir les mots de passe du fichier.</translation>
    </message>
    <message>
        <source>The pass phrase does not decrypt the passwords in the file.</source>
        <translation>La phrase secrète n’ouvre pas les mots de passe du fichier.</translation>
    </message>
    <message>
        <source>The accounts in the file were changed after it was written. They do not belong to its passwords any more, so nothing is imported from it.</source>
        <translation>Les comptes du fichier ont été modifiés après son écriture. Ils ne correspondent plus à ses mots de passe, rien n’en est donc importé.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) has texts or a picture that cannot be exported.</source>
        <translation>Le compte «&#xa0;%1&#xa0;» (%2) contient des textes ou une image qui ne peuvent pas être exportés.</translation>
    </message>
    <message>
        <source>There is not enough memory to encrypt the passwords.</source>
        <translation>Il n’y a pas assez de mémoire pour chiffrer les mots de passe.</translation>
    </message>
    <message>
        <source>The file would have more than %1 MB or %2 accounts. Export fewer accounts at once.</source>
        <translation>Le fichier dépasserait %1 Mo ou %2 comptes. Exportez moins de comptes à la fois.</translation>
    </message>
</context>
<context>
    <name>KirvAccountGroup</name>
    <message>
        <source>Disabling Accounts</source>
        <translation>Désactivation de comptes</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to disable %n accounts? They are logged out.</source>
        <translation>
            <numerusform>Voulez-vous désactiver %n compte&#xa0;? Il sera déconnecté.</numerusform>
            <numerusform>Voulez-vous désactiver %n comptes&#xa0;? Ils seront déconnectés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Removing Accounts</source>
        <translation>Suppression de comptes</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to remove %n accounts and all related data?</source>
        <translation>
            <numerusform>Voulez-vous supprimer %n compte et toutes les données associées&#xa0;?</numerusform>
            <numerusform>Voulez-vous supprimer %n comptes et toutes les données associées&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Disabling All Accounts</source>
        <translation>Désactivation de tous les comptes</translation>
    </message>
    <message>
        <source>Do you want to disable all accounts? They are logged out.</source>
        <translation>Voulez-vous désactiver tous les comptes&#xa0;? Ils seront déconnectés.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvAccountHistory</name>
    <message>
        <source>The account &quot;%1&quot; cannot be enabled again: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Le compte «&#xa0;%1&#xa0;» ne peut pas être réactivé&#xa0;: il a été supprimé.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be restored to what it was before the import: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Le compte «&#xa0;%1&#xa0;» ne peut pas redevenir ce qu’il était avant l’importation&#xa0;: il a été supprimé.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be imported again: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Le compte « %1 » ne peut pas être importé de nouveau : il a été supprimé.</translation>
    </message>
</context>
<context>
    <name>KirvAccountImport</name>
    <message>
        <source>The file contains this login twice: &quot;%1&quot; is the same as &quot;%2&quot; to the server.</source>
        <extracomment>%1 and %2 are logins, which may be spelt the same</extracomment>
        <translation>Le fichier contient deux fois cet identifiant&#xa0;: pour le serveur, «&#xa0;%1&#xa0;» est identique à «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The account has no login.</source>
        <translation>Le compte n’a pas d’identifiant.</translation>
    </message>
    <message>
        <source>The protocol %1 is not loaded.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>Le protocole %1 n’est pas chargé.</translation>
    </message>
    <message>
        <source>Another account with this login was added or removed in the meantime.</source>
        <translation>Un autre compte avec cet identifiant a été ajouté ou supprimé entre-temps.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be imported. %2</source>
        <extracomment>%1 = login, %2 = a sentence</extracomment>
        <translation>Le compte «&#xa0;%1&#xa0;» ne peut pas être importé. %2</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; was left out. %2</source>
        <extracomment>%1 = name of an account, %2 = a sentence</extracomment>
        <translation>L’image du compte «&#xa0;%1&#xa0;» a été omise. %2</translation>
    </message>
    <message>
        <source>Stored passwords of the account &quot;%1&quot; are not kept, because its settings in the file differ. They must be entered again.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Les mots de passe enregistrés du compte «&#xa0;%1&#xa0;» ne sont pas conservés, car ses réglages dans le fichier sont différents. Ils doivent être saisis à nouveau.</translation>
    </message>
</context>
<context>
    <name>KirvAccountInvitation</name>
    <message>
        <source>Add an Account</source>
        <translation>Ajouter un compte</translation>
    </message>
    <message>
        <source>Register a New One…</source>
        <translation>Créer un nouveau compte…</translation>
    </message>
    <message>
        <source>Create a new account on a server</source>
        <translation>Créer un nouveau compte sur un serveur</translation>
    </message>
    <message>
        <source>Add an account that you already have</source>
        <translation>Ajouter un compte que vous avez déjà</translation>
    </message>
    <message>
        <source>No protocol is loaded. Load one on the Plug-ins page.</source>
        <translation>Aucun protocole n’est chargé. Chargez-en un sur la page «&#xa0;Greffons&#xa0;».</translation>
    </message>
    <message>
        <source>Take accounts over from a file</source>
        <translation>Reprendre des comptes depuis un fichier</translation>
    </message>
    <message>
        <source>Take the accounts of Pidgin over; its own file is only read</source>
        <translation>Reprendre les comptes de Pidgin&#xa0;; son propre fichier est seulement lu</translation>
    </message>
    <message>
        <source>There is no account yet. Add one that you already have, register a new one, or import accounts from a file.</source>
        <translation>Il n’y a pas encore de compte. Ajoutez-en un que vous avez déjà, créez-en un nouveau ou importez des comptes depuis un fichier.</translation>
    </message>
    <message>
        <source>There is no account yet. Add one that you already have, register a new one, or import accounts. There are accounts of Pidgin on this computer.</source>
        <translation>Il n’y a pas encore de compte. Ajoutez-en un que vous avez déjà, créez-en un nouveau ou importez des comptes. Pidgin a des comptes sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Import from Pidgin…</source>
        <translation>Importer depuis Pidgin…</translation>
    </message>
</context>
<context>
    <name>KirvAccountLog</name>
    <message>
        <source>Off line</source>
        <translation>Hors ligne</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connexion en cours</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Logging out</source>
        <translation>Déconnexion en cours</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>The program requests a log-in</source>
        <translation>Le programme demande une connexion</translation>
    </message>
    <message>
        <source>The program changes the presence</source>
        <translation>Le programme modifie le statut</translation>
    </message>
    <message>
        <source>The program requests a log-out</source>
        <translation>Le programme demande une déconnexion</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 (échec)</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>%1 (succès)</translation>
    </message>
    <message>
        <source>%1 begins</source>
        <translation>%1 (début)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = an event, as &quot;Connected&quot;, %2 = more about it</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>KirvAccountLogWindow</name>
    <message>
        <source>Log of %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Journal de %1</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copies the selected entries, or all when none is selected. They hold no passwords.</source>
        <translation>Copie les entrées sélectionnées, ou toutes si aucune n’est sélectionnée. Elles ne contiennent aucun mot de passe.</translation>
    </message>
    <message>
        <source>&amp;Report…</source>
        <translation>&amp;Rapport…</translation>
    </message>
    <message>
        <source>Puts the log and the versions of the program together for somebody who helps.</source>
        <translation>Rassemble le journal et les versions du programme pour une personne qui vous aide.</translation>
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
        <translation>Il n’y a pas de compte «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Several accounts are called &quot;%1&quot;. Name one of them with its protocol: %2</source>
        <extracomment>%1 = what was typed, %2 = names that could be meant</extracomment>
        <translation>Plusieurs comptes s’appellent «&#xa0;%1&#xa0;». Indiquez l’un d’eux avec son protocole&#xa0;: %2</translation>
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
        <translation>Rechercher des comptes</translation>
    </message>
    <message>
        <source>Search accounts, or “%1”…</source>
        <extracomment>%1 = the word that finds accounts whose state needs attention</extracomment>
        <translation>Rechercher des comptes, ou «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problème</translation>
    </message>
    <message>
        <source>Shows the accounts with these words in their alias, login, protocol or state</source>
        <translation>Affiche les comptes dont l’alias, l’identifiant, le protocole ou l’état contient ces mots</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>how many accounts a search shows, as &quot;3 of 120&quot;</extracomment>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>KirvAccountStatus</name>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Logging out…</source>
        <translation>Déconnexion…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connexion…</translation>
    </message>
    <message>
        <source>Off line</source>
        <translation>Hors ligne</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Its plug-in is not loaded</source>
        <translation>Son greffon n’est pas chargé</translation>
    </message>
    <message>
        <source>Waiting to connect…</source>
        <extracomment>other accounts connect first</extracomment>
        <translation>En attente de connexion…</translation>
    </message>
    <message>
        <source>Waiting, next try in %1 s</source>
        <extracomment>%1 = number of seconds; keep it short</extracomment>
        <translation>En attente, nouvel essai dans %1 s</translation>
    </message>
    <message>
        <source>Waiting, next try in %1 min</source>
        <extracomment>%1 = number of minutes; keep it short</extracomment>
        <translation>En attente, nouvel essai dans %1 min</translation>
    </message>
    <message>
        <source>Waiting, next try at %1</source>
        <extracomment>%1 = time of day</extracomment>
        <translation>En attente, nouvel essai à %1</translation>
    </message>
    <message>
        <source>main account</source>
        <translation>compte principal</translation>
    </message>
    <message>
        <source> · </source>
        <extracomment>between the parts of the line below the name of an account, as in &quot;Connected · Away · main account&quot;</extracomment>
        <translation> · </translation>
    </message>
    <message>
        <source>The account is logged out. It can be logged in with Reconnect.</source>
        <translation>Le compte est déconnecté. Il peut être connecté avec «&#xa0;Reconnecter&#xa0;».</translation>
    </message>
    <message>
        <source>The account does not log in. It can be enabled with its check box.</source>
        <translation>Le compte ne se connecte pas. Il peut être activé avec sa case à cocher.</translation>
    </message>
    <message>
        <source>The plug-in of the protocol %1 is not loaded. Load it on the Plug-ins page.</source>
        <translation>Le greffon du protocole %1 n’est pas chargé. Chargez-le sur la page «&#xa0;Greffons&#xa0;».</translation>
    </message>
    <message>
        <source>Other accounts connect first.</source>
        <translation>D’autres comptes se connectent d’abord.</translation>
    </message>
    <message>
        <source>The next try is at %1.</source>
        <translation>Le prochain essai aura lieu à %1.</translation>
    </message>
    <message>
        <source>The presence is %1.</source>
        <translation>Le statut est «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Protection: %1.</source>
        <translation>Protection&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Since %1.</source>
        <extracomment>%1 = time of day, or date and time, since when a connection has been in its state</extracomment>
        <translation>Depuis %1.</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Mot de passe incorrect</translation>
    </message>
    <message>
        <source>Password needed</source>
        <translation>Mot de passe requis</translation>
    </message>
    <message>
        <source>Server not found</source>
        <translation>Serveur introuvable</translation>
    </message>
    <message>
        <source>Server not reachable</source>
        <translation>Serveur inaccessible</translation>
    </message>
    <message>
        <source>No reply from the server</source>
        <translation>Aucune réponse du serveur</translation>
    </message>
    <message>
        <source>Certificate not trusted</source>
        <translation>Certificat non approuvé</translation>
    </message>
    <message>
        <source>Encryption not offered</source>
        <translation>Chiffrement non proposé</translation>
    </message>
    <message>
        <source>No usable log-in offered</source>
        <translation>Aucune authentification utilisable proposée</translation>
    </message>
    <message>
        <source>Server not available</source>
        <translation>Serveur indisponible</translation>
    </message>
    <message>
        <source>Connection lost</source>
        <translation>Connexion perdue</translation>
    </message>
    <message>
        <source>Connection closed by the server</source>
        <translation>Connexion fermée par le serveur</translation>
    </message>
    <message>
        <source>Logged in elsewhere</source>
        <translation>Connecté ailleurs</translation>
    </message>
    <message>
        <source>Name in use</source>
        <translation>Nom déjà utilisé</translation>
    </message>
    <message>
        <source>Name not allowed</source>
        <translation>Nom non autorisé</translation>
    </message>
    <message>
        <source>Proxy not reachable</source>
        <translation>Proxy inaccessible</translation>
    </message>
    <message>
        <source>No reply from the proxy</source>
        <translation>Aucune réponse du proxy</translation>
    </message>
    <message>
        <source>Log-in refused by the proxy</source>
        <translation>Authentification refusée par le proxy</translation>
    </message>
    <message>
        <source>Denied by the proxy</source>
        <translation>Refusé par le proxy</translation>
    </message>
    <message>
        <source>Proxy failed</source>
        <translation>Échec du proxy</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Accès refusé</translation>
    </message>
    <message>
        <source>Settings cannot be used</source>
        <translation>Paramètres inutilisables</translation>
    </message>
    <message>
        <source>Not supported by the server</source>
        <translation>Non pris en charge par le serveur</translation>
    </message>
    <message>
        <source>Log-in failed</source>
        <translation>Échec de la connexion</translation>
    </message>
    <message>
        <source>Enter the password again, or edit the account if the login is wrong.</source>
        <translation>Saisissez à nouveau le mot de passe, ou modifiez le compte si l’identifiant est incorrect.</translation>
    </message>
    <message>
        <source>Enter the password.</source>
        <translation>Saisissez le mot de passe.</translation>
    </message>
    <message>
        <source>Edit the account to change its settings.</source>
        <translation>Modifiez le compte pour changer ses paramètres.</translation>
    </message>
    <message>
        <source>It can be logged in here again with Reconnect.</source>
        <translation>Il peut être connecté à nouveau ici avec «&#xa0;Reconnecter&#xa0;».</translation>
    </message>
    <message>
        <source>It can be tried again with Reconnect.</source>
        <translation>Une nouvelle tentative est possible avec «&#xa0;Reconnecter&#xa0;».</translation>
    </message>
    <message>
        <source>Look at it with Show Certificate.</source>
        <translation>Examinez-le avec «&#xa0;Afficher le certificat&#xa0;».</translation>
    </message>
    <message>
        <source>It is another one than the one that you have trusted.</source>
        <translation>Ce n’est pas celui que vous avez approuvé.</translation>
    </message>
</context>
<context>
    <name>KirvAccountStrip</name>
    <message>
        <source>Enter Password…</source>
        <translation>Saisir le mot de passe…</translation>
    </message>
    <message>
        <source>Takes another password and logs the account in with it.</source>
        <translation>Demande un autre mot de passe et connecte le compte avec celui-ci.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Reconnecter</translation>
    </message>
    <message>
        <source>Logs the account out and in again.</source>
        <translation>Déconnecte le compte puis le reconnecte.</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Modifier…</translation>
    </message>
    <message>
        <source>Change the account</source>
        <translation>Modifier le compte</translation>
    </message>
    <message>
        <source>Reason of the state of the account</source>
        <translation>Motif de l’état du compte</translation>
    </message>
    <message>
        <source>No account is selected.</source>
        <translation>Aucun compte n’est sélectionné.</translation>
    </message>
    <message>
        <source>State of %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>État de %1</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts are selected.</source>
        <translation>
            <numerusform>%n compte est sélectionné.</numerusform>
            <numerusform>%n comptes sont sélectionnés.</numerusform>
        </translation>
    </message>
    <message>
        <source>They can be enabled, disabled and removed with the context menu.</source>
        <translation>Ils peuvent être activés, désactivés et supprimés à l’aide du menu contextuel.</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Shows what happened to the account&apos;s connection.</source>
        <translation>Affiche ce qui est arrivé à la connexion du compte.</translation>
    </message>
    <message>
        <source>What Is Wrong?</source>
        <translation>Qu’est-ce qui ne va pas&#xa0;?</translation>
    </message>
    <message>
        <source>Tries each step of the log-in with what is stored, beside the account&apos;s own connection.</source>
        <translation>Essaie chaque étape de la connexion avec ce qui est enregistré, en parallèle de la connexion du compte lui-même.</translation>
    </message>
    <message>
        <source>Show Certificate…</source>
        <translation>Afficher le certificat…</translation>
    </message>
    <message>
        <source>Shows the certificate of the server and asks whether it is trusted.</source>
        <translation>Affiche le certificat du serveur et demande si vous l’approuvez.</translation>
    </message>
</context>
<context>
    <name>KirvAccountUndo</name>
    <message numerus="yes">
        <source>&amp;Undo Removing %n Accounts</source>
        <translation>
            <numerusform>A&amp;nnuler la suppression de %n compte</numerusform>
            <numerusform>A&amp;nnuler la suppression de %n comptes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Disabling %n Accounts</source>
        <translation>
            <numerusform>A&amp;nnuler la désactivation de %n compte</numerusform>
            <numerusform>A&amp;nnuler la désactivation de %n comptes</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Undo Removing %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>A&amp;nnuler la suppression de %1</translation>
    </message>
    <message>
        <source>&amp;Undo Disabling %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>A&amp;nnuler la désactivation de %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were removed.</source>
        <translation>
            <numerusform>%n compte a été supprimé.</numerusform>
            <numerusform>%n comptes ont été supprimés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were disabled.</source>
        <translation>
            <numerusform>%n compte a été désactivé.</numerusform>
            <numerusform>%n comptes ont été désactivés.</numerusform>
        </translation>
    </message>
    <message>
        <source>The account %1 (%2) was removed.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>Le compte %1 (%2) a été supprimé.</translation>
    </message>
    <message>
        <source>The account %1 (%2) was disabled.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>Le compte %1 (%2) a été désactivé.</translation>
    </message>
    <message>
        <source>&amp;Undo Importing %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>A&amp;nnuler l’importation de %1</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Importing %n Accounts</source>
        <translation>
            <numerusform>A&amp;nnuler l’importation de %n compte</numerusform>
            <numerusform>A&amp;nnuler l’importation de %n comptes</numerusform>
        </translation>
    </message>
    <message>
        <source>The account %1 (%2) was imported.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>Le compte %1 (%2) a été importé.</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were imported.</source>
        <translation>
            <numerusform>%n compte a été importé.</numerusform>
            <numerusform>%n comptes ont été importés.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Import Again</source>
        <translation>&amp;Importer de nouveau</translation>
    </message>
    <message>
        <source>The import of the account %1 (%2) was undone.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>L’importation du compte %1 (%2) a été annulée.</translation>
    </message>
    <message numerus="yes">
        <source>The import of %n accounts was undone.</source>
        <translation>
            <numerusform>L’importation de %n compte a été annulée.</numerusform>
            <numerusform>L’importation de %n comptes a été annulée.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvAccountsCommand</name>
    <message>
        <source>The profile in &quot;%1&quot; is open in another program, which does not take commands.</source>
        <translation>Le profil dans «&#xa0;%1&#xa0;» est ouvert dans un autre programme, qui n’accepte pas de commandes.</translation>
    </message>
    <message>
        <source>There is no profile in &quot;%1&quot; yet.</source>
        <translation>Il n’y a pas encore de profil dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The program that runs with this profile does not respond.</source>
        <translation>Le programme qui utilise ce profil ne répond pas.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsOptions</name>
    <message>
        <source>Print one line of JSON.</source>
        <translation>Afficher une ligne de JSON.</translation>
    </message>
    <message>
        <source>Export: put passwords into the file, encrypted with a pass phrase.</source>
        <translation>Exportation&#xa0;: mettre les mots de passe dans le fichier, chiffrés avec une phrase secrète.</translation>
    </message>
    <message>
        <source>Export: overwrite a file that is there.</source>
        <translation>Exportation&#xa0;: écraser un fichier existant.</translation>
    </message>
    <message>
        <source>Import: leave out the passwords that are in the file.</source>
        <translation>Importation&#xa0;: omettre les mots de passe contenus dans le fichier.</translation>
    </message>
    <message>
        <source>Import: replace accounts that exist by those of the file.</source>
        <translation>Importation&#xa0;: remplacer les comptes existants par ceux du fichier.</translation>
    </message>
    <message>
        <source>Import: say what would be done, and change nothing.</source>
        <translation>Importation&#xa0;: indiquer ce qui serait fait, sans rien modifier.</translation>
    </message>
    <message>
        <source>Export and import: the pass phrase is the first line of &lt;file&gt;.</source>
        <translation>Exportation et importation&#xa0;: la phrase secrète est la première ligne de &lt;fichier&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fichier</translation>
    </message>
    <message>
        <source>Export and import: the pass phrase is the first line that can be read from the file descriptor &lt;number&gt;.</source>
        <translation>Exportation et importation&#xa0;: la phrase secrète est la première ligne qui peut être lue depuis le descripteur de fichier &lt;numéro&gt;.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>numéro</translation>
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
        <translation>Liste, active, désactive, exporte et importe des comptes.
Un compte est désigné par PROTOCOLE:ID, ou par son ID seul si aucun autre compte n’a le même.

  accounts list [compte…]
  accounts enable compte…
  accounts disable compte…
  accounts export fichier [compte…]
  accounts import fichier

À la place d’un fichier, - désigne la sortie ou l’entrée standard.</translation>
    </message>
    <message>
        <source>list, enable, disable, export or import.</source>
        <translation>list, enable, disable, export ou import.</translation>
    </message>
    <message>
        <source>A file or an account.</source>
        <translation>Un fichier ou un compte.</translation>
    </message>
    <message>
        <source>[argument…]</source>
        <translation>[argument…]</translation>
    </message>
    <message>
        <source>The command is missing: list, enable, disable, export or import.</source>
        <translation>La commande est absente&#xa0;: list, enable, disable, export ou import.</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; is not known: it can be list, enable, disable, export or import.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>La commande «&#xa0;%1&#xa0;» est inconnue&#xa0;: les commandes possibles sont list, enable, disable, export et import.</translation>
    </message>
    <message>
        <source>The option --%1 does not belong to the command &quot;%2&quot;.</source>
        <extracomment>%1 = name of an option, %2 = name of a command</extracomment>
        <translation>L’option --%1 ne fait pas partie de la commande «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The file is missing.</source>
        <translation>Il manque le fichier.</translation>
    </message>
    <message>
        <source>The argument &quot;%1&quot; is not known.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>L’argument «&#xa0;%1&#xa0;» est inconnu.</translation>
    </message>
    <message>
        <source>The account is missing.</source>
        <translation>Il manque le compte.</translation>
    </message>
    <message>
        <source>The option --json cannot be used when the file goes to the standard output.</source>
        <translation>L’option --json ne peut pas être utilisée lorsque le fichier est écrit sur la sortie standard.</translation>
    </message>
    <message>
        <source>A pass phrase is of no use when no passwords are exported or imported.</source>
        <translation>Une phrase secrète ne sert à rien si aucun mot de passe n’est transféré.</translation>
    </message>
    <message>
        <source>The file with the pass phrase is missing.</source>
        <translation>Il manque le fichier contenant la phrase secrète.</translation>
    </message>
    <message>
        <source>The option --pass-phrase-fd needs the number of a file descriptor.</source>
        <translation>L’option --pass-phrase-fd nécessite le numéro d’un descripteur de fichier.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsPageCompanion</name>
    <message>
        <source>The plug-in of the protocol %1 is not loaded. Load it on the Plug-ins page.</source>
        <translation>Le greffon du protocole %1 n’est pas chargé. Chargez-le sur la page «&#xa0;Greffons&#xa0;».</translation>
    </message>
</context>
<context>
    <name>KirvAccountsService</name>
    <message>
        <source>The account is missing.</source>
        <translation>Il manque le compte.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsText</name>
    <message>
        <source>There are no accounts.</source>
        <translation>Il n’y a aucun compte.</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protocole</translation>
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
        <translation>Activé</translation>
    </message>
    <message>
        <source>Main</source>
        <translation>Principal</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>%1 is enabled now.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>%1 est maintenant activé.</translation>
    </message>
    <message>
        <source>%1 is disabled now.</source>
        <translation>%1 est maintenant désactivé.</translation>
    </message>
    <message>
        <source>%1 was enabled already.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>%1 était déjà activé.</translation>
    </message>
    <message>
        <source>%1 was disabled already.</source>
        <translation>%1 était déjà désactivé.</translation>
    </message>
    <message>
        <source>Accounts exported: %1, with the passwords that are stored.</source>
        <extracomment>%1 = number</extracomment>
        <translation>Comptes exportés&#xa0;: %1, avec les mots de passe enregistrés.</translation>
    </message>
    <message>
        <source>Accounts exported: %1, without passwords.</source>
        <translation>Comptes exportés&#xa0;: %1, sans mots de passe.</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nouveau</translation>
    </message>
    <message>
        <source>replaces %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>remplace %1</translation>
    </message>
    <message>
        <source>%1 is kept</source>
        <translation>%1 est conservé</translation>
    </message>
    <message>
        <source>Accounts that would be imported: %1. Nothing was changed.</source>
        <extracomment>%1 = number</extracomment>
        <translation>Comptes qui seraient importés&#xa0;: %1. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>Accounts imported: %1.</source>
        <translation>Comptes importés&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>KirvAddWindowCompanion</name>
    <message>
        <source>Add %1 Account</source>
        <extracomment>%1 = the name of a protocol</extracomment>
        <translation>Ajouter un compte %1</translation>
    </message>
    <message>
        <source>Save Without a Password</source>
        <translation>Enregistrer sans mot de passe</translation>
    </message>
    <message>
        <source>The login is missing.</source>
        <translation>L’identifiant est manquant.</translation>
    </message>
    <message>
        <source>The login and the password are missing.</source>
        <translation>L’identifiant et le mot de passe sont manquants.</translation>
    </message>
    <message>
        <source>The account can be used without a password.</source>
        <translation>Le compte peut être utilisé sans mot de passe.</translation>
    </message>
    <message>
        <source>The password is missing.</source>
        <translation>Le mot de passe est manquant.</translation>
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
        <translation>Avancé</translation>
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
        <translation>L’image «&#xa0;%1&#xa0;» n’a pas pu être copiée dans le profil&#xa0;: %2</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be written.</source>
        <translation>Impossible d’écrire dans le dossier «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>KirvAvatarQuickSetWidget</name>
    <message>
        <source>Picture of the account</source>
        <translation>Image du compte</translation>
    </message>
    <message>
        <source>Click to choose a picture, or drop or paste one here</source>
        <translation>Cliquez pour choisir une image, ou déposez-en ou collez-en une ici</translation>
    </message>
    <message>
        <source>&amp;Choose Picture…</source>
        <translation>&amp;Choisir une image…</translation>
    </message>
    <message>
        <source>&amp;Paste Picture</source>
        <translation>Co&amp;ller l’image</translation>
    </message>
    <message>
        <source>&amp;Remove Picture</source>
        <translation>&amp;Supprimer l’image</translation>
    </message>
    <message>
        <source>Choose Picture</source>
        <translation>Choisir une image</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Images (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The picture cannot be stored on this computer.</source>
        <translation>L’image ne peut pas être enregistrée sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Picture of the Account</source>
        <translation>Image du compte</translation>
    </message>
</context>
<context>
    <name>KirvBoundedImage</name>
    <message>
        <source>The picture is too large: %1 × %2 pixels. Up to %3 million pixels are possible.</source>
        <translation>L’image est trop grande&#xa0;: %1 × %2 pixels. Au plus %3 millions de pixels sont possibles.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is too large. Up to %2 MB are possible.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est trop volumineux. La taille maximale est de %2 Mo.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is not a picture that can be used. Pictures in the formats PNG, JPEG, GIF, BMP and WebP are possible.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’est pas une image utilisable. Les formats possibles sont PNG, JPEG, GIF, BMP et WebP.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The picture in the file &quot;%1&quot; is damaged.</source>
        <translation>L’image du fichier «&#xa0;%1&#xa0;» est endommagée.</translation>
    </message>
    <message>
        <source>There is no picture that can be used.</source>
        <translation>Il n’y a aucune image utilisable.</translation>
    </message>
</context>
<context>
    <name>KirvCertificateQuestion</name>
    <message>
        <source>Trusted Certificate</source>
        <extracomment>%1 = name of a server</extracomment>
        <translation>Certificat approuvé</translation>
    </message>
    <message>
        <source>Certificate of %1</source>
        <translation>Certificat de %1</translation>
    </message>
    <message>
        <source>What is wrong with the certificate</source>
        <translation>Ce qui ne va pas avec le certificat</translation>
    </message>
    <message>
        <source>Somebody between you and the server could read your password.</source>
        <translation>Quelqu’un entre vous et le serveur pourrait lire votre mot de passe.</translation>
    </message>
    <message>
        <source>You have chosen to trust this certificate for the account %1.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Vous avez choisi d’approuver ce certificat pour le compte %1.</translation>
    </message>
    <message>
        <source>The server shows another certificate than the one that you have trusted for the account %1.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Le serveur présente un autre certificat que celui que vous avez approuvé pour le compte %1.</translation>
    </message>
    <message>
        <source>The certificate of the server of the account %1 is not trusted.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Le certificat du serveur du compte %1 n’est pas approuvé.</translation>
    </message>
    <message>
        <source>Trusted so far</source>
        <extracomment>the fingerprint of the certificate that was trusted so far</extracomment>
        <translation>Approuvé jusqu’ici</translation>
    </message>
    <message>
        <source>%1:</source>
        <extracomment>the caption of a line: %1 = what it is about</extracomment>
        <translation>%1&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Trust for This Account</source>
        <translation>&amp;Approuver pour ce compte</translation>
    </message>
    <message>
        <source>&amp;Stop Trusting</source>
        <translation>Ne &amp;plus approuver</translation>
    </message>
    <message>
        <source>&amp;Do Not Connect</source>
        <translation>&amp;Ne pas se connecter</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>KirvClient</name>
    <message>
        <source>Accounts</source>
        <translation>Comptes</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Greffons</translation>
    </message>
    <message>
        <source>There is no folder %1, so no protocol is available.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation>Le dossier %1 n’existe pas, donc aucun protocole n’est disponible.</translation>
    </message>
    <message>
        <source>The link cannot be opened: the protocol %1 is not available.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>Le lien ne peut pas être ouvert&#xa0;: le protocole %1 n’est pas disponible.</translation>
    </message>
    <message>
        <source>%1 is the main account now, because %2 was removed.</source>
        <translation>%1 est désormais le compte principal, car %2 a été supprimé.</translation>
    </message>
    <message>
        <source>%1 is the main account now, because %2 was disabled.</source>
        <translation>%1 est désormais le compte principal, car %2 a été désactivé.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = name of an account, %2 = one or more sentences about it</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>One password was moved to your keyring.</source>
        <translation>Un mot de passe a été déplacé vers votre trousseau de clés.</translation>
    </message>
    <message numerus="yes">
        <source>%n passwords were moved to your keyring.</source>
        <translation>
            <numerusform>%n mot de passe a été déplacé vers votre trousseau de clés.</numerusform>
            <numerusform>%n mots de passe ont été déplacés vers votre trousseau de clés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n passwords were moved to your keyring, which is %1.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>
            <numerusform>%n mot de passe a été déplacé vers votre trousseau de clés (%1).</numerusform>
            <numerusform>%n mots de passe ont été déplacés vers votre trousseau de clés (%1).</numerusform>
        </translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>The link was not opened because another window waits for an answer. Close that, and open the link again.</source>
        <translation>Le lien n’a pas été ouvert, car une autre fenêtre attend une réponse. Fermez-la et ouvrez à nouveau le lien.</translation>
    </message>
    <message>
        <source>The link was not opened because it is too long.</source>
        <translation>Le lien n’a pas été ouvert, car il est trop long.</translation>
    </message>
</context>
<context>
    <name>KirvClientOptions</name>
    <message>
        <source>The option --%1 needs a folder.</source>
        <extracomment>%1 = name of an option</extracomment>
        <translation>L’option --%1 nécessite un dossier.</translation>
    </message>
    <message>
        <source>Say whether the profile is damaged, list its copies and end: with 0 when it can be used, 2 when it is damaged, and 1 when it cannot be used for another reason.</source>
        <translation>Indiquer si le profil est endommagé, lister ses copies et quitter&#xa0;: avec 0 s’il est utilisable, 2 s’il est endommagé et 1 s’il est inutilisable pour une autre raison.</translation>
    </message>
    <message>
        <source>Put a copy in the place of the profile&apos;s database and end: the newest, or the one that is named. Passwords are in no copy.</source>
        <translation>Mettre une copie à la place de la base de données du profil et quitter&#xa0;: la plus récente, ou celle qui est nommée. Aucune copie ne contient de mots de passe.</translation>
    </message>
    <message>
        <source>Read what is still readable of the profile&apos;s damaged database, keep that, and end.</source>
        <translation>Lire ce qui est encore lisible de la base de données endommagée du profil, le conserver et quitter.</translation>
    </message>
    <message>
        <source>The copy to restore.</source>
        <translation>La copie à restaurer.</translation>
    </message>
    <message>
        <source>[copy]</source>
        <translation>[copie]</translation>
    </message>
    <message>
        <source>A link that begins with xmpp:, irc: or ircs: opens the window for a new account of that protocol.</source>
        <translation>Un lien commençant par xmpp:, irc: ou ircs: ouvre la fenêtre d’un nouveau compte de ce protocole.</translation>
    </message>
    <message>
        <source>[link]</source>
        <translation>[lien]</translation>
    </message>
    <message>
        <source>The options %1 and %2 cannot be used together.</source>
        <extracomment>%1, %2 = names of options</extracomment>
        <translation>Les options %1 et %2 ne peuvent pas être utilisées ensemble.</translation>
    </message>
    <message>
        <source>The argument &quot;%1&quot; is not known.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>L’argument «&#xa0;%1&#xa0;» est inconnu.</translation>
    </message>
    <message>
        <source>Keep accounts and settings in &lt;folder&gt; instead of the user&apos;s own profile.</source>
        <translation>Conserver les comptes et les paramètres dans &lt;dossier&gt; plutôt que dans le profil personnel.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>dossier</translation>
    </message>
    <message>
        <source>Load the protocol plug-ins of &lt;folder&gt;.</source>
        <translation>Charger les greffons de protocole de &lt;dossier&gt;.</translation>
    </message>
    <message>
        <source>Accounts of several instant-messaging protocols in one place.
&quot;kirv accounts --help&quot; says how accounts are listed, enabled, disabled, exported and imported without windows.</source>
        <translation>Des comptes de plusieurs protocoles de messagerie instantanée en un seul endroit.
«&#xa0;kirv accounts --help&#xa0;» indique comment lister, activer, désactiver, exporter et importer des comptes sans fenêtres.</translation>
    </message>
</context>
<context>
    <name>KirvCommandFile</name>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2</source>
        <extracomment>%1 = path of a file, %2 = what the system says</extracomment>
        <translation>Le fichier «&#xa0;%1&#xa0;» ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is too large to be a file of exported accounts.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est trop volumineux pour être un fichier de comptes.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file that can be overwritten.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un fichier qui peut être écrasé.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists already. Use --force to overwrite it.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» existe déjà. Avec --force, il est écrasé.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>The standard output cannot be written.</source>
        <translation>Impossible d’écrire sur la sortie standard.</translation>
    </message>
</context>
<context>
    <name>KirvConnection</name>
    <message>
        <source>The account is not connected.</source>
        <translation>Le compte n’est pas connecté.</translation>
    </message>
</context>
<context>
    <name>KirvDamagedProfile</name>
    <message>
        <source>The copy of %1 was restored. Accounts: %2.</source>
        <extracomment>%1 = date and time, %2 = number of accounts</extracomment>
        <translation>La copie du %1 a été restaurée. Comptes&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Passwords and other secret settings are in no copy and have to be entered again.</source>
        <translation>Les mots de passe et autres paramètres secrets ne figurent dans aucune copie et doivent être saisis à nouveau.</translation>
    </message>
    <message>
        <source>Everything could be read.</source>
        <translation>Tout a pu être lu.</translation>
    </message>
    <message>
        <source>Only a part could be read. Accounts or settings are missing.</source>
        <translation>Seule une partie a pu être lue. Il manque des comptes ou des paramètres.</translation>
    </message>
    <message>
        <source>Accounts: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Comptes&#xa0;: %1</translation>
    </message>
    <message>
        <source>Settings of accounts: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Paramètres de comptes&#xa0;: %1</translation>
    </message>
    <message>
        <source>Passwords and other secret settings: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Mots de passe et autres paramètres secrets&#xa0;: %1</translation>
    </message>
    <message>
        <source>Settings of the program: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Paramètres du programme&#xa0;: %1</translation>
    </message>
    <message>
        <source>The profile has no accounts now.</source>
        <translation>Le profil ne contient plus aucun compte.</translation>
    </message>
    <message>
        <source>The database that was there is kept in &quot;%1&quot;, with the passwords in it. Delete it when it is no longer needed.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>L’ancienne base de données est conservée dans «&#xa0;%1&#xa0;», avec les mots de passe. Supprimez-la lorsque vous n’en aurez plus besoin.</translation>
    </message>
</context>
<context>
    <name>KirvDatabase</name>
    <message>
        <source>The SQLite driver of Qt, which the profile needs, is not installed.</source>
        <translation>Le pilote SQLite de Qt, dont le profil a besoin, n’est pas installé.</translation>
    </message>
    <message>
        <source>The profile is not open.</source>
        <translation>Le profil n’est pas ouvert.</translation>
    </message>
    <message>
        <source>There is no space left on the disk, so nothing was stored. Free some space and try again.</source>
        <translation>Il n’y a plus d’espace sur le disque, rien n’a donc été enregistré. Libérez de l’espace et réessayez.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; could not be read or written (%2). The disk may be full or faulty.</source>
        <translation>Le profil dans «&#xa0;%1&#xa0;» n’a pas pu être lu ou écrit (%2). Le disque est peut-être plein ou défectueux.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is damaged, so nothing was stored. Start the program again to see what can be done.</source>
        <translation>Le profil dans «&#xa0;%1&#xa0;» est endommagé, rien n’a donc été enregistré. Redémarrez le programme pour voir ce qui peut être fait.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; cannot be written. Check its owner and permissions.</source>
        <translation>Le profil dans «&#xa0;%1&#xa0;» n’est pas accessible en écriture. Vérifiez son propriétaire et ses permissions.</translation>
    </message>
    <message>
        <source>Another program is using the profile in &quot;%1&quot;.</source>
        <translation>Un autre programme utilise le profil dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; could not be used: %2</source>
        <translation>Le profil dans «&#xa0;%1&#xa0;» n’a pas pu être utilisé&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>KirvDemo</name>
    <message>
        <source>No temporary folder for the profile can be made: %1</source>
        <translation>Impossible de créer un dossier temporaire pour le profil&#xa0;: %1</translation>
    </message>
    <message>
        <source>The demo needs the XMPP server Prosody (the package prosody), which did not start: %1</source>
        <translation>La démonstration nécessite le serveur XMPP Prosody (le paquet prosody), qui n’a pas démarré&#xa0;: %1</translation>
    </message>
    <message>
        <source>This is a try-out with a profile of its own; nothing is kept. A private XMPP server runs on this computer. Add an XMPP account, choose the configuration &quot;Server on this computer&quot; and type the login %1 and the password %2.</source>
        <translation>Ceci est un essai avec son propre profil&#xa0;; rien n’est conservé. Un serveur XMPP privé fonctionne sur cet ordinateur. Ajoutez un compte XMPP, choisissez le modèle «&#xa0;Serveur sur cet ordinateur&#xa0;» et saisissez l’identifiant %1 et le mot de passe %2.</translation>
    </message>
    <message>
        <source>A private IRC server runs too: add an IRC account with the same configuration, with any nickname and any password.</source>
        <translation>Un serveur IRC privé fonctionne également&#xa0;: ajoutez un compte IRC avec le même modèle, avec un pseudonyme et un mot de passe quelconques.</translation>
    </message>
</context>
<context>
    <name>KirvDirectoryGuard</name>
    <message>
        <source>&amp;Fetch Again</source>
        <translation>Récupérer à nou&amp;veau</translation>
    </message>
    <message>
        <source>Publishing the directory entry…</source>
        <translation>Publication de la fiche de l’annuaire…</translation>
    </message>
    <message>
        <source>Requesting the directory entry…</source>
        <translation>Demande de la fiche de l’annuaire…</translation>
    </message>
    <message>
        <source>The account must be connected before its directory entry can be read or changed.</source>
        <translation>Le compte doit être connecté pour que sa fiche de l’annuaire puisse être lue ou modifiée.</translation>
    </message>
    <message>
        <source>The directory entry is not known. Fetch it again to change it.</source>
        <translation>La fiche de l’annuaire n’est pas connue. Récupérez-la à nouveau pour la modifier.</translation>
    </message>
    <message>
        <source>Nothing was saved, because the entry cannot be published like this. Correct what is marked.</source>
        <translation>Rien n’a été enregistré, car la fiche ne peut pas être publiée ainsi. Corrigez ce qui est marqué.</translation>
    </message>
    <message>
        <source>The account was saved, but its directory entry was not published, as the account is not connected. Save again when it is.</source>
        <translation>Le compte a été enregistré, mais sa fiche d’annuaire n’a pas été publiée, car le compte n’est pas connecté. Enregistrez de nouveau lorsqu’il le sera.</translation>
    </message>
</context>
<context>
    <name>KirvEditWindowCompanion</name>
    <message>
        <source>&amp;Server Account</source>
        <translation>Compte &amp;sur le serveur</translation>
    </message>
    <message>
        <source>What can be done with the account on its server.</source>
        <translation>Ce qui peut être fait avec le compte sur son serveur.</translation>
    </message>
    <message>
        <source>Saving Account</source>
        <translation>Enregistrement du compte</translation>
    </message>
    <message>
        <source>Nothing was changed. The window stays open, so that you can try again.</source>
        <translation>Rien n’a été modifié. La fenêtre reste ouverte pour que vous puissiez réessayer.</translation>
    </message>
    <message>
        <source>Picture of the Account</source>
        <translation>Image du compte</translation>
    </message>
    <message>
        <source>The picture was not changed.</source>
        <translation>L’image n’a pas été modifiée.</translation>
    </message>
    <message>
        <source>None is stored</source>
        <translation>Aucun n’est enregistré</translation>
    </message>
</context>
<context>
    <name>KirvExportWindow</name>
    <message>
        <source>Export Accounts</source>
        <translation>Exporter des comptes</translation>
    </message>
    <message>
        <source>Include &amp;passwords (encrypted)</source>
        <translation>Inclure les &amp;mots de passe (chiffrés)</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Several words that are not related are easy to remember and hard to guess. Whoever has the file and guesses the pass phrase has your passwords; without it, nobody can read them, not even you.</source>
        <translation>Plusieurs mots sans rapport entre eux sont faciles à retenir et difficiles à deviner. Quiconque possède le fichier et devine la phrase secrète a vos mots de passe&#xa0;; sans elle, personne ne peut les lire, pas même vous.</translation>
    </message>
    <message>
        <source>Pass p&amp;hrase:</source>
        <translation>P&amp;hrase secrète&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Repeat pass phrase:</source>
        <translation>&amp;Répétez-la&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exporter…</translation>
    </message>
    <message>
        <source>Choose the file to which the accounts are written.</source>
        <translation>Choisir le fichier dans lequel les comptes seront écrits.</translation>
    </message>
    <message>
        <source>The two pass phrases must be the same.</source>
        <translation>La phrase secrète et sa répétition doivent être identiques.</translation>
    </message>
    <message>
        <source>Exported accounts (*.json)</source>
        <translation>Comptes exportés (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The export was cancelled; nothing was written.</source>
        <translation>L’exportation a été annulée&#xa0;; rien n’a été écrit.</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were exported to %1.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>
            <numerusform>%n compte a été exporté dans %1.</numerusform>
            <numerusform>%n comptes ont été exportés dans %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file contains no passwords.</source>
        <translation>Le fichier ne contient aucun mot de passe.</translation>
    </message>
    <message>
        <source>The following is not in the file:</source>
        <translation>Ne figurent pas dans le fichier&#xa0;:</translation>
    </message>
    <message>
        <source>The stored passwords are in it, encrypted with the pass phrase.</source>
        <translation>Les mots de passe enregistrés s’y trouvent, chiffrés avec la phrase secrète.</translation>
    </message>
</context>
<context>
    <name>KirvFailure</name>
    <message>
        <source>The server did not accept the login or the password.</source>
        <translation>Le serveur n’a pas accepté l’identifiant ou le mot de passe.</translation>
    </message>
    <message>
        <source>A password is needed to log in, and none is known.</source>
        <translation>Un mot de passe est nécessaire pour se connecter, et aucun n’est connu.</translation>
    </message>
    <message>
        <source>The server could not be found. Check its name and your network connection.</source>
        <translation>Le serveur est introuvable. Vérifiez son nom et votre connexion réseau.</translation>
    </message>
    <message>
        <source>The server does not accept connections. Check its name and port, or try again later.</source>
        <translation>Le serveur n’accepte pas de connexions. Vérifiez son nom et son port, ou réessayez plus tard.</translation>
    </message>
    <message>
        <source>The server did not answer in time.</source>
        <translation>Le serveur n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted.</source>
        <translation>Le certificat du serveur n’est pas approuvé.</translation>
    </message>
    <message>
        <source>The account requires encryption, and the server does not offer it.</source>
        <translation>Le compte exige le chiffrement, et le serveur ne le propose pas.</translation>
    </message>
    <message>
        <source>The server offers no way to log in that this account can use.</source>
        <translation>Le serveur ne propose aucune méthode de connexion que ce compte puisse utiliser.</translation>
    </message>
    <message>
        <source>The server cannot log the account in at the moment.</source>
        <translation>Le serveur ne peut pas connecter le compte pour le moment.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>La connexion au serveur a été perdue.</translation>
    </message>
    <message>
        <source>The server closed the connection.</source>
        <translation>Le serveur a fermé la connexion.</translation>
    </message>
    <message>
        <source>Another client logged in to the account and took its place.</source>
        <translation>Un autre client s’est connecté au compte et a pris la place de celui-ci.</translation>
    </message>
    <message>
        <source>The name is already in use on the server.</source>
        <translation>Le nom est déjà utilisé sur le serveur.</translation>
    </message>
    <message>
        <source>The server does not allow this name.</source>
        <translation>Le serveur n’autorise pas ce nom.</translation>
    </message>
    <message>
        <source>The proxy cannot be reached. Check its name and port and your network connection.</source>
        <translation>Le proxy est inaccessible. Vérifiez son nom, son port et votre connexion réseau.</translation>
    </message>
    <message>
        <source>The proxy did not connect to the server in time.</source>
        <translation>Le proxy ne s’est pas connecté au serveur à temps.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user or the password.</source>
        <translation>Le proxy n’a pas accepté l’utilisateur ou le mot de passe.</translation>
    </message>
    <message>
        <source>The proxy does not allow a connection to the server.</source>
        <translation>Le proxy n’autorise pas de connexion au serveur.</translation>
    </message>
    <message>
        <source>The connection through the proxy failed.</source>
        <translation>La connexion via le proxy a échoué.</translation>
    </message>
    <message>
        <source>The system did not say in time which proxy to use, so no connection was made.</source>
        <translation>Le système n’a pas indiqué à temps quel proxy utiliser, aucune connexion n’a donc été établie.</translation>
    </message>
    <message>
        <source>The server denied access.</source>
        <translation>Le serveur a refusé l’accès.</translation>
    </message>
    <message>
        <source>The settings of the account cannot be used.</source>
        <translation>Les paramètres du compte sont inutilisables.</translation>
    </message>
    <message>
        <source>The server does not offer what was requested.</source>
        <translation>Le serveur ne propose pas ce qui a été demandé.</translation>
    </message>
    <message>
        <source>The request failed.</source>
        <translation>La requête a échoué.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Une erreur inconnue s’est produite.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; could not be found. Check its name and your network connection.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>Le serveur «&#xa0;%1&#xa0;» est introuvable. Vérifiez son nom et votre connexion réseau.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; does not accept connections. Check its name and port, or try again later.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>Le serveur «&#xa0;%1&#xa0;» n’accepte pas de connexions. Vérifiez son nom et son port, ou réessayez plus tard.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not answer in time.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>Le serveur «&#xa0;%1&#xa0;» n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: %1</source>
        <extracomment>%1 is what is wrong with the certificate</extracomment>
        <translation>Le certificat du serveur n’est pas approuvé&#xa0;: %1</translation>
    </message>
    <message>
        <source>The server cannot log the account in at the moment: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>Le serveur ne peut pas connecter le compte pour le moment&#xa0;: %1</translation>
    </message>
    <message>
        <source>The connection to the server was lost: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>La connexion au serveur a été perdue&#xa0;: %1</translation>
    </message>
    <message>
        <source>The server closed the connection: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>Le serveur a fermé la connexion&#xa0;: %1</translation>
    </message>
    <message>
        <source>Another client logged in to the account and took its place: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>Un autre client s’est connecté au compte et a pris la place de celui-ci&#xa0;: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is already in use on the server.</source>
        <extracomment>%1 is the name of a user</extracomment>
        <translation>Le nom «&#xa0;%1&#xa0;» est déjà utilisé sur le serveur.</translation>
    </message>
    <message>
        <source>The server does not allow the name &quot;%1&quot;.</source>
        <extracomment>%1 is the name of a user</extracomment>
        <translation>Le serveur n’autorise pas le nom «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The server denied access: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>Le serveur a refusé l’accès&#xa0;: %1</translation>
    </message>
    <message>
        <source>The settings of the account cannot be used: %1</source>
        <extracomment>%1 says which setting and what is wrong with it</extracomment>
        <translation>Les paramètres du compte sont inutilisables&#xa0;: %1</translation>
    </message>
    <message>
        <source>The server does not offer what was requested: %1</source>
        <extracomment>%1 is what was requested</extracomment>
        <translation>Le serveur ne propose pas ce qui a été demandé&#xa0;: %1</translation>
    </message>
    <message>
        <source>The request failed: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>La requête a échoué&#xa0;: %1</translation>
    </message>
    <message>
        <source>An error occurred: %1</source>
        <extracomment>%1 is what the server or the network said</extracomment>
        <translation>Une erreur s’est produite&#xa0;: %1</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its name and port and your network connection.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>Le proxy %1 est inaccessible. Vérifiez son nom, son port et votre connexion réseau.</translation>
    </message>
    <message>
        <source>The proxy %1 did not connect to the server in time.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>Le proxy %1 ne s’est pas connecté au serveur à temps.</translation>
    </message>
    <message>
        <source>The proxy %1 did not accept the user or the password.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>Le proxy %1 n’a pas accepté l’utilisateur ou le mot de passe.</translation>
    </message>
    <message>
        <source>The proxy %1 does not allow a connection to the server.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>Le proxy %1 n’autorise pas de connexion au serveur.</translation>
    </message>
    <message>
        <source>The connection through the proxy failed: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>La connexion via le proxy a échoué&#xa0;: %1</translation>
    </message>
    <message>
        <source>The connection ended before the server answered.</source>
        <translation>La connexion s’est terminée avant que le serveur ne réponde.</translation>
    </message>
</context>
<context>
    <name>KirvFieldForm</name>
    <message>
        <source>%1:</source>
        <translation>%1&#xa0;:</translation>
    </message>
    <message>
        <source>Invalid format.</source>
        <extracomment>%1 = a sentence that says what is valid</extracomment>
        <translation>Format incorrect.</translation>
    </message>
    <message>
        <source>Invalid format: %1</source>
        <translation>Format incorrect&#xa0;: %1</translation>
    </message>
    <message>
        <source>This must be filled in.</source>
        <translation>Ce champ doit être rempli.</translation>
    </message>
    <message>
        <source>This text is too long to be shown in full and to be changed here.</source>
        <translation>Ce texte est trop long pour être affiché en entier et modifié ici.</translation>
    </message>
    <message>
        <source>This text is too long to be shown in full. It is kept as long as nothing is changed here.</source>
        <translation>Ce texte est trop long pour être affiché en entier. Il est conservé tant que rien n’est modifié ici.</translation>
    </message>
    <message>
        <source>This must be a whole number from %1 to %2.</source>
        <translation>La valeur doit être un nombre entier compris entre %1 et %2.</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obligatoire</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>Non choisi</translation>
    </message>
</context>
<context>
    <name>KirvFileButton</name>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Choose the file.</source>
        <translation>Choisir le fichier.</translation>
    </message>
    <message>
        <source>Choose the file for %1</source>
        <extracomment>%1 = what the file is, as &quot;Trusted certificate&quot;</extracomment>
        <translation>Choisir le fichier pour «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Certificates and keys (*.pem *.crt *.cer *.key)</source>
        <translation>Certificats et clés (*.pem *.crt *.cer *.key)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>KirvGeneralPage</name>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>&amp;Language of the program:</source>
        <translation>&amp;Langue du programme&#xa0;:</translation>
    </message>
    <message>
        <source>As the system (%1)</source>
        <extracomment>entry of a list of languages; %1 = the language of the system in its own words, as &quot;Deutsch&quot;</extracomment>
        <translation>Comme le système (%1)</translation>
    </message>
    <message>
        <source>No native speaker has read these texts yet.</source>
        <translation>Aucune personne de langue maternelle n’a encore relu ces textes.</translation>
    </message>
    <message>
        <source>The language changes when the open windows are closed.</source>
        <translation>La langue change lorsque les fenêtres ouvertes sont fermées.</translation>
    </message>
    <message>
        <source>Passwords</source>
        <translation>Mots de passe</translation>
    </message>
    <message>
        <source>&amp;Unlock…</source>
        <translation>&amp;Déverrouiller…</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Your accounts and settings are in the folder %1.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation>Vos comptes et paramètres sont dans le dossier %1.</translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation>&amp;Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Shows the folder in the file manager.</source>
        <translation>Affiche le dossier dans le gestionnaire de fichiers.</translation>
    </message>
    <message>
        <source>Copies of the profile</source>
        <translation>Copies du profil</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Comptes</translation>
    </message>
    <message>
        <source>There are no copies of the profile yet.</source>
        <translation>Il n’y a pas encore de copies du profil.</translation>
    </message>
    <message>
        <source>Copies of the profile, without passwords; one can be restored when the profile is damaged:</source>
        <translation>Copies du profil, sans mots de passe&#xa0;; l’une d’elles peut être restaurée si le profil est endommagé&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Export Accounts…</source>
        <translation>&amp;Exporter des comptes…</translation>
    </message>
    <message>
        <source>Writes accounts to a file that can be imported on another computer.</source>
        <translation>Écrit des comptes dans un fichier qui peut être importé sur un autre ordinateur.</translation>
    </message>
    <message>
        <source>&amp;Import Accounts…</source>
        <translation>&amp;Importer des comptes…</translation>
    </message>
    <message>
        <source>Takes accounts over from such a file, or from Pidgin.</source>
        <translation>Reprend des comptes depuis un tel fichier ou depuis Pidgin.</translation>
    </message>
    <message>
        <source>The keyring asks you to unlock it. Then the passwords that accounts wait for are read, and those that are in a file are moved.</source>
        <translation>Le trousseau vous demande de le déverrouiller. Les mots de passe que des comptes attendent sont alors lus, et ceux d’un fichier sont déplacés.</translation>
    </message>
</context>
<context>
    <name>KirvImportWindow</name>
    <message>
        <source>Import Accounts</source>
        <translation>Importer des comptes</translation>
    </message>
    <message>
        <source>About the file</source>
        <translation>À propos du fichier</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>Ce qui se passe</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Éléments omis</translation>
    </message>
    <message>
        <source>&amp;Pass phrase:</source>
        <translation>&amp;Phrase secrète&#xa0;:</translation>
    </message>
    <message>
        <source>Choose Another &amp;File…</source>
        <translation>Choisir un autre &amp;fichier…</translation>
    </message>
    <message>
        <source>&amp;Without Passwords</source>
        <translation>&amp;Sans mots de passe</translation>
    </message>
    <message>
        <source>Lists the accounts; their passwords have to be entered here.</source>
        <translation>Liste les comptes&#xa0;; leurs mots de passe devront être saisis ici.</translation>
    </message>
    <message>
        <source>Exported accounts, accounts of Pidgin (*.json *.xml)</source>
        <translation>Comptes exportés, comptes de Pidgin (*.json *.xml)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The file %1 is being read…</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Lecture du fichier %1…</translation>
    </message>
    <message>
        <source>The file %1 contains passwords. Enter the pass phrase with which they are encrypted.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Le fichier %1 contient des mots de passe. Saisissez la phrase secrète avec laquelle ils sont chiffrés.</translation>
    </message>
    <message>
        <source>The accounts in the file %1 cannot be imported.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Les comptes du fichier %1 ne peuvent pas être importés.</translation>
    </message>
    <message>
        <source>The file %1 contains no accounts that can be imported.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Le fichier %1 ne contient aucun compte qui puisse être importé.</translation>
    </message>
    <message>
        <source>The file %1 contains these accounts. Nothing is changed before you import them, and the import can be undone.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Ces comptes sont dans le fichier %1. Rien n’est modifié avant que vous ne les importiez, et l’importation peut être annulée.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>C&amp;ontinuer</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Import %n Accounts</source>
        <translation>
            <numerusform>&amp;Importer %n compte</numerusform>
            <numerusform>&amp;Importer %n comptes</numerusform>
        </translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>New, will be left out</source>
        <translation>Nouveau, est omis</translation>
    </message>
    <message>
        <source>Exists, will be replaced</source>
        <translation>Existe ici, est remplacé</translation>
    </message>
    <message>
        <source>Exists, will be kept</source>
        <translation>Existe ici, est conservé</translation>
    </message>
    <message>
        <source>Exists as %1, will be replaced</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>Existe ici sous le nom %1, est remplacé</translation>
    </message>
    <message>
        <source>Exists as %1, will be kept</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>Existe ici sous le nom %1, est conservé</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = the login of an account, %2 = a sentence about it</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The following is not imported:</source>
        <translation>Ne sont pas importés&#xa0;:</translation>
    </message>
    <message>
        <source>Exists, will be replaced; its passwords must be entered again</source>
        <translation>Existe ici, est remplacé&#xa0;; ses mots de passe doivent être saisis à nouveau</translation>
    </message>
    <message>
        <source>Exists as %1, will be replaced; its passwords must be entered again</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>Existe ici sous le nom %1, est remplacé&#xa0;; ses mots de passe doivent être saisis à nouveau</translation>
    </message>
</context>
<context>
    <name>KirvInstanceMessage</name>
    <message>
        <source>The program that runs with this profile has another version. Quit it, and try again.</source>
        <translation>Le programme qui utilise ce profil est d’une autre version. Quittez-le, puis réessayez.</translation>
    </message>
    <message>
        <source>The message of the other program cannot be read.</source>
        <translation>Le message de l’autre programme ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The program that runs with this profile does not have that command.</source>
        <translation>Le programme qui utilise ce profil ne connaît pas cette commande.</translation>
    </message>
</context>
<context>
    <name>KirvIrcConnection</name>
    <message>
        <source>The server sent a line that is longer than lines can be.</source>
        <translation>Le serveur a envoyé une ligne plus longue que ce qui est permis.</translation>
    </message>
    <message>
        <source>There is no certificate in the file &quot;%1&quot;.</source>
        <translation>Il n’y a pas de certificat dans le fichier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>There is no private key that can be used in the file &quot;%1&quot;.</source>
        <translation>Il n’y a pas de clé privée utilisable dans le fichier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Other users of this computer can read or change the key file &quot;%1&quot;. Only its owner should.</source>
        <translation>D’autres utilisateurs de cet ordinateur peuvent lire ou modifier le fichier de clé «&#xa0;%1&#xa0;». Seul son propriétaire devrait le pouvoir.</translation>
    </message>
    <message>
        <source>It does not offer SASL now, as it did before.</source>
        <translation>Il ne propose pas SASL à présent, alors qu’il le faisait auparavant.</translation>
    </message>
    <message>
        <source>The nick &quot;%1&quot; could not be had; you are &quot;%2&quot; on this server now.</source>
        <translation>Le pseudonyme «&#xa0;%1&#xa0;» n’a pas pu être obtenu&#xa0;; vous êtes maintenant «&#xa0;%2&#xa0;» sur ce serveur.</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>%1 is what a server says first, as &quot;You are banned&quot;, %2 what it says when it closes the connection</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>password of the server</source>
        <translation>mot de passe du serveur</translation>
    </message>
    <message>
        <source>no password</source>
        <translation>aucun mot de passe</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is the encryption, as &quot;TLSv1.3&quot;, %2 how the user has proved who he is, as &quot;SASL PLAIN&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not encrypted</source>
        <translation>non chiffré</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Absent</translation>
    </message>
    <message>
        <source>The server does not answer any more.</source>
        <translation>Le serveur ne répond plus.</translation>
    </message>
</context>
<context>
    <name>KirvIrcProtocol</name>
    <message>
        <source>Internet Relay Chat: conversations in channels of a network of servers.</source>
        <translation>Internet Relay Chat&#xa0;: conversations dans les canaux d’un réseau de serveurs.</translation>
    </message>
    <message>
        <source>anna, or anna@irc.example.org</source>
        <translation>anna ou anna@irc.example.org</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponible</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Absent</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Déconnecté</translation>
    </message>
</context>
<context>
    <name>KirvIrcSasl</name>
    <message>
        <source>The password is longer than the server accepts.</source>
        <translation>Le mot de passe est plus long que ce que le serveur accepte.</translation>
    </message>
    <message>
        <source>It has ended SASL before it was done.</source>
        <translation>Il a mis fin à SASL avant que l’authentification soit terminée.</translation>
    </message>
    <message>
        <source>The client certificate is not known there.</source>
        <translation>Le certificat client n’y est pas connu.</translation>
    </message>
</context>
<context>
    <name>KirvIrcSettings</name>
    <message>
        <source>&quot;%1&quot; cannot be a nick.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être un pseudonyme.</translation>
    </message>
    <message>
        <source>No server is given.</source>
        <translation>Aucun serveur n’est indiqué.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a server.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas le nom d’un serveur.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Le port doit être un nombre compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>There is a key of a client certificate, but no client certificate.</source>
        <translation>Il y a une clé de certificat client, mais pas de certificat client.</translation>
    </message>
    <message>
        <source>A client certificate can be used with encryption only.</source>
        <translation>Un certificat client ne peut être utilisé qu’avec le chiffrement.</translation>
    </message>
    <message>
        <source>The password cannot be sent: it is too long or has characters that do not belong to a line.</source>
        <translation>Le mot de passe ne peut pas être envoyé&#xa0;: il est trop long ou contient des caractères qui n’ont pas leur place dans une ligne.</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>The name or address of the server. When it is empty, the part of the login after the @ is the server.</source>
        <translation>Le nom ou l’adresse du serveur. Si ce champ est vide, la partie de l’identifiant qui suit le @ est le serveur.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Chiffrement</translation>
    </message>
    <message>
        <source>Required (TLS)</source>
        <translation>Obligatoire (TLS)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>With encryption the server must also prove who it is. Without, everybody on the way can read along.</source>
        <translation>Avec le chiffrement, le serveur doit aussi prouver son identité. Sans lui, n’importe qui sur le trajet peut lire ce qui est échangé.</translation>
    </message>
    <message>
        <source>Trusted certificate</source>
        <translation>Certificat approuvé</translation>
    </message>
    <message>
        <source>The path of a file with a certificate (PEM) to trust besides those that this computer trusts already.</source>
        <translation>Le chemin d’un fichier contenant un certificat (PEM) à approuver en plus de ceux que cet ordinateur approuve déjà.</translation>
    </message>
    <message>
        <source>Use of the password</source>
        <translation>Utilisation du mot de passe</translation>
    </message>
    <message>
        <source>Not used</source>
        <translation>Non utilisé</translation>
    </message>
    <message>
        <source>Password of the server</source>
        <translation>Mot de passe du serveur</translation>
    </message>
    <message>
        <source>Password of a registered nick (SASL)</source>
        <translation>Mot de passe d’un pseudonyme enregistré (SASL)</translation>
    </message>
    <message>
        <source>What the account&apos;s password is for. Most networks need none, unless you have registered your nick there.</source>
        <translation>Ce à quoi sert le mot de passe du compte. La plupart des réseaux n’en demandent pas, sauf si vous y avez enregistré votre pseudonyme.</translation>
    </message>
    <message>
        <source>SASL user</source>
        <translation>Utilisateur SASL</translation>
    </message>
    <message>
        <source>The name under which the nick is registered. Empty: the nick itself.</source>
        <translation>Le nom sous lequel le pseudonyme est enregistré. Vide&#xa0;: le pseudonyme lui-même.</translation>
    </message>
    <message>
        <source>Real name</source>
        <translation>Nom réel</translation>
    </message>
    <message>
        <source>What others see as your name when they ask for it. Empty: the nick.</source>
        <translation>Ce que les autres voient comme votre nom lorsqu’ils le demandent. Vide&#xa0;: le pseudonyme.</translation>
    </message>
    <message>
        <source>Alternative nicks</source>
        <translation>Autres pseudonymes</translation>
    </message>
    <message>
        <source>Nicks to try when yours is in use, separated by commas.</source>
        <translation>Pseudonymes à essayer lorsque le vôtre est déjà utilisé, séparés par des virgules.</translation>
    </message>
    <message>
        <source>Client certificate</source>
        <translation>Certificat client</translation>
    </message>
    <message>
        <source>The path of a file with a certificate of your own (PEM), to log in with instead of the password (SASL EXTERNAL). Empty: none.</source>
        <translation>Le chemin d’un fichier contenant votre propre certificat (PEM), utilisé pour la connexion à la place du mot de passe (SASL EXTERNAL). Vide&#xa0;: aucun.</translation>
    </message>
    <message>
        <source>Key of the client certificate</source>
        <translation>Clé du certificat client</translation>
    </message>
    <message>
        <source>The path of the file with the certificate&apos;s private key (PEM, without a password). Empty: it is in the certificate&apos;s file.</source>
        <translation>Le chemin du fichier contenant la clé privée du certificat (PEM, sans mot de passe). Vide&#xa0;: elle se trouve dans le fichier du certificat.</translation>
    </message>
    <message>
        <source>Server on this computer</source>
        <translation>Serveur sur cet ordinateur</translation>
    </message>
    <message>
        <source>A nickname contains no blanks.</source>
        <translation>Un pseudonyme ne contient pas d’espaces.</translation>
    </message>
    <message>
        <source>The nickname is missing.</source>
        <translation>Le pseudonyme est manquant.</translation>
    </message>
    <message>
        <source>A nickname starts with a letter.</source>
        <translation>Un pseudonyme commence par une lettre.</translation>
    </message>
    <message>
        <source>A nickname consists of unaccented letters, digits and the characters %1.</source>
        <translation>Un pseudonyme se compose de lettres sans accent, de chiffres et des caractères %1.</translation>
    </message>
    <message>
        <source>The server after the &quot;@&quot; is missing.</source>
        <translation>Le serveur après le «&#xa0;@&#xa0;» est manquant.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address of a server.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une adresse de serveur.</translation>
    </message>
    <message>
        <source>Usually 6697 with encryption and 6667 without. When the server is empty, a port in the login, as in ann@irc.example.org:6667, is used instead.</source>
        <translation>Généralement 6697 avec chiffrement et 6667 sans. Quand le serveur est vide, un port dans l’identifiant, comme dans ann@irc.example.org:6667, est utilisé à la place.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutCatalog</name>
    <message>
        <source>&quot;%1&quot; is a %2, but must be a %3.</source>
        <translation>«&#xa0;%1&#xa0;» est un %2, mais doit être un %3.</translation>
    </message>
    <message>
        <source>There is no %1 named &quot;%2&quot;.</source>
        <translation>Il n’y a pas de %1 nommé «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no standard button %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas de bouton standard %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs two tabs: the account and its directory entry.</source>
        <translation>«&#xa0;%1&#xa0;» doit avoir deux onglets&#xa0;: le compte et sa fiche de l’annuaire.</translation>
    </message>
    <message>
        <source>The layout file %1 cannot be used; the built-in layout takes its place.
%2</source>
        <translation>Le fichier de disposition %1 est inutilisable&#xa0;; la disposition intégrée prend sa place.
%2</translation>
    </message>
    <message>
        <source>The window is a %1, but must be a %2.</source>
        <translation>La fenêtre est un %1, mais doit être un %2.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutCheck</name>
    <message>
        <source>It declares a document type, which a layout cannot have.</source>
        <translation>Il déclare un type de document, ce qu’une disposition ne peut pas contenir.</translation>
    </message>
    <message>
        <source>It is not a window layout of Qt Designer.</source>
        <translation>Ce n’est pas une disposition de fenêtre de Qt Designer.</translation>
    </message>
    <message>
        <source>Its elements are nested too deeply.</source>
        <translation>Ses éléments sont imbriqués trop profondément.</translation>
    </message>
    <message>
        <source>It has too many widgets.</source>
        <translation>Il contient trop d’éléments graphiques.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>It connects widgets with each other, which only the program does.</source>
        <translation>Il relie des éléments graphiques entre eux, ce que seul le programme fait.</translation>
    </message>
    <message>
        <source>It has an element &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Il contient un élément «&#xa0;%1&#xa0;», ce qu’une disposition ne peut pas contenir.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of an icon.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas le nom d’une icône.</translation>
    </message>
    <message>
        <source>It has an attribute &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Il contient un attribut «&#xa0;%1&#xa0;», ce qu’une disposition ne peut pas contenir.</translation>
    </message>
    <message>
        <source>It has an attribute that is too long.</source>
        <translation>Il contient un attribut trop long.</translation>
    </message>
    <message>
        <source>It has a row or column that is out of bounds: %1.</source>
        <translation>Il contient une ligne ou une colonne hors limites&#xa0;: %1.</translation>
    </message>
    <message>
        <source>It has a number that is out of bounds: %1 (%2).</source>
        <translation>Il contient un nombre hors limites&#xa0;: %1 (%2).</translation>
    </message>
    <message>
        <source>It has a text that can be read in more than one way: &quot;%1&quot;.</source>
        <translation>Il contient un texte qui peut être lu de plusieurs façons&#xa0;: «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>It has a text of the format &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Il contient un texte au format «&#xa0;%1&#xa0;», ce qu’une disposition ne peut pas contenir.</translation>
    </message>
    <message>
        <source>It sets &quot;%1&quot; to a text, which a layout cannot do.</source>
        <translation>Il affecte un texte à «&#xa0;%1&#xa0;», ce qu’une disposition ne peut pas faire.</translation>
    </message>
    <message>
        <source>Its style sheet contains &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Sa feuille de style contient «&#xa0;%1&#xa0;», ce qu’une disposition ne peut pas contenir.</translation>
    </message>
    <message>
        <source>Style sheets and rich texts name pictures by their whole path, &quot;%1&quot; does not.</source>
        <translation>Les feuilles de style et les textes enrichis désignent les images par leur chemin complet, ce que «&#xa0;%1&#xa0;» ne fait pas.</translation>
    </message>
    <message>
        <source>It has a rich text that is too large.</source>
        <translation>Il contient un texte enrichi trop volumineux.</translation>
    </message>
    <message>
        <source>There is no picture &quot;%1&quot;.</source>
        <translation>Il n’y a pas d’image «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; is not in the folder of the layout.</source>
        <translation>L’image «&#xa0;%1&#xa0;» n’est pas dans le dossier de la disposition.</translation>
    </message>
    <message>
        <source>It uses the unknown class %1.</source>
        <translation>Il demande un élément graphique de la classe inconnue %1.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutFile</name>
    <message>
        <source>It uses the unknown class %1.</source>
        <translation>Il demande un élément graphique de la classe inconnue %1.</translation>
    </message>
    <message>
        <source>It is not a window layout: %1</source>
        <translation>Ce n’est pas une disposition de fenêtre&#xa0;: %1</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>Ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>Il ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Il est vide.</translation>
    </message>
    <message>
        <source>It is larger than %1 kB.</source>
        <translation>Il dépasse %1 ko.</translation>
    </message>
</context>
<context>
    <name>KirvLeftOut</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvLengthLimit</name>
    <message>
        <source>The text is too long here. At most %1 characters are kept.</source>
        <translation>Le texte est trop long ici. Au plus %1 caractères sont conservés.</translation>
    </message>
</context>
<context>
    <name>KirvLoginLine</name>
    <message>
        <source>A login cannot contain this.</source>
        <translation>Un identifiant ne peut pas contenir cela.</translation>
    </message>
</context>
<context>
    <name>KirvLoginStep</name>
    <message>
        <source>Name look-up</source>
        <translation>Résolution du nom</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Chiffrement</translation>
    </message>
    <message>
        <source>Log-in</source>
        <translation>Authentification</translation>
    </message>
</context>
<context>
    <name>KirvLoginTest</name>
    <message>
        <source>The plug-in gives no connection.</source>
        <translation>Le greffon ne fournit aucune connexion.</translation>
    </message>
    <message>
        <source>The log-in works.</source>
        <translation>La connexion fonctionne.</translation>
    </message>
    <message>
        <source>The test was cancelled.</source>
        <translation>Le test a été annulé.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = a step of a log-in, as &quot;Connection&quot;; %2 = with whom or how, as &quot;192.0.2.7&quot;, or what went wrong</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>%1 = a step of a log-in, as &quot;Connection: 192.0.2.7&quot;, %2 = a sentence about what went wrong</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>running</source>
        <translation>en cours</translation>
    </message>
    <message>
        <source>done</source>
        <translation>succès</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>Test of a log-in, %1</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Test d’une connexion, %1</translation>
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
        <translation>Connexion de %1</translation>
    </message>
</context>
<context>
    <name>KirvLoginTestView</name>
    <message>
        <source>Copy Report</source>
        <translation>Copier le rapport</translation>
    </message>
    <message>
        <source>Steps of the log-in</source>
        <translation>Étapes de la connexion</translation>
    </message>
    <message>
        <source>Copies the steps and the versions of the program, without the password.</source>
        <translation>Copie les étapes et les versions du programme, sans le mot de passe.</translation>
    </message>
    <message>
        <source>Test Log-In</source>
        <translation>Tester la connexion</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>%1 = number of milliseconds</extracomment>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = what became of a step (&quot;done&quot;, &quot;failed&quot;), %2 = the step</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 = a step and what became of it, %2 = how long it took</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Cancel Test</source>
        <translation>Annuler le test</translation>
    </message>
    <message>
        <source>Test Again</source>
        <translation>Tester à nouveau</translation>
    </message>
    <message>
        <source>Logs in once with what is here, and shows each step. Nothing is stored.</source>
        <translation>Se connecte une fois avec ce qui est indiqué ici et affiche chaque étape. Rien n’est enregistré.</translation>
    </message>
</context>
<context>
    <name>KirvMainAccountSelector</name>
    <message>
        <source>%1 (its plug-in is not loaded)</source>
        <extracomment>%1 = name of the main account</extracomment>
        <translation>%1 (son greffon n’est pas chargé)</translation>
    </message>
</context>
<context>
    <name>KirvMessageBar</name>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Close this message.</source>
        <translation>Fermer ce message.</translation>
    </message>
    <message>
        <source>Close This Message</source>
        <translation>Fermer ce message</translation>
    </message>
</context>
<context>
    <name>KirvMoveDialog</name>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
</context>
<context>
    <name>KirvMovingCommands</name>
    <message>
        <source>Passwords of the account &quot;%1&quot; are left out: the keyring is locked.</source>
        <extracomment>%1 = name of an account, as XMPP:anna@example.org</extracomment>
        <translation>Des mots de passe du compte «&#xa0;%1&#xa0;» sont omis&#xa0;: le trousseau de clés est verrouillé.</translation>
    </message>
    <message>
        <source>A pass phrase is needed.</source>
        <translation>Une phrase secrète est nécessaire.</translation>
    </message>
</context>
<context>
    <name>KirvMovingFile</name>
    <message>
        <source>%1 is not an ordinary file.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>%1 n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read: %2.</source>
        <extracomment>%1 = path of a file, %2 = the system&apos;s reason</extracomment>
        <translation>Le fichier %1 ne peut pas être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 is a link to another file. Choose another name.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>%1 est un lien vers un autre fichier. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>The file %1 is larger than %L2 MB, so it is not read.</source>
        <extracomment>%1 = path of a file, %L2 = a number</extracomment>
        <translation>Le fichier %1 dépasse %L2 Mo, il n’est donc pas lu.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <extracomment>%1 = path of a file, %2 = the system&apos;s reason</extracomment>
        <translation>Le fichier %1 ne peut pas être écrit&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>KirvNgircdServer</name>
    <message>
        <source>The files of the server could not be given to it.</source>
        <translation>La propriété des fichiers du serveur n’a pas pu lui être transférée.</translation>
    </message>
</context>
<context>
    <name>KirvPageCommands</name>
    <message numerus="yes">
        <source>&amp;Enable %n Accounts</source>
        <translation>
            <numerusform>&amp;Activer %n compte</numerusform>
            <numerusform>&amp;Activer %n comptes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Disable %n Accounts</source>
        <translation>
            <numerusform>&amp;Désactiver %n compte</numerusform>
            <numerusform>&amp;Désactiver %n comptes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Re&amp;move %n Accounts…</source>
        <translation>
            <numerusform>&amp;Supprimer %n compte…</numerusform>
            <numerusform>&amp;Supprimer %n comptes…</numerusform>
        </translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Modifier…</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>&amp;Désactiver</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>&amp;Activer</translation>
    </message>
    <message>
        <source>Make Main &amp;Account</source>
        <translation>Définir comme compte &amp;principal</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>Re&amp;connecter</translation>
    </message>
    <message>
        <source>Enter &amp;Password…</source>
        <translation>Saisir le m&amp;ot de passe…</translation>
    </message>
    <message>
        <source>Pre&amp;sence</source>
        <translation>S&amp;tatut</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Disable A&amp;ll…</source>
        <translation>To&amp;ut désactiver…</translation>
    </message>
    <message>
        <source>Enable Those &amp;Again</source>
        <translation>Réacti&amp;ver ces comptes</translation>
    </message>
    <message>
        <source>&amp;Own Order</source>
        <translation>Ordre p&amp;ersonnalisé</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>Show &amp;Certificate…</source>
        <translation>A&amp;fficher le certificat…</translation>
    </message>
    <message>
        <source>&amp;Test Log-In</source>
        <translation>Tester la conne&amp;xion</translation>
    </message>
    <message>
        <source>L&amp;og</source>
        <translation>&amp;Journal</translation>
    </message>
    <message numerus="yes">
        <source>E&amp;xport %n Accounts…</source>
        <translation>
            <numerusform>Exporter %n compte dans un f&amp;ichier…</numerusform>
            <numerusform>Exporter %n comptes dans un f&amp;ichier…</numerusform>
        </translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>Exporter dans un f&amp;ichier…</translation>
    </message>
</context>
<context>
    <name>KirvPassPhrase</name>
    <message numerus="yes">
        <source>The pass phrase needs at least %n characters.</source>
        <translation>
            <numerusform>La phrase secrète doit comporter au moins %n caractère.</numerusform>
            <numerusform>La phrase secrète doit comporter au moins %n caractères.</numerusform>
        </translation>
    </message>
    <message>
        <source>The pass phrase is too long.</source>
        <translation>La phrase secrète est trop longue.</translation>
    </message>
</context>
<context>
    <name>KirvPassPhraseInput</name>
    <message>
        <source>The pass phrase cannot be read from file descriptor %1.</source>
        <translation>La phrase secrète ne peut pas être lue depuis le descripteur de fichier %1.</translation>
    </message>
    <message>
        <source>The pass phrase from file descriptor %1 is too long.</source>
        <translation>La phrase secrète lue depuis le descripteur de fichier %1 est trop longue.</translation>
    </message>
    <message>
        <source>There is no pass phrase to be read from file descriptor %1.</source>
        <translation>Il n’y a pas de phrase secrète à lire depuis le descripteur de fichier %1.</translation>
    </message>
    <message>
        <source>The pass phrase cannot be read from the file &quot;%1&quot;.</source>
        <translation>La phrase secrète ne peut pas être lue depuis le fichier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The pass phrase in the file &quot;%1&quot; is too long.</source>
        <translation>La phrase secrète dans le fichier «&#xa0;%1&#xa0;» est trop longue.</translation>
    </message>
    <message>
        <source>There is no pass phrase in the file &quot;%1&quot;.</source>
        <translation>Il n’y a pas de phrase secrète dans le fichier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>A pass phrase is needed, and there is no terminal to enter it on. Use --pass-phrase-file or --pass-phrase-fd.</source>
        <translation>Une phrase secrète est nécessaire, mais il n’y a pas de terminal où la saisir. Indiquez-la avec --pass-phrase-file ou --pass-phrase-fd.</translation>
    </message>
    <message>
        <source>Pass phrase for the file: </source>
        <translation>Phrase secrète du fichier&#xa0;: </translation>
    </message>
    <message>
        <source>No pass phrase was entered.</source>
        <translation>Aucune phrase secrète n’a été saisie.</translation>
    </message>
    <message>
        <source>Repeat the pass phrase: </source>
        <translation>La même encore une fois&#xa0;: </translation>
    </message>
    <message>
        <source>The two pass phrases are not the same.</source>
        <translation>La phrase secrète n’a pas été saisie deux fois de la même façon.</translation>
    </message>
</context>
<context>
    <name>KirvPasswordDialog</name>
    <message>
        <source>&amp;Remember the password</source>
        <translation>&amp;Retenir le mot de passe</translation>
    </message>
    <message>
        <source>Password Needed</source>
        <translation>Mot de passe requis</translation>
    </message>
    <message>
        <source>Enter the password of the account %1 (%2).</source>
        <extracomment>%1 = name of an account, %2 = its protocol</extracomment>
        <translation>Saisissez le mot de passe du compte %1 (%2).</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Keeps the password, so that it is not asked for again.</source>
        <translation>Conserve le mot de passe, pour qu’il ne soit plus demandé.</translation>
    </message>
    <message>
        <source>&amp;Log In</source>
        <translation>Se &amp;connecter</translation>
    </message>
    <message>
        <source>The server did not accept the password that was used last.</source>
        <translation>Le serveur n’a pas accepté le dernier mot de passe utilisé.</translation>
    </message>
    <message>
        <source>The account has a password; the one that you enter takes its place.</source>
        <translation>Le compte a un mot de passe&#xa0;; celui que vous saisissez le remplace.</translation>
    </message>
    <message>
        <source>No password was entered for this account yet.</source>
        <translation>Aucun mot de passe n’a encore été saisi pour ce compte.</translation>
    </message>
    <message>
        <source>The password is not remembered, so it is needed when the account logs in.</source>
        <translation>Le mot de passe n’est pas retenu, il est donc nécessaire lorsque le compte se connecte.</translation>
    </message>
</context>
<context>
    <name>KirvPidginFile</name>
    <message>
        <source>The account &quot;%1&quot; was left out: the protocol %2 is not supported.</source>
        <extracomment>%1 = login, %2 = name of a protocol</extracomment>
        <translation>Le compte «&#xa0;%1&#xa0;» a été omis&#xa0;: le protocole %2 n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>An account was left out: it has no login.</source>
        <translation>Un compte a été omis&#xa0;: il n’a pas d’identifiant.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; was left out: it is not in the file.</source>
        <extracomment>%1 = login</extracomment>
        <translation>L’image du compte «&#xa0;%1&#xa0;» a été omise&#xa0;: elle n’est pas dans le fichier.</translation>
    </message>
    <message>
        <source>The resource of the account &quot;%1&quot; was left out: it has the name of the computer in it, or characters that mean something else here.</source>
        <extracomment>%1 = login</extracomment>
        <translation>La ressource du compte «&#xa0;%1&#xa0;» a été omise&#xa0;: elle contient le nom de l’ordinateur, ou des caractères qui ont ici un autre sens.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; now requires encryption: what the file says of it is not known.</source>
        <translation>Le compte «&#xa0;%1&#xa0;» exige désormais le chiffrement&#xa0;: ce que le fichier indique à ce sujet est inconnu.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; does not send its password without encryption any more.</source>
        <translation>Le compte «&#xa0;%1&#xa0;» n’envoie plus son mot de passe sans chiffrement.</translation>
    </message>
    <message>
        <source>The server of the account &quot;%1&quot; was left out: it is not the name or address of a server.</source>
        <translation>Le serveur du compte «&#xa0;%1&#xa0;» a été omis&#xa0;: ce n’est ni le nom ni l’adresse d’un serveur.</translation>
    </message>
    <message>
        <source>The port of the account &quot;%1&quot; was left out: it is not a number from 1 to 65535.</source>
        <translation>Le port du compte «&#xa0;%1&#xa0;» a été omis&#xa0;: ce n’est pas un nombre compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; has no server. Enter one before it is used.</source>
        <translation>Le compte «&#xa0;%1&#xa0;» n’a pas de serveur. Saisissez-en un avant de l’utiliser.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; uses UTF-8 instead of the encoding %2, which is not supported.</source>
        <extracomment>%1 = login, %2 = name of a character encoding</extracomment>
        <translation>Le compte «&#xa0;%1&#xa0;» utilise UTF-8 au lieu de l’encodage %2, qui n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; now requires encryption: otherwise its password would be sent without it.</source>
        <translation>Le compte «&#xa0;%1&#xa0;» exige désormais le chiffrement&#xa0;: sinon, son mot de passe serait envoyé sans chiffrement.</translation>
    </message>
    <message>
        <source>Its kind is not supported.</source>
        <translation>Son type n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>The proxy of the account &quot;%1&quot; was left out. %2 The account is disabled, so that it does not connect without the proxy.</source>
        <extracomment>%1 = login, %2 = a sentence</extracomment>
        <translation>Le proxy du compte «&#xa0;%1&#xa0;» a été omis. %2 Le compte est désactivé, afin qu’il ne se connecte pas sans le proxy.</translation>
    </message>
    <message>
        <source>Settings of the account &quot;%1&quot; were left out, as there are no such settings here: %2.</source>
        <extracomment>%1 = login, %2 = names, separated by commas</extracomment>
        <translation>Des paramètres du compte «&#xa0;%1&#xa0;» ont été omis, car il n’y en a pas d’équivalents ici&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file is no text.</source>
        <translation>Le fichier n’est pas du texte.</translation>
    </message>
    <message>
        <source>A text in the file is too long.</source>
        <translation>Un texte du fichier est trop long.</translation>
    </message>
    <message>
        <source>The file is damaged or no XML (line %1: %2).</source>
        <extracomment>%1 = number of a line, %2 = what is wrong there</extracomment>
        <translation>Le fichier est endommagé ou n’est pas du XML (ligne %1&#xa0;: %2).</translation>
    </message>
    <message>
        <source>The file is not encoded as UTF-8.</source>
        <translation>Le fichier n’est pas encodé en UTF-8.</translation>
    </message>
    <message>
        <source>The file declares a document type or uses entities, which no file of Pidgin does.</source>
        <translation>Le fichier déclare un type de document ou utilise des entités, ce que ne fait aucun fichier de Pidgin.</translation>
    </message>
    <message>
        <source>The elements of the file are nested too deeply, or have too many attributes.</source>
        <translation>Les éléments du fichier sont trop profondément imbriqués ou ont trop d’attributs.</translation>
    </message>
    <message>
        <source>There are elements in the file where a text is expected (line %1).</source>
        <translation>Le fichier contient des éléments là où un texte est attendu (ligne %1).</translation>
    </message>
    <message>
        <source>Something follows the accounts in the file.</source>
        <translation>Il y a quelque chose après les comptes dans le fichier.</translation>
    </message>
    <message>
        <source>An account in the file has too many settings.</source>
        <translation>Un compte du fichier a trop de paramètres.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Le fichier est trop volumineux.</translation>
    </message>
    <message>
        <source>The file does not hold accounts of Pidgin.</source>
        <translation>Le fichier ne contient pas de comptes de Pidgin.</translation>
    </message>
    <message>
        <source>The file is of another version of Pidgin, which is not known.</source>
        <translation>Le fichier provient d’une autre version de Pidgin, qui est inconnue.</translation>
    </message>
    <message numerus="yes">
        <source>The file has more than %n accounts.</source>
        <translation>
            <numerusform>Le fichier contient plus de %n compte.</numerusform>
            <numerusform>Le fichier contient plus de %n comptes.</numerusform>
        </translation>
    </message>
    <message>
        <source>If Pidgin uses a proxy for all accounts, it is not in this file. Set it for the accounts before they log in.</source>
        <translation>Si Pidgin utilise un proxy pour tous les comptes, il n’est pas dans ce fichier. Définissez-le pour les comptes avant qu’ils ne se connectent.</translation>
    </message>
</context>
<context>
    <name>KirvPluginCall</name>
    <message>
        <source>an exception of an unknown kind</source>
        <translation>une exception de type inconnu</translation>
    </message>
    <message>
        <source>The plug-in failed: %1</source>
        <translation>Le greffon a échoué&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>KirvPluginFile</name>
    <message>
        <source>The file is not a plug-in library.</source>
        <translation>Le fichier n’est pas une bibliothèque de greffon.</translation>
    </message>
    <message>
        <source>The plug-in is not one for protocols: its interface is &quot;%1&quot;.</source>
        <translation>Le greffon n’est pas destiné aux protocoles&#xa0;: son interface est «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The plug-in was built for version %1 of the plug-in interface; this program has version %2.</source>
        <translation>Le greffon a été compilé pour la version %1 de l’interface des greffons&#xa0;; ce programme a la version %2.</translation>
    </message>
    <message>
        <source>The plug-in did not create its protocol and gave no reason.</source>
        <translation>Le greffon n’a pas créé son protocole et n’a donné aucune raison.</translation>
    </message>
    <message>
        <source>The library cannot be loaded: %1</source>
        <translation>La bibliothèque ne peut pas être chargée&#xa0;: %1</translation>
    </message>
    <message>
        <source>The plug-in does not have the interface that it states.</source>
        <translation>Le greffon n’a pas l’interface qu’il déclare.</translation>
    </message>
    <message>
        <source>The protocol has no name.</source>
        <translation>Le protocole n’a pas de nom.</translation>
    </message>
    <message>
        <source>The name of the protocol has more than %1 characters.</source>
        <translation>Le nom du protocole comporte plus de %1 caractères.</translation>
    </message>
    <message>
        <source>The protocol &quot;%1&quot; offers no presence.</source>
        <translation>Le protocole «&#xa0;%1&#xa0;» ne propose aucun statut.</translation>
    </message>
</context>
<context>
    <name>KirvPluginLoader</name>
    <message>
        <source>A protocol with the name &quot;%1&quot; is loaded already.</source>
        <translation>Un protocole nommé «&#xa0;%1&#xa0;» est déjà chargé.</translation>
    </message>
</context>
<context>
    <name>KirvPluginQueue</name>
    <message>
        <source>The plug-in &quot;%1&quot; was left out, because the program ended when it was loaded the last time. It can be loaded on the page of the plug-ins.</source>
        <extracomment>%1 = name of a plug-in</extracomment>
        <translation>Le greffon «&#xa0;%1&#xa0;» a été écarté, car le programme s’est arrêté lors de son dernier chargement. Il peut être chargé sur la page des greffons.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it crashed when it was tested.</source>
        <translation>Le greffon a été écarté, car il s’est arrêté brutalement lors de son test.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it ended the process in which it was tested.</source>
        <translation>Le greffon a été écarté, car il a mis fin au processus dans lequel il était testé.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it was not ready within %1 s when it was tested.</source>
        <translation>Le greffon a été écarté, car il n’était pas prêt au bout de %1 s lors de son test.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because the program ended when it was loaded the last time.</source>
        <translation>Le greffon a été écarté, car le programme s’est arrêté lors de son dernier chargement.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Le fichier ne peut pas être lu.</translation>
    </message>
</context>
<context>
    <name>KirvPluginTrust</name>
    <message>
        <source>The file cannot be examined.</source>
        <translation>Le fichier ne peut pas être examiné.</translation>
    </message>
    <message>
        <source>The plug-in is not trusted: %1 belongs to another user.</source>
        <extracomment>%1 = path of a file or folder</extracomment>
        <translation>Le greffon n’est pas digne de confiance&#xa0;: %1 appartient à un autre utilisateur.</translation>
    </message>
    <message>
        <source>The plug-in is not trusted: others than you may write to %1.</source>
        <extracomment>%1 = path of a file or folder</extracomment>
        <translation>Le greffon n’est pas digne de confiance&#xa0;: d’autres que vous peuvent écrire dans %1.</translation>
    </message>
</context>
<context>
    <name>KirvPluginsPage</name>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Charger</translation>
    </message>
    <message>
        <source>&amp;Unload</source>
        <translation>&amp;Décharger</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Greffons</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Greffon</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>About the plug-in</source>
        <translation>À propos du greffon</translation>
    </message>
    <message>
        <source>Loads the plug-in; its accounts come back as they were.</source>
        <translation>Charge le greffon&#xa0;; ses comptes reviennent tels qu’ils étaient.</translation>
    </message>
    <message>
        <source>Logs the accounts of the plug-in out. They stay in your profile.</source>
        <translation>Déconnecte les comptes du greffon. Ils restent dans votre profil.</translation>
    </message>
    <message>
        <source>Plug-ins are looked for in the folder %1.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation>Les greffons sont recherchés dans le dossier %1.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Being tested</source>
        <translation>En cours de test</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Chargement</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>Chargé</translation>
    </message>
    <message>
        <source>Not loaded</source>
        <translation>Non chargé</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>There are no plug-ins.</source>
        <translation>Il n’y a aucun greffon.</translation>
    </message>
    <message>
        <source>&amp;Report…</source>
        <translation>&amp;Rapport…</translation>
    </message>
    <message>
        <source>Puts versions, plug-ins and the states of the accounts together for somebody who helps.</source>
        <translation>Rassemble les versions, les greffons et l’état des comptes pour une personne qui vous aide.</translation>
    </message>
    <message>
        <source>When the plug-in %1 is unloaded, its account %2 goes off line.</source>
        <extracomment>%1 = name of a plug-in, %2 = name of an account</extracomment>
        <translation>Lorsque le greffon %1 est déchargé, son compte %2 passe hors ligne.</translation>
    </message>
    <message numerus="yes">
        <source>When the plug-in %1 is unloaded, its %n connected accounts go off line.</source>
        <extracomment>%1 = name of a plug-in</extracomment>
        <translation>
            <numerusform>Lorsque le greffon %1 est déchargé, son %n compte connecté passe hors ligne.</numerusform>
            <numerusform>Lorsque le greffon %1 est déchargé, ses %n comptes connectés passent hors ligne.</numerusform>
        </translation>
    </message>
    <message>
        <source>Unload Plug-in</source>
        <translation>Décharger le greffon</translation>
    </message>
    <message>
        <source>The accounts stay in your profile and come back when the plug-in is loaded again.</source>
        <translation>Les comptes restent dans votre profil et reviennent lorsque le greffon est à nouveau chargé.</translation>
    </message>
</context>
<context>
    <name>KirvProfileCheck</name>
    <message>
        <source>The profile folder &quot;%1&quot; could not be made.</source>
        <translation>Le dossier de profil «&#xa0;%1&#xa0;» n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link. The program follows no link inside a profile: replace it by what it leads to.</source>
        <translation>«&#xa0;%1&#xa0;» est un lien. Le programme ne suit aucun lien à l’intérieur d’un profil&#xa0;: remplacez-le par ce vers quoi il mène.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file. Move it away to use the profile.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un fichier ordinaire. Déplacez-le ailleurs pour utiliser le profil.</translation>
    </message>
    <message>
        <source>Its database is missing.</source>
        <translation>Sa base de données est manquante.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not a profile: it holds other files. Nothing in it was changed: choose an empty folder.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n’est pas un profil&#xa0;: il contient d’autres fichiers. Rien n’y a été modifié&#xa0;: choisissez un dossier vide.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; was written by a newer version of the program. Use that version to open it; nothing in it was changed.</source>
        <translation>Le profil dans «&#xa0;%1&#xa0;» a été écrit par une version plus récente du programme. Utilisez cette version pour l’ouvrir&#xa0;; rien n’y a été modifié.</translation>
    </message>
    <message>
        <source>The end of its database is missing.</source>
        <translation>La fin de sa base de données est manquante.</translation>
    </message>
    <message>
        <source>Tables or columns of its database are missing.</source>
        <translation>Il manque des tables ou des colonnes dans sa base de données.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is in use by another running instance of the program. Close that one first.</source>
        <translation>Le profil dans «&#xa0;%1&#xa0;» est utilisé par une autre instance du programme en cours d’exécution. Fermez-la d’abord.</translation>
    </message>
    <message>
        <source>The profile folder &quot;%1&quot; cannot be written. Check its owner and permissions, and whether the disk is full.</source>
        <translation>Le dossier de profil «&#xa0;%1&#xa0;» n’est pas accessible en écriture. Vérifiez son propriétaire et ses permissions, et si le disque est plein.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is damaged. %2 Nothing in it was changed.</source>
        <extracomment>%1 = path of a folder, %2 = a sentence about what is wrong with it</extracomment>
        <translation>Le profil dans «&#xa0;%1&#xa0;» est endommagé. %2 Rien n’y a été modifié.</translation>
    </message>
    <message>
        <source>The file of its database does not hold one any more.</source>
        <translation>Le fichier de sa base de données n’en contient plus.</translation>
    </message>
    <message>
        <source>Parts of its database cannot be read, or contradict each other.</source>
        <translation>Des parties de sa base de données ne peuvent pas être lues ou se contredisent.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; belongs to another program. Nothing in it was changed.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» appartient à un autre programme. Rien n’y a été modifié.</translation>
    </message>
</context>
<context>
    <name>KirvProfileCommand</name>
    <message>
        <source>There is no profile in &quot;%1&quot; yet.</source>
        <translation>Il n’y a pas encore de profil dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is not damaged.</source>
        <translation>Le profil dans «&#xa0;%1&#xa0;» n’est pas endommagé.</translation>
    </message>
    <message>
        <source>The profile is not damaged, so nothing was restored. Name a copy to go back to it.</source>
        <translation>Le profil n’est pas endommagé, rien n’a donc été restauré. Indiquez une copie pour y revenir.</translation>
    </message>
    <message>
        <source>There is no copy of the profile that could be restored.</source>
        <translation>Il n’y a aucune copie du profil qui puisse être restaurée.</translation>
    </message>
    <message>
        <source>There is no copy &quot;%1&quot; that could be restored.</source>
        <translation>Il n’y a aucune copie «&#xa0;%1&#xa0;» qui puisse être restaurée.</translation>
    </message>
    <message>
        <source>The profile is not damaged, so there is nothing to recover.</source>
        <translation>Le profil n’est pas endommagé, il n’y a donc rien à récupérer.</translation>
    </message>
    <message>
        <source>The option --restore restores the newest copy or the one that is named, and --recover reads what is still readable of the damaged database. To start fresh, move the folder away.</source>
        <translation>L’option --restore restaure la copie la plus récente ou celle qui est nommée, et --recover lit ce qui est encore lisible de la base de données endommagée. Pour repartir de zéro, déplacez le dossier ailleurs.</translation>
    </message>
    <message>
        <source>Copies of the profile, without passwords:</source>
        <translation>Copies du profil, sans les mots de passe&#xa0;:</translation>
    </message>
    <message>
        <source>  %1  %2  Accounts: %3</source>
        <extracomment>%1 = name of a file, %2 = date and time, %3 = number of accounts</extracomment>
        <translation>  %1  %2  Comptes&#xa0;: %3</translation>
    </message>
</context>
<context>
    <name>KirvProfileCopies</name>
    <message>
        <source>No copy of the profile in &quot;%1&quot; could be kept. Check the permissions of the folder &quot;copies&quot; in it, and whether the disk is full.</source>
        <translation>Aucune copie du profil dans «&#xa0;%1&#xa0;» n’a pu être conservée. Vérifiez les permissions du dossier «&#xa0;copies&#xa0;» qui s’y trouve, et si le disque est plein.</translation>
    </message>
</context>
<context>
    <name>KirvProfileOpening</name>
    <message>
        <source>The profile folder &quot;%1&quot; could not be made.</source>
        <translation>Le dossier de profil «&#xa0;%1&#xa0;» n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be made. Check whether the disk is full.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être créé. Vérifiez si le disque est plein.</translation>
    </message>
</context>
<context>
    <name>KirvProfileRescue</name>
    <message>
        <source>There is no profile in &quot;%1&quot;.</source>
        <translation>Il n’y a pas de profil dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The copy &quot;%1&quot; is damaged, too.</source>
        <translation>La copie «&#xa0;%1&#xa0;» est endommagée, elle aussi.</translation>
    </message>
    <message>
        <source>Nothing in the damaged profile in &quot;%1&quot; can be read any more.</source>
        <translation>Plus rien n’est lisible dans le profil endommagé de «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>KirvProfileSaver</name>
    <message>
        <source>&amp;Save to Another Folder…</source>
        <translation>Enre&amp;gistrer dans un autre dossier…</translation>
    </message>
    <message>
        <source>Save to an Empty Folder</source>
        <translation>Enregistrer dans un dossier vide</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Everything that was stored is in &quot;%1&quot; again. Continue to go on with it; the accounts log in again then.</source>
        <translation>Tout ce qui était enregistré est de nouveau dans «&#xa0;%1&#xa0;». Choisissez «&#xa0;Continuer&#xa0;» pour poursuivre avec ce profil&#xa0;; les comptes se reconnecteront alors.</translation>
    </message>
    <message>
        <source>Everything that was stored is in &quot;%1&quot; now. Continue to go on with it; the accounts log in again then. From the next start on, start the program with the option --profile &quot;%1&quot;.</source>
        <translation>Tout ce qui était enregistré est maintenant dans «&#xa0;%1&#xa0;». Choisissez «&#xa0;Continuer&#xa0;» pour poursuivre avec ce profil&#xa0;; les comptes se reconnecteront alors. À partir du prochain démarrage, lancez le programme avec l’option --profile &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>C&amp;ontinuer</translation>
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
        <translation>%1 (non vérifié&#xa0;; %2, %3)</translation>
    </message>
    <message>
        <source>Providers</source>
        <translation>Fournisseurs</translation>
    </message>
    <message>
        <source>The Down key shows known providers.</source>
        <translation>La touche Flèche bas affiche les fournisseurs connus.</translation>
    </message>
    <message>
        <source>The list of providers %1 cannot be read.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>La liste de fournisseurs %1 ne peut pas être lue.</translation>
    </message>
    <message>
        <source>The list of providers %1 is not used: it is too large.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>La liste de fournisseurs %1 n’est pas utilisée&#xa0;: elle est trop volumineuse.</translation>
    </message>
    <message>
        <source>About the list of providers %1: %2</source>
        <extracomment>%1 = path of a file, %2 = a sentence</extracomment>
        <translation>À propos de la liste de fournisseurs %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>It is not used, because it has not the format of such a list.</source>
        <translation>Elle n’est pas utilisée, car elle n’a pas le format d’une telle liste.</translation>
    </message>
    <message>
        <source>One entry is left out, because it is not complete.</source>
        <translation>Une entrée est ignorée, car elle est incomplète.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries are left out, because they are not complete.</source>
        <translation>
            <numerusform>%n entrée est ignorée, car elle est incomplète.</numerusform>
            <numerusform>%n entrées sont ignorées, car elles sont incomplètes.</numerusform>
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
        <translation>Aucun</translation>
    </message>
    <message>
        <source>That of the system</source>
        <translation>Celui du système</translation>
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
        <translation>Ce par quoi passent toutes les connexions du compte. Avec un proxy, le compte n’est jamais connecté sans lui, et c’est le proxy qui résout le nom du serveur.</translation>
    </message>
    <message>
        <source>Proxy host</source>
        <translation>Hôte du proxy</translation>
    </message>
    <message>
        <source>The name or address of a SOCKS5 or HTTP proxy.</source>
        <translation>Le nom ou l’adresse d’un proxy SOCKS5 ou HTTP.</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Port du proxy</translation>
    </message>
    <message>
        <source>Ordinarily 1080 with SOCKS5, and 3128 or 8080 with HTTP.</source>
        <translation>Généralement 1080 avec SOCKS5, et 3128 ou 8080 avec HTTP.</translation>
    </message>
    <message>
        <source>Proxy user</source>
        <translation>Utilisateur du proxy</translation>
    </message>
    <message>
        <source>Empty: the proxy needs no log-in.</source>
        <translation>Vide&#xa0;: le proxy n’exige pas d’authentification.</translation>
    </message>
    <message>
        <source>Proxy password</source>
        <translation>Mot de passe du proxy</translation>
    </message>
    <message>
        <source>The proxy receives it without encryption. Do not use the password of the account.</source>
        <translation>Le proxy le reçoit sans chiffrement. N’utilisez pas le mot de passe du compte.</translation>
    </message>
    <message>
        <source>The kind of the proxy is not known.</source>
        <translation>Le type du proxy est inconnu.</translation>
    </message>
    <message>
        <source>The proxy has no host.</source>
        <translation>Aucun hôte n’est indiqué pour le proxy.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a proxy.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas le nom d’un proxy.</translation>
    </message>
    <message>
        <source>The port of the proxy must be a number from 1 to 65535.</source>
        <translation>Le port du proxy doit être un nombre compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>The user or the password of the proxy cannot be sent: it is too long or has characters that do not belong to a line.</source>
        <translation>L’utilisateur ou le mot de passe du proxy ne peut pas être envoyé&#xa0;: il est trop long ou contient des caractères qui n’ont pas leur place dans une ligne.</translation>
    </message>
    <message>
        <source>The user of an HTTP proxy cannot have a colon.</source>
        <translation>L’utilisateur d’un proxy HTTP ne peut pas contenir de deux-points.</translation>
    </message>
    <message>
        <source>There is a password of the proxy, but no user.</source>
        <translation>Il y a un mot de passe du proxy, mais pas d’utilisateur.</translation>
    </message>
    <message>
        <source>it does not find the server, or does not allow a connection to it</source>
        <translation>il ne trouve pas le serveur, ou n’autorise pas de connexion à celui-ci</translation>
    </message>
</context>
<context>
    <name>KirvRegistrationChooser</name>
    <message>
        <source>Register Account</source>
        <translation>Créer un compte</translation>
    </message>
    <message>
        <source>For which &amp;protocol do you want to register a new account?</source>
        <translation>Pour quel &amp;protocole voulez-vous créer un nouveau compte&#xa0;?</translation>
    </message>
    <message>
        <source>Protocols</source>
        <translation>Protocoles</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>C&amp;ontinuer</translation>
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
        <translation>Aucune bibliothèque de chiffrement</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <extracomment>%1 = &quot;Debian GNU/Linux 12&quot;, %2 = &quot;linux 6.1&quot;, %3 = a processor</extracomment>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>%1: no versions stated</source>
        <extracomment>%1 = name of a protocol, %2 = &quot;QXmpp 1.4.0&quot;, or several such</extracomment>
        <translation>%1&#xa0;: aucune version indiquée</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>(name)</source>
        <translation>(nom)</translation>
    </message>
    <message>
        <source>%1: %2, file %3</source>
        <extracomment>%1 = name of a plug-in, %2 = its state, %3 = name of a file</extracomment>
        <translation>%1&#xa0;: %2, fichier %3</translation>
    </message>
    <message>
        <source>Account %1, %2</source>
        <extracomment>%1 = a number, %2 = name of a protocol</extracomment>
        <translation>Compte %1, %2</translation>
    </message>
    <message>
        <source>Login: %1</source>
        <extracomment>%1 = a login</extracomment>
        <translation>Identifiant&#xa0;: %1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <extracomment>%1 = &quot;Connected&quot; or another state</extracomment>
        <translation>État&#xa0;: %1</translation>
    </message>
    <message>
        <source>Report of %1 (times in UTC)</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Rapport du %1 (heures en UTC)</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Greffons</translation>
    </message>
    <message numerus="yes">
        <source>%n more accounts are left out.</source>
        <translation>
            <numerusform>%n autre compte est omis.</numerusform>
            <numerusform>%n autres comptes sont omis.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvReportWindow</name>
    <message>
        <source>&amp;Include logins and other names</source>
        <translation>&amp;Inclure les identifiants et autres noms</translation>
    </message>
    <message>
        <source>Report for Somebody Who Helps</source>
        <translation>Rapport pour une personne qui vous aide</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Passwords are left out. Read the report before you give it to anybody.</source>
        <translation>Les mots de passe sont omis. Lisez le rapport avant de le donner à quelqu’un.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Enregistrer…</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Enregistrer le rapport</translation>
    </message>
    <message>
        <source>report</source>
        <translation>rapport</translation>
    </message>
    <message>
        <source>The report was saved to %1.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Le rapport a été enregistré dans %1.</translation>
    </message>
    <message>
        <source>The report could not be saved to %1: %2.</source>
        <translation>Le rapport n’a pas pu être enregistré dans %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>KirvRescueWindow</name>
    <message>
        <source>Damaged Profile</source>
        <translation>Profil endommagé</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Choose what to do. The damaged database is kept in any case, under a name with the date.</source>
        <translation>Choisissez ce qu’il faut faire. La base de données endommagée est conservée dans tous les cas, sous un nom comportant la date.</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>There is no copy of the profile that could be restored.</source>
        <translation>Il n’y a aucune copie du profil qui puisse être restaurée.</translation>
    </message>
    <message>
        <source>Co&amp;pies of the profile:</source>
        <translation>Co&amp;pies du profil&#xa0;:</translation>
    </message>
    <message>
        <source>Copies of the profile</source>
        <translation>Copies du profil</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Comptes</translation>
    </message>
    <message>
        <source>&amp;Restore the Selected Copy</source>
        <translation>&amp;Restaurer la copie sélectionnée</translation>
    </message>
    <message>
        <source>Accounts and settings are then as they were at that time. Passwords and other secret settings are in no copy and have to be entered again.</source>
        <translation>Les comptes et les paramètres redeviennent ce qu’ils étaient à ce moment-là. Les mots de passe et autres paramètres secrets ne figurent dans aucune copie et doivent être saisis à nouveau.</translation>
    </message>
    <message>
        <source>Recover &amp;What Is Readable</source>
        <translation>Récupérer &amp;ce qui est lisible</translation>
    </message>
    <message>
        <source>The damaged database is read row by row, with the passwords, and what was found is shown.</source>
        <translation>La base de données endommagée est lue ligne par ligne, avec les mots de passe, et ce qui a été trouvé est affiché.</translation>
    </message>
    <message>
        <source>Start &amp;Fresh</source>
        <translation>Repartir de &amp;zéro</translation>
    </message>
    <message>
        <source>The profile then has no accounts.</source>
        <translation>Le profil ne contient alors aucun compte.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>C&amp;ontinuer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>The profile can be used again.</source>
        <translation>Le profil est de nouveau utilisable.</translation>
    </message>
</context>
<context>
    <name>KirvRevealButton</name>
    <message>
        <source>Hide the text</source>
        <translation>Masquer le texte</translation>
    </message>
    <message>
        <source>Show the text</source>
        <translation>Afficher le texte</translation>
    </message>
</context>
<context>
    <name>KirvSecretTexts</name>
    <message>
        <source>in a file only you can read</source>
        <translation>dans un fichier que personne d’autre que vous ne peut lire</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>where a password is kept; %1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>dans %1</translation>
    </message>
    <message>
        <source>in %1 (locked: you will be asked to unlock it)</source>
        <extracomment>where a password is kept; %1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>dans %1 (verrouillé&#xa0;: il vous sera demandé de le déverrouiller)</translation>
    </message>
    <message>
        <source>Your keyring does not respond: it would be kept there when it responds again</source>
        <translation>Votre trousseau de clés ne répond pas&#xa0;: le mot de passe y serait conservé lorsqu’il répondra à nouveau</translation>
    </message>
    <message>
        <source>There is no keyring here: it would be kept in a file only you can read</source>
        <translation>Il n’y a pas de trousseau de clés ici&#xa0;: le mot de passe serait conservé dans un fichier que personne d’autre que vous ne peut lire</translation>
    </message>
    <message>
        <source>Reading the password…</source>
        <translation>Lecture du mot de passe…</translation>
    </message>
    <message>
        <source>The keyring is locked</source>
        <translation>Le trousseau de clés est verrouillé</translation>
    </message>
    <message>
        <source>The keyring does not respond</source>
        <translation>Le trousseau de clés ne répond pas</translation>
    </message>
    <message>
        <source>The keyring is not there</source>
        <translation>Le trousseau de clés n’est pas disponible</translation>
    </message>
    <message>
        <source>The keyring cannot be read</source>
        <translation>Le trousseau de clés ne peut pas être lu</translation>
    </message>
    <message>
        <source>Or enter the password: it is used until the program ends.</source>
        <translation>Ou saisissez le mot de passe&#xa0;: il est utilisé jusqu’à la fin du programme.</translation>
    </message>
    <message>
        <source>The password is being read from %1.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;, here and below</extracomment>
        <translation>Le mot de passe est en cours de lecture dans %1.</translation>
    </message>
    <message>
        <source>The password is in %1, which is locked. Unlock it.</source>
        <translation>Le mot de passe est dans %1, qui est verrouillé. Déverrouillez-le.</translation>
    </message>
    <message>
        <source>The password is in %1, which was not unlocked. Reconnect asks again.</source>
        <translation>Le mot de passe est dans %1, qui n’a pas été déverrouillé. «&#xa0;Reconnecter&#xa0;» demande à nouveau de le déverrouiller.</translation>
    </message>
    <message>
        <source>The password is in %1, which does not respond. The account connects when it does.</source>
        <translation>Le mot de passe est dans %1, qui ne répond pas. Le compte se connectera dès que celui-ci répondra.</translation>
    </message>
    <message>
        <source>The password is in the keyring, which is not there. The account connects when it is started.</source>
        <translation>Le mot de passe est dans le trousseau de clés, qui n’est pas disponible. Le compte se connectera dès que le trousseau sera démarré.</translation>
    </message>
    <message>
        <source>The password is in %1, which cannot be read. Reconnect tries again.</source>
        <translation>Le mot de passe est dans %1, qui ne peut pas être lu. «&#xa0;Reconnecter&#xa0;» essaie à nouveau.</translation>
    </message>
    <message>
        <source>in your keyring</source>
        <extracomment>where a password is kept</extracomment>
        <translation>dans votre trousseau de clés</translation>
    </message>
    <message>
        <source>in your keyring (locked: you will be asked to unlock it)</source>
        <extracomment>where a password is kept</extracomment>
        <translation>dans votre trousseau de clés (verrouillé&#xa0;: il vous sera demandé de le déverrouiller)</translation>
    </message>
    <message>
        <source>Passwords that are remembered are kept in a file only you can read.</source>
        <translation>Les mots de passe retenus sont conservés dans un fichier que personne d’autre que vous ne peut lire.</translation>
    </message>
    <message>
        <source>The program is finding out whether there is a keyring.</source>
        <translation>Le programme vérifie s’il existe un trousseau de clés.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It is unlocked.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;, here and below</extracomment>
        <translation>%1 conserve les mots de passe. Ce trousseau de clés est déverrouillé.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It is unlocked.</source>
        <translation>Votre trousseau de clés conserve les mots de passe. Il est déverrouillé.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It is locked.</source>
        <translation>%1 conserve les mots de passe. Ce trousseau de clés est verrouillé.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It is locked.</source>
        <translation>Votre trousseau de clés conserve les mots de passe. Il est verrouillé.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It does not respond.</source>
        <translation>%1 conserve les mots de passe. Ce trousseau de clés ne répond pas.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It does not respond.</source>
        <translation>Votre trousseau de clés conserve les mots de passe. Il ne répond pas.</translation>
    </message>
    <message>
        <source>There is no keyring.</source>
        <translation>Il n’y a pas de trousseau de clés.</translation>
    </message>
    <message>
        <source>The password is being read from your keyring.</source>
        <translation>Le mot de passe est en cours de lecture dans votre trousseau de clés.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which is locked. Unlock it.</source>
        <translation>Le mot de passe est dans votre trousseau de clés, qui est verrouillé. Déverrouillez-le.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which was not unlocked. Reconnect asks again.</source>
        <translation>Le mot de passe est dans votre trousseau de clés, qui n’a pas été déverrouillé. «&#xa0;Reconnecter&#xa0;» demande à nouveau de le déverrouiller.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which does not respond. The account connects when it does.</source>
        <translation>Le mot de passe est dans votre trousseau de clés, qui ne répond pas. Le compte se connectera dès que celui-ci répondra.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which cannot be read. Reconnect tries again.</source>
        <translation>Le mot de passe est dans votre trousseau de clés, qui ne peut pas être lu. «&#xa0;Reconnecter&#xa0;» essaie à nouveau.</translation>
    </message>
    <message>
        <source>The password is being read. It stays as it is unless you enter another one.</source>
        <translation>Le mot de passe est en cours de lecture. Il reste tel quel, sauf si vous en saisissez un autre.</translation>
    </message>
    <message>
        <source>The keyring is locked. The password stays as it is unless you enter another one.</source>
        <translation>Le trousseau de clés est verrouillé. Le mot de passe reste tel quel, sauf si vous en saisissez un autre.</translation>
    </message>
    <message>
        <source>The keyring does not respond. The password stays as it is unless you enter another one.</source>
        <translation>Le trousseau de clés ne répond pas. Le mot de passe reste tel quel, sauf si vous en saisissez un autre.</translation>
    </message>
    <message>
        <source>The keyring is not there. The password stays as it is unless you enter another one.</source>
        <translation>Le trousseau de clés n’est pas disponible. Le mot de passe reste tel quel, sauf si vous en saisissez un autre.</translation>
    </message>
    <message>
        <source>The keyring cannot be read. The password stays as it is unless you enter another one.</source>
        <translation>Le trousseau de clés ne peut pas être lu. Le mot de passe reste tel quel, sauf si vous en saisissez un autre.</translation>
    </message>
    <message>
        <source>The password is not in the keyring any more.</source>
        <translation>Le mot de passe n’est plus dans le trousseau de clés.</translation>
    </message>
    <message>
        <source>Or edit the account and enter its passwords again.</source>
        <translation>Ou modifiez le compte et saisissez à nouveau ses mots de passe.</translation>
    </message>
    <message>
        <source>Or edit the account and enter it again.</source>
        <translation>Ou modifiez le compte et saisissez-le à nouveau.</translation>
    </message>
    <message>
        <source>Some passwords are still in a file only you can read. They are moved when the keyring is unlocked.</source>
        <translation>Certains mots de passe se trouvent encore dans un fichier que vous seul pouvez lire. Ils sont déplacés lorsque le trousseau est déverrouillé.</translation>
    </message>
    <message>
        <source>There is no keyring here: it is kept in a file only you can read.</source>
        <extracomment>it = a password that was just stored</extracomment>
        <translation>Il n’y a pas de trousseau de clés ici&#xa0;: le mot de passe est conservé dans un fichier que personne d’autre que vous ne peut lire.</translation>
    </message>
</context>
<context>
    <name>KirvServerAssistant</name>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Waiting for the server</source>
        <translation>En attente du serveur</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Instructions</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Con&amp;figuration:</source>
        <translation>Mo&amp;dèle&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Remember the password</source>
        <translation>&amp;Retenir le mot de passe</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>Reading the picture for &quot;%1&quot;…</source>
        <extracomment>%1 = a caption</extracomment>
        <translation>Lecture de l’image pour «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>There is a picture for &quot;%1&quot;, which cannot be shown: %2</source>
        <extracomment>%1 = a caption, %2 = an address</extracomment>
        <translation>Une image pour «&#xa0;%1&#xa0;» ne peut pas être affichée&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>&amp;Fermer</translation>
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
        <translation>Il n’est pas établi pour %1.</translation>
    </message>
    <message>
        <source>It is for %1, and not for %2.</source>
        <extracomment>%1 and %2 = names of servers</extracomment>
        <translation>Il est établi pour %1, et non pour %2.</translation>
    </message>
    <message>
        <source>It is self-signed: no authority has issued it.</source>
        <translation>Il est auto-signé&#xa0;: aucune autorité ne l’a délivré.</translation>
    </message>
    <message>
        <source>It is not from an authority that this computer trusts.</source>
        <translation>Il ne provient pas d’une autorité que cet ordinateur approuve.</translation>
    </message>
    <message>
        <source>It has expired: it was valid until %1.</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Il a expiré&#xa0;: il était valable jusqu’au %1.</translation>
    </message>
    <message>
        <source>A certificate of its issuer has expired.</source>
        <translation>Un certificat de son émetteur a expiré.</translation>
    </message>
    <message>
        <source>It is not valid before %1.</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Il n’est pas valable avant le %1.</translation>
    </message>
    <message>
        <source>A certificate of its issuer is not valid yet.</source>
        <translation>Un certificat de son émetteur n’est pas encore valable.</translation>
    </message>
    <message>
        <source>It was withdrawn.</source>
        <translation>Il a été révoqué.</translation>
    </message>
    <message>
        <source>For</source>
        <extracomment>the servers that a certificate is for</extracomment>
        <translation>Pour</translation>
    </message>
    <message>
        <source>Owner</source>
        <extracomment>whom a certificate is for</extracomment>
        <translation>Titulaire</translation>
    </message>
    <message>
        <source>Issued by</source>
        <extracomment>as in &quot;Issued by: itself&quot;</extracomment>
        <translation>Délivré par</translation>
    </message>
    <message>
        <source>itself</source>
        <translation>lui-même</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Début de validité</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Fin de validité</translation>
    </message>
    <message>
        <source>Fingerprint (SHA-256)</source>
        <translation>Empreinte (SHA-256)</translation>
    </message>
</context>
<context>
    <name>KirvServerCommands</name>
    <message>
        <source>None of the loaded plug-ins can register a new account.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>Aucun des greffons chargés ne peut créer de nouveau compte.</translation>
    </message>
    <message>
        <source>New accounts cannot be registered with %1.</source>
        <translation>Il n’est pas possible de créer de nouveaux comptes avec %1.</translation>
    </message>
</context>
<context>
    <name>KirvServerTask</name>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = name of an account, %2 = one or more sentences about it</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The server accepted the form. Add the account with the login that the server gives you.</source>
        <translation>Le serveur a accepté le formulaire. Ajoutez le compte avec l’identifiant que le serveur vous donne.</translation>
    </message>
    <message>
        <source>The account %1 is registered on the server, but it was not added here. %2</source>
        <extracomment>%1 = login of an account, %2 = the reason, a sentence</extracomment>
        <translation>Le compte %1 est créé sur le serveur, mais il n’a pas été ajouté ici. %2</translation>
    </message>
    <message>
        <source>Add Again</source>
        <translation>Réessayer l’ajout</translation>
    </message>
    <message>
        <source>The account %1 has the new password on its server. The password is used until the program ends, but it is not stored. %2</source>
        <extracomment>%1 = name of an account, %2 = the reason, a sentence</extracomment>
        <translation>Le compte %1 a le nouveau mot de passe sur son serveur. Le mot de passe est utilisé jusqu’à la fin du programme, mais il n’est pas enregistré. %2</translation>
    </message>
    <message>
        <source>Store Again</source>
        <translation>Réessayer l’enregistrement</translation>
    </message>
    <message>
        <source>The account %1 is deleted on its server, but it was not removed here. %2</source>
        <extracomment>%1 = name of an account, %2 = the reason, a sentence</extracomment>
        <translation>Le compte %1 est supprimé sur son serveur, mais il n’a pas été supprimé ici. %2</translation>
    </message>
    <message>
        <source>Remove Again</source>
        <translation>Réessayer la suppression</translation>
    </message>
    <message>
        <source>The password of the account %1 is changed on its server.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Le mot de passe du compte %1 a été modifié sur son serveur.</translation>
    </message>
</context>
<context>
    <name>KirvSettingsManager</name>
    <message>
        <source>Name shown</source>
        <translation>Nom affiché</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Remember the password</source>
        <translation>Retenir le mot de passe</translation>
    </message>
    <message>
        <source>Restore the last presence</source>
        <translation>Rétablir le dernier statut</translation>
    </message>
    <message>
        <source>Restore the last description</source>
        <translation>Rétablir la dernière description</translation>
    </message>
</context>
<context>
    <name>KirvSettingsWindow</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Kirv – Settings</source>
        <extracomment>window title; %1 = name of the main account</extracomment>
        <translation>Kirv – Paramètres</translation>
    </message>
    <message>
        <source>Kirv – Settings – %1</source>
        <translation>Kirv – Paramètres – %1</translation>
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
        <translation>%1 ; le proxy recherche le nom</translation>
    </message>
    <message>
        <source>through the proxy %1</source>
        <extracomment>%1 = name of a proxy</extracomment>
        <translation>par le proxy %1</translation>
    </message>
    <message>
        <source>none, as the settings say</source>
        <translation>aucun, selon les réglages</translation>
    </message>
    <message>
        <source>none: the server offers none</source>
        <translation>aucun : le serveur n’en propose pas</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 = &quot;TLS 1.3&quot;, %2 = about a certificate</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>certificate of %1, valid until %2, fingerprint %3 (SHA-256)</source>
        <extracomment>%1 = name of a server, %2 = a date, %3 = hexadecimal digits</extracomment>
        <translation>certificat de %1, valable jusqu’au %2, empreinte %3 (SHA-256)</translation>
    </message>
</context>
<context>
    <name>KirvSortingHint</name>
    <message>
        <source>The list is sorted by a column. Accounts can be moved only in your own order.</source>
        <translation>La liste est triée selon une colonne. Les comptes ne peuvent être déplacés que dans votre ordre personnalisé.</translation>
    </message>
    <message>
        <source>&amp;Own Order</source>
        <translation>Or&amp;dre personnalisé</translation>
    </message>
</context>
<context>
    <name>KirvStore</name>
    <message>
        <source>The account &quot;%1&quot; (%2) is not in the profile.</source>
        <translation>Le compte «&#xa0;%1&#xa0;» (%2) n’est pas dans le profil.</translation>
    </message>
    <message>
        <source>There is no home folder to keep the profile in: the environment variable HOME is not set. Set it, or name a folder for the profile.</source>
        <translation>Il n’y a pas de dossier personnel où conserver le profil&#xa0;: la variable d’environnement HOME n’est pas définie. Définissez-la, ou indiquez un dossier pour le profil.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; was deleted, moved or replaced while the program was running, so nothing was stored. Save the accounts to another folder.</source>
        <translation>Le profil dans «&#xa0;%1&#xa0;» a été supprimé, déplacé ou remplacé pendant l’exécution du programme, rien n’a donc été enregistré. Enregistrez les comptes dans un autre dossier.</translation>
    </message>
    <message>
        <source>The copies of the profile in &quot;%1&quot; could not be removed. Check the permissions of the folder &quot;copies&quot; in it.</source>
        <translation>Les copies du profil dans «&#xa0;%1&#xa0;» n’ont pas pu être supprimées. Vérifiez les permissions du dossier «&#xa0;copies&#xa0;» qui s’y trouve.</translation>
    </message>
    <message>
        <source>There is a profile in &quot;%1&quot; already. Choose an empty folder.</source>
        <translation>Il y a déjà un profil dans «&#xa0;%1&#xa0;». Choisissez un dossier vide.</translation>
    </message>
</context>
<context>
    <name>KirvXmppAvatar</name>
    <message>
        <source>The picture of the account cannot be read.</source>
        <translation>L’image du compte ne peut pas être lue.</translation>
    </message>
</context>
<context>
    <name>KirvXmppConnection</name>
    <message>
        <source>The login must be an address such as user@domain.</source>
        <translation>L’identifiant doit être une adresse telle que utilisateur@domaine.</translation>
    </message>
    <message>
        <source>the server does not answer any more</source>
        <translation>le serveur ne répond plus</translation>
    </message>
    <message>
        <source>The account is not connected.</source>
        <translation>Le compte n’est pas connecté.</translation>
    </message>
</context>
<context>
    <name>KirvXmppDeletionRequest</name>
    <message>
        <source>Delete Account on Server</source>
        <translation>Supprimer le compte sur le serveur</translation>
    </message>
    <message>
        <source>Do you want to delete the account %1 on its server? Its contacts and everything the server keeps for it are lost.</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>Voulez-vous supprimer le compte %1 sur son serveur&#xa0;? Ses contacts et tout ce que le serveur conserve pour lui seront perdus.</translation>
    </message>
    <message>
        <source>Delete on Server</source>
        <translation>Supprimer sur le serveur</translation>
    </message>
    <message>
        <source>This cannot be undone, and somebody else can take the address %1 afterwards. Is %1 really to be deleted?</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>Cette opération est irréversible, et quelqu’un d’autre pourra ensuite prendre l’adresse %1. Voulez-vous vraiment supprimer %1&#xa0;?</translation>
    </message>
    <message>
        <source>Delete for Good</source>
        <translation>Supprimer définitivement</translation>
    </message>
    <message>
        <source>Deleting the account…</source>
        <translation>Suppression du compte…</translation>
    </message>
</context>
<context>
    <name>KirvXmppDirectory</name>
    <message>
        <source>The directory entry is too long to be sent.</source>
        <translation>La fiche de l’annuaire est trop longue pour être envoyée.</translation>
    </message>
</context>
<context>
    <name>KirvXmppError</name>
    <message>
        <source>the name is already in use</source>
        <translation>le nom est déjà utilisé</translation>
    </message>
    <message>
        <source>the server does not accept what was sent</source>
        <translation>le serveur n’accepte pas ce qui a été envoyé</translation>
    </message>
    <message>
        <source>the server does not allow it</source>
        <translation>le serveur ne l’autorise pas</translation>
    </message>
    <message>
        <source>the server does not allow it now</source>
        <translation>le serveur ne l’autorise pas pour le moment</translation>
    </message>
    <message>
        <source>the server requires encryption</source>
        <translation>le serveur exige le chiffrement</translation>
    </message>
</context>
<context>
    <name>KirvXmppLoginGuard</name>
    <message>
        <source>It requires more than a log-in needs.</source>
        <translation>Il demande plus que ce qu’exige une connexion.</translation>
    </message>
    <message>
        <source>It requires more work to check the password than is allowed (%1 rounds, at most %2).</source>
        <translation>Il demande plus de travail que ce qui est permis pour vérifier le mot de passe (%1 itérations, au plus %2).</translation>
    </message>
    <message>
        <source>It has not proved that it knows the password.</source>
        <translation>Il n’a pas prouvé qu’il connaît le mot de passe.</translation>
    </message>
    <message>
        <source>Its part of the log-in is wrong.</source>
        <translation>Sa part de l’authentification est incorrecte.</translation>
    </message>
</context>
<context>
    <name>KirvXmppPasswordRequest</name>
    <message>
        <source>Change Password on Server</source>
        <translation>Changer le mot de passe sur le serveur</translation>
    </message>
    <message>
        <source>The account %1 gets a new password on its server. All clients need it then.</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>Le compte %1 reçoit un nouveau mot de passe sur son serveur. Tous les clients en auront alors besoin.</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nouveau mot de passe</translation>
    </message>
    <message>
        <source>The same again</source>
        <translation>Répéter le mot de passe</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Changer le mot de passe</translation>
    </message>
    <message>
        <source>Enter the new password.</source>
        <translation>Saisissez le nouveau mot de passe.</translation>
    </message>
    <message>
        <source>The two passwords are different. Enter the same password twice.</source>
        <translation>Les deux mots de passe sont différents. Saisissez deux fois le même mot de passe.</translation>
    </message>
    <message>
        <source>The password holds characters that cannot be sent.</source>
        <translation>Le mot de passe contient des caractères qui ne peuvent pas être envoyés.</translation>
    </message>
    <message>
        <source>Changing the password…</source>
        <translation>Changement du mot de passe…</translation>
    </message>
</context>
<context>
    <name>KirvXmppProtocol</name>
    <message>
        <source>XMPP (Jabber): conversations between addresses of many independent servers.</source>
        <translation>XMPP (Jabber)&#xa0;: conversations entre adresses de nombreux serveurs indépendants.</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponible</translation>
    </message>
    <message>
        <source>Free to chat</source>
        <translation>Disponible pour discuter</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Absent</translation>
    </message>
    <message>
        <source>Extended away</source>
        <translation>Absence prolongée</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Ne pas déranger</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Invisible</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Déconnecté</translation>
    </message>
    <message>
        <source>Change Password on Server…</source>
        <translation>Changer le mot de passe sur le serveur…</translation>
    </message>
    <message>
        <source>Gives the account a new password on its server.</source>
        <translation>Donne au compte un nouveau mot de passe sur son serveur.</translation>
    </message>
    <message>
        <source>Delete Account on Server…</source>
        <translation>Supprimer le compte sur le serveur…</translation>
    </message>
    <message>
        <source>Deletes the account on its server for good, and then here.</source>
        <translation>Supprime définitivement le compte sur son serveur, puis ici.</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistration</name>
    <message>
        <source>registration of accounts</source>
        <translation>création de comptes</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistrationForm</name>
    <message>
        <source>User name</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Pseudonyme</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Nom complet</translation>
    </message>
    <message>
        <source>First name</source>
        <translation>Prénom</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>Nom de famille</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Adresse électronique</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Ville</translation>
    </message>
    <message>
        <source>State or region</source>
        <translation>État ou région</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>Code postal</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Page Web</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be filled in.</source>
        <translation>«&#xa0;%1&#xa0;» doit être rempli.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds characters that cannot be sent.</source>
        <translation>«&#xa0;%1&#xa0;» contient des caractères qui ne peuvent pas être envoyés.</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistrationRequest</name>
    <message>
        <source>Domain</source>
        <translation>Domaine</translation>
    </message>
    <message>
        <source>The part of the address after the @.</source>
        <translation>La partie de l’adresse qui suit le @.</translation>
    </message>
    <message>
        <source>Register XMPP Account</source>
        <translation>Créer un compte XMPP</translation>
    </message>
    <message>
        <source>Choose the server of the new account. The server determines what is to be filled in next.</source>
        <translation>Choisissez le serveur du nouveau compte. C’est le serveur qui détermine ce qu’il faut remplir ensuite.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Enter the domain of the server.</source>
        <translation>Saisissez le domaine du serveur.</translation>
    </message>
    <message>
        <source>The name of a server holds characters that cannot be sent.</source>
        <translation>Le nom d’un serveur contient des caractères qui ne peuvent pas être envoyés.</translation>
    </message>
    <message>
        <source>Requesting the registration form…</source>
        <translation>Demande du formulaire d’inscription…</translation>
    </message>
    <message>
        <source>This server does not register accounts from within a client.</source>
        <translation>Ce serveur ne permet pas de créer des comptes depuis un client.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>The server sent another form. Check it and register again.</source>
        <translation>Le serveur a envoyé un autre formulaire. Vérifiez-le et recommencez la création.</translation>
    </message>
    <message>
        <source>The server also names this address: %1</source>
        <extracomment>%1 = a web address</extracomment>
        <translation>Le serveur indique aussi cette adresse&#xa0;: %1</translation>
    </message>
    <message>
        <source>Sending the form…</source>
        <translation>Envoi du formulaire…</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted. Somebody between you and the server could read your password.</source>
        <translation>Le certificat du serveur n’est pas approuvé. Quelqu’un entre vous et le serveur pourrait lire votre mot de passe.</translation>
    </message>
    <message>
        <source>Trust for This Account</source>
        <translation>Approuver pour ce compte</translation>
    </message>
</context>
<context>
    <name>KirvXmppRoute</name>
    <message>
        <source>servers refer to one another without end</source>
        <translation>des serveurs renvoient sans fin les uns vers les autres</translation>
    </message>
    <message>
        <source>it refers to a server of a private network</source>
        <translation>il renvoie vers un serveur d’un réseau privé</translation>
    </message>
    <message>
        <source>%1 starts with encryption at once. Choose direct TLS, or another port.</source>
        <extracomment>%1 is a server and its port</extracomment>
        <translation>%1 commence immédiatement par le chiffrement. Choisissez le TLS direct, ou un autre port.</translation>
    </message>
    <message>
        <source>%1 does not start with encryption at once. Do not choose direct TLS, or choose another port.</source>
        <extracomment>%1 is a server and its port</extracomment>
        <translation>%1 ne commence pas immédiatement par le chiffrement. Ne choisissez pas le TLS direct, ou choisissez un autre port.</translation>
    </message>
    <message>
        <source>servers of %1</source>
        <extracomment>%1 = a domain</extracomment>
        <translation>serveurs du domaine %1</translation>
    </message>
    <message>
        <source>the server refers to %1</source>
        <extracomment>%1 = a server</extracomment>
        <translation>le serveur renvoie à %1</translation>
    </message>
</context>
<context>
    <name>KirvXmppServerLink</name>
    <message>
        <source>What the server sent is no XMPP stream.</source>
        <translation>Ce que le serveur a envoyé n’est pas un flux XMPP.</translation>
    </message>
    <message>
        <source>The server sent data that is longer than allowed.</source>
        <translation>Le serveur a envoyé des données plus longues que ce qui est permis.</translation>
    </message>
    <message>
        <source>The server sent data that is no valid XML.</source>
        <translation>Le serveur a envoyé des données qui ne sont pas du XML valide.</translation>
    </message>
    <message>
        <source>The server sent XML that is not allowed in a stream.</source>
        <translation>Le serveur a envoyé du XML qui n’est pas permis dans un flux.</translation>
    </message>
    <message>
        <source>the reply of the server is too large</source>
        <translation>la réponse du serveur est trop volumineuse</translation>
    </message>
    <message>
        <source>it refers to a server of a private network</source>
        <translation>il renvoie vers un serveur d’un réseau privé</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is the encryption, as &quot;TLSv1.3&quot;, %2 how the user has proved who he is, as &quot;SASL SCRAM-SHA-256&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not encrypted</source>
        <translation>non chiffré</translation>
    </message>
    <message>
        <source>The server begins the log-in again and again.</source>
        <translation>Le serveur recommence sans cesse la connexion.</translation>
    </message>
    <message>
        <source>the server requires encryption</source>
        <translation>le serveur exige le chiffrement</translation>
    </message>
    <message>
        <source>the server does not serve the domain of the login</source>
        <translation>le serveur ne dessert pas le domaine de l’identifiant</translation>
    </message>
    <message>
        <source>it refers to a server without a name</source>
        <translation>il renvoie vers un serveur sans nom</translation>
    </message>
    <message>
        <source>It has logged in the account &quot;%1&quot;.</source>
        <extracomment>%1 is the address of an account</extracomment>
        <translation>Il a connecté le compte «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>the server does not answer any more</source>
        <translation>le serveur ne répond plus</translation>
    </message>
    <message>
        <source>Its part of the log-in is wrong.</source>
        <translation>Sa part de l’authentification est incorrecte.</translation>
    </message>
</context>
<context>
    <name>KirvXmppSettings</name>
    <message>
        <source>Resource</source>
        <translation>Ressource</translation>
    </message>
    <message>
        <source>Distinguishes this client from your other ones. Characters by chance take the place of a *. Empty: the server chooses.</source>
        <translation>Distingue ce client de vos autres clients. Des caractères aléatoires prennent la place d’un *. Vide&#xa0;: le serveur choisit.</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>Messages go to the client with the highest priority, and to none with a negative one. This client does not show messages.</source>
        <translation>Les messages vont au client dont la priorité est la plus élevée, et jamais à un client dont la priorité est négative. Ce client n’affiche pas les messages.</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Only needed when it cannot be found by the domain of the login. Service records are not looked up where there is a proxy.</source>
        <translation>Nécessaire seulement s’il ne peut pas être trouvé à partir du domaine de l’identifiant. Les enregistrements de service ne sont pas recherchés lorsqu’il y a un proxy.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Ordinarily %1, and %2 with direct TLS.</source>
        <translation>Généralement %1, et %2 avec le TLS direct.</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Chiffrement</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obligatoire</translation>
    </message>
    <message>
        <source>If the server offers it</source>
        <translation>Si le serveur le propose</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Required at once (direct TLS)</source>
        <translation>Obligatoire dès le début (TLS direct)</translation>
    </message>
    <message>
        <source>Without encryption others in the network can read along, your password included.</source>
        <translation>Sans chiffrement, d’autres personnes sur le réseau peuvent lire vos échanges, y compris votre mot de passe.</translation>
    </message>
    <message>
        <source>Trusted certificate</source>
        <translation>Certificat approuvé</translation>
    </message>
    <message>
        <source>A file with a certificate (PEM) that is trusted besides those of the system.</source>
        <translation>Un fichier contenant un certificat (PEM) approuvé en plus de ceux du système.</translation>
    </message>
    <message>
        <source>Server of the domain</source>
        <translation>Serveur du domaine</translation>
    </message>
    <message>
        <source>Server on this computer</source>
        <translation>Serveur sur cet ordinateur</translation>
    </message>
    <message>
        <source>Server on this computer, unencrypted</source>
        <translation>Serveur sur cet ordinateur, non chiffré</translation>
    </message>
    <message>
        <source>An address contains no blanks.</source>
        <translation>Une adresse ne contient pas d’espaces.</translation>
    </message>
    <message>
        <source>The character &quot;%1&quot; is not allowed in an address.</source>
        <translation>Le caractère «&#xa0;%1&#xa0;» n’est pas autorisé dans une adresse.</translation>
    </message>
    <message>
        <source>The domain is missing, as in anna@example.org.</source>
        <translation>Le domaine est manquant (exemple&#xa0;: anna@example.org).</translation>
    </message>
    <message>
        <source>An address contains one &quot;@&quot; only.</source>
        <translation>Une adresse ne contient qu’un seul «&#xa0;@&#xa0;».</translation>
    </message>
    <message>
        <source>The name before the &quot;@&quot; is missing.</source>
        <translation>Le nom avant le «&#xa0;@&#xa0;» est manquant.</translation>
    </message>
    <message>
        <source>The domain after the &quot;@&quot; is missing.</source>
        <translation>Le domaine après le «&#xa0;@&#xa0;» est manquant.</translation>
    </message>
    <message>
        <source>The domain after the &quot;@&quot; is not complete.</source>
        <translation>Le domaine après le «&#xa0;@&#xa0;» n’est pas complet.</translation>
    </message>
    <message>
        <source>The address is too long.</source>
        <translation>L’adresse est trop longue.</translation>
    </message>
    <message>
        <source>The trusted certificate %1 cannot be read (%2).</source>
        <extracomment>%1 is a file name, %2 the reason</extracomment>
        <translation>Le certificat approuvé %1 ne peut pas être lu (%2).</translation>
    </message>
    <message>
        <source>The file %1 does not hold a certificate in PEM format.</source>
        <translation>Le fichier %1 ne contient pas de certificat au format PEM.</translation>
    </message>
    <message>
        <source>The trusted certificate %1 is not a file.</source>
        <extracomment>%1 is a file name</extracomment>
        <translation>Le certificat approuvé %1 n’est pas un fichier.</translation>
    </message>
</context>
<context>
    <name>KirvXmppVCard</name>
    <message>
        <source>Birthday</source>
        <translation>Date de naissance</translation>
    </message>
    <message>
        <source>Year, month and day, such as 1999-12-31.</source>
        <translation>Année, mois et jour, par exemple 1999-12-31.</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Nom complet</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Pseudonyme</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Adresse électronique</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Ville</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Page Web</translation>
    </message>
    <message>
        <source>Organisation</source>
        <translation>Organisation</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos de moi</translation>
    </message>
    <message>
        <source>An address that begins with http:// or https://.</source>
        <translation>Une adresse qui commence par http:// ou https://.</translation>
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
        <translation>Protocole</translation>
    </message>
    <message>
        <source>Removing account</source>
        <comment>message box title</comment>
        <translation>Suppression du compte</translation>
    </message>
    <message>
        <source>Do you want to remove account &apos;%1&apos; (%2) and all related data?</source>
        <comment>%1 = account alias, %2 = account protocol. Confirmation of removing account</comment>
        <translation>Voulez-vous supprimer le compte «&#xa0;%1&#xa0;» (%2) et toutes les données associées&#xa0;?</translation>
    </message>
    <message>
        <source>Disabling account</source>
        <comment>message box title</comment>
        <translation>Désactivation du compte</translation>
    </message>
    <message>
        <source>Do you want to disable account &apos;%1&apos; (%2) in which you are currently logged in.</source>
        <comment>%1 = account id, %2 = account protocol. Confirmation of disabling account</comment>
        <translation>Voulez-vous désactiver le compte «&#xa0;%1&#xa0;» (%2), qui est actuellement connecté&#xa0;?</translation>
    </message>
    <message>
        <source>None</source>
        <comment>nc</comment>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Add account</source>
        <comment>adding account error message box title</comment>
        <translation>Ajouter un compte</translation>
    </message>
    <message>
        <source>Account &apos;%1&apos; alerady exists!</source>
        <comment>information about existing account while adding account</comment>
        <translation>Le compte «&#xa0;%1&#xa0;» existe déjà&#xa0;!</translation>
    </message>
    <message>
        <source>Deleting directory entry</source>
        <comment>message box title</comment>
        <translation>Suppression de la fiche de l’annuaire</translation>
    </message>
    <message>
        <source>Do you want to delete the directory entry of account &apos;%1&apos; (%2) from the server?</source>
        <comment>%1 = account id, %2 = account protocol. Confirmation of deleting the directory entry</comment>
        <translation>Voulez-vous supprimer du serveur la fiche de l’annuaire du compte «&#xa0;%1&#xa0;» (%2)&#xa0;?</translation>
    </message>
</context>
</TS>
