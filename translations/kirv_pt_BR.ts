<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>Accounts</name>
    <message>
        <source>Accounts</source>
        <translation>Contas</translation>
    </message>
    <message>
        <source>The check box of an account tells whether it is enabled.</source>
        <translation>A caixa de seleção de uma conta indica se ela está ativada.</translation>
    </message>
    <message>
        <source>Add an account that you already have</source>
        <translation>Adicionar uma conta que você já tem</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Adicionar</translation>
    </message>
    <message>
        <source>Change the selected account</source>
        <translation>Alterar a conta selecionada</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Editar…</translation>
    </message>
    <message>
        <source>Remove the selected account and all its data</source>
        <translation>Remover a conta selecionada e todos os seus dados</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Remover…</translation>
    </message>
    <message>
        <source>Create a new account on a server</source>
        <translation>Criar uma nova conta em um servidor</translation>
    </message>
    <message>
        <source>Re&amp;gister…</source>
        <translation>Re&amp;gistrar…</translation>
    </message>
    <message>
        <source>&amp;Main account:</source>
        <translation>Conta &amp;principal:</translation>
    </message>
    <message>
        <source>The account that the rest of the program works with</source>
        <translation>A conta com a qual o restante do programa trabalha</translation>
    </message>
    <message>
        <source>Main account</source>
        <translation>Conta principal</translation>
    </message>
</context>
<context>
    <name>AddAccount</name>
    <message>
        <source>Add Account</source>
        <translation>Adicionar conta</translation>
    </message>
    <message>
        <source>&amp;Configuration:</source>
        <translation>&amp;Modelo:</translation>
    </message>
    <message>
        <source>A ready-made configuration fills in the settings for you</source>
        <translation>Um modelo pronto preenche as configurações para você</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>&amp;Login:</source>
        <translation>Nome de &amp;usuário:</translation>
    </message>
    <message>
        <source>The name under which you log in</source>
        <translation>O nome com o qual você inicia a sessão</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Nome de usuário</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Senha:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>If this is off, you are asked for the password when the account logs in</source>
        <translation>Se esta opção estiver desmarcada, a senha será solicitada quando a conta iniciar a sessão</translation>
    </message>
    <message>
        <source>&amp;Remember password</source>
        <translation>&amp;Lembrar a senha</translation>
    </message>
    <message>
        <source>S&amp;tart as:</source>
        <translation>Status &amp;inicial:</translation>
    </message>
    <message>
        <source>The presence that the account takes when it logs in</source>
        <translation>O status que a conta assume ao iniciar a sessão</translation>
    </message>
    <message>
        <source>Start as</source>
        <translation>Status inicial</translation>
    </message>
</context>
<context>
    <name>EditAccount</name>
    <message>
        <source>Edit Account</source>
        <translation>Editar conta</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>Co&amp;nta</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Conta:</translation>
    </message>
    <message>
        <source>Picture:</source>
        <translation>Imagem:</translation>
    </message>
    <message>
        <source>A&amp;lias:</source>
        <translation>&amp;Apelido:</translation>
    </message>
    <message>
        <source>The name shown for the account</source>
        <translation>O nome mostrado para a conta</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Apelido</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Senha:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>If this is off, you are asked for the password when the account logs in</source>
        <translation>Se esta opção estiver desmarcada, a senha será solicitada quando a conta iniciar a sessão</translation>
    </message>
    <message>
        <source>&amp;Remember password</source>
        <translation>&amp;Lembrar a senha</translation>
    </message>
    <message>
        <source>The account takes the presence and description that it had last</source>
        <translation>A conta assume o último status e a última descrição que teve</translation>
    </message>
    <message>
        <source>Restore the last pr&amp;esence</source>
        <translation>Restaurar o último s&amp;tatus</translation>
    </message>
    <message>
        <source>The account takes the description that it had last</source>
        <translation>A conta assume a última descrição que teve</translation>
    </message>
    <message>
        <source>Restore the last descript&amp;ion</source>
        <translation>Restaurar a última d&amp;escrição</translation>
    </message>
    <message>
        <source>S&amp;tart as:</source>
        <translation>Status &amp;inicial:</translation>
    </message>
    <message>
        <source>The presence that the account takes when it logs in</source>
        <translation>O status que a conta assume ao iniciar a sessão</translation>
    </message>
    <message>
        <source>Start as</source>
        <translation>Status inicial</translation>
    </message>
    <message>
        <source>Descriptio&amp;n:</source>
        <translation>&amp;Descrição:</translation>
    </message>
    <message>
        <source>What your contacts read beside the presence</source>
        <translation>O que seus contatos leem ao lado do status</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>P&amp;ublic Directory</source>
        <translation>Diretório pú&amp;blico</translation>
    </message>
    <message>
        <source>Ask the server for your entry; changes that are not saved are lost</source>
        <translation>Solicitar sua entrada ao servidor; as alterações não salvas serão perdidas</translation>
    </message>
    <message>
        <source>&amp;Fetch Again</source>
        <translation>Obter no&amp;vamente</translation>
    </message>
    <message>
        <source>Take your entry out of the directory</source>
        <translation>Retirar sua entrada do diretório</translation>
    </message>
    <message>
        <source>&amp;Delete Entry…</source>
        <translation>E&amp;xcluir entrada…</translation>
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
        <translation>Status</translation>
    </message>
    <message>
        <source>Pages of the account</source>
        <translation>Páginas da conta</translation>
    </message>
</context>
<context>
    <name>KirvAccount</name>
    <message>
        <source>A password could not be kept in the keyring. It is used until the program ends, and is kept when the keyring can be used.</source>
        <translation>Não foi possível guardar uma senha no chaveiro. Ela será usada até o programa terminar e será guardada quando o chaveiro puder ser usado.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 = a sentence, %2 = what the keyring says</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>other accounts connect first</source>
        <translation>outras contas se conectam primeiro</translation>
    </message>
    <message>
        <source>the next try is at %1</source>
        <extracomment>%1 = time of day</extracomment>
        <translation>próxima tentativa às %1</translation>
    </message>
    <message>
        <source>A password could not be stored. It is used until the program ends. %1</source>
        <extracomment>%1 = the reason, a sentence</extracomment>
        <translation>Não foi possível armazenar uma senha. Ela é usada até o programa ser encerrado. %1</translation>
    </message>
</context>
<context>
    <name>KirvAccountActionsMenu</name>
    <message>
        <source>&amp;Server Account</source>
        <translation>Conta no serv&amp;idor</translation>
    </message>
</context>
<context>
    <name>KirvAccountCheckList</name>
    <message>
        <source>&amp;All accounts</source>
        <translation>&amp;Todas as contas</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Contas</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Conta</translation>
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
        <translation>As contas “%1” e “%2” (%3) são a mesma para o servidor. Ambas são mantidas; remova a que não for necessária.</translation>
    </message>
    <message numerus="yes">
        <source>The same is true of %n further logins.</source>
        <translation>
            <numerusform>O mesmo vale para mais %n nome de usuário.</numerusform>
            <numerusform>O mesmo vale para mais %n nomes de usuário.</numerusform>
        </translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) exists already.</source>
        <translation>A conta “%1” (%2) já existe.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) exists already: it is the same as &quot;%3&quot; to the server.</source>
        <extracomment>%1 and %3 are two spellings of a login, %2 is the name of a protocol</extracomment>
        <translation>A conta “%1” (%2) já existe: para o servidor, ela é a mesma que “%3”.</translation>
    </message>
    <message>
        <source>An account needs a login.</source>
        <translation>Uma conta precisa de um nome de usuário.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; could not be created: the protocol %2 is not loaded.</source>
        <translation>Não foi possível criar a conta “%1”: o protocolo %2 não está carregado.</translation>
    </message>
    <message>
        <source>The pictures of the accounts could not be written into a temporary file.</source>
        <translation>Não foi possível gravar as imagens das contas em um arquivo temporário.</translation>
    </message>
    <message>
        <source>There is no account &quot;%1&quot; (%2) any more.</source>
        <translation>A conta “%1” (%2) não existe mais.</translation>
    </message>
</context>
<context>
    <name>KirvAccountExport</name>
    <message>
        <source>The password of the account &quot;%1&quot; (%2) is left out: it is in the keyring and could not be read.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>A senha da conta “%1” (%2) foi omitida: ela está no chaveiro e não pôde ser lida.</translation>
    </message>
    <message>
        <source>Secret settings of the account &quot;%1&quot; (%2) are left out: they are in the keyring and could not be read.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>Configurações secretas da conta “%1” (%2) foram omitidas: elas estão no chaveiro e não puderam ser lidas.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) is left out: it has texts that cannot be exported.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>A conta “%1” (%2) foi omitida: ela tem textos que não podem ser exportados.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) is left out: it could not be read, or is too large.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>A imagem da conta “%1” (%2) foi omitida: ela não pôde ser lida ou é grande demais.</translation>
    </message>
</context>
<context>
    <name>KirvAccountFile</name>
    <message>
        <source>The file is damaged, or it is not a file of exported accounts.</source>
        <translation>O arquivo está danificado ou não é um arquivo de contas exportadas.</translation>
    </message>
    <message>
        <source>The passwords in the file are damaged, so nothing is imported from it.</source>
        <translation>As senhas do arquivo estão danificadas, portanto nada dele é importado.</translation>
    </message>
    <message>
        <source>The file is too large. Up to %1 MB are possible.</source>
        <translation>O arquivo é grande demais. São possíveis até %1 MB.</translation>
    </message>
    <message>
        <source>The file was made by a newer version of the program. This one cannot read it.</source>
        <translation>O arquivo foi criado por uma versão mais recente do programa. Esta versão não pode lê-lo.</translation>
    </message>
    <message>
        <source>The file has too many accounts. Up to %1 are possible.</source>
        <translation>O arquivo tem contas demais. São possíveis até %1.</translation>
    </message>
    <message>
        <source>Account %1 in the file is damaged: &quot;%2&quot; cannot be used.</source>
        <extracomment>%1 = number of an account in a file, %2 = name of a value that is stored there</extracomment>
        <translation>A conta %1 do arquivo está danificada: “%2” não pode ser usado.</translation>
    </message>
    <message>
        <source>The file contains the account &quot;%1&quot; (%2) twice.</source>
        <extracomment>%1 = login, %2 = name of a protocol</extracomment>
        <translation>A conta “%1” (%2) está duas vezes no arquivo.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) in the file is too large.</source>
        <translation>A imagem da conta “%1” (%2) contida no arquivo é grande demais.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) is left out: it is of a kind that cannot be used.</source>
        <translation>A imagem da conta “%1” (%2) foi omitida: ela é de um tipo que não pode ser usado.</translation>
    </message>
    <message>
        <source>The file is damaged: its main account is not in it.</source>
        <translation>O arquivo está danificado: ele não contém a sua conta principal.</translation>
    </message>
    <message>
        <source>The file contains no passwords that the pass phrase could decrypt. If it should contain some, somebody has changed it.</source>
        <translation>O arquivo não tem senhas, portanto não há nada que a frase secreta abra. Se ele deveria ter senhas, alguém o alterou.</translation>
    </message>
    <message>
        <source>The passwords in the file are left out, as they need its pass phrase.</source>
        <translation>As senhas do arquivo foram omitidas, pois precisam da frase secreta dele.</translation>
    </message>
    <message>
        <source>Decrypting the passwords in the file needs more memory or time than is allowed, so nothing is imported from it.</source>
        <translation>Abrir as senhas do arquivo exige mais memória ou tempo do que o permitido, portanto nada dele é importado.</translation>
    </message>
    <message>
        <source>There is not enough memory to decrypt the passwords in the file.</source>
        <translation>Não há memória suficiente para abrir as senhas do arquivo.</translation>
    </message>
    <message>
        <source>The pass phrase does not decrypt the passwords in the file.</source>
        <translation>A frase secreta não abre as senhas do arquivo.</translation>
    </message>
    <message>
        <source>The accounts in the file were changed after it was written. They do not belong to its passwords any more, so nothing is imported from it.</source>
        <translation>As contas do arquivo foram alteradas depois que ele foi gravado. Elas não correspondem mais às senhas dele, portanto nada dele é importado.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) has texts or a picture that cannot be exported.</source>
        <translation>A conta “%1” (%2) tem textos ou uma imagem que não podem ser exportados.</translation>
    </message>
    <message>
        <source>There is not enough memory to encrypt the passwords.</source>
        <translation>Não há memória suficiente para criptografar as senhas.</translation>
    </message>
    <message>
        <source>The file would have more than %1 MB or %2 accounts. Export fewer accounts at once.</source>
        <translation>O arquivo teria mais de %1 MB ou de %2 contas. Exporte menos contas de uma vez.</translation>
    </message>
</context>
<context>
    <name>KirvAccountGroup</name>
    <message>
        <source>Disabling Accounts</source>
        <translation>Desativar contas</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to disable %n accounts? They are logged out.</source>
        <translation>
            <numerusform>Você deseja desativar %n conta? A sessão dela será encerrada.</numerusform>
            <numerusform>Você deseja desativar %n contas? As sessões delas serão encerradas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Removing Accounts</source>
        <translation>Remover contas</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to remove %n accounts and all related data?</source>
        <translation>
            <numerusform>Você deseja remover %n conta e todos os dados relacionados?</numerusform>
            <numerusform>Você deseja remover %n contas e todos os dados relacionados?</numerusform>
        </translation>
    </message>
    <message>
        <source>Disabling All Accounts</source>
        <translation>Desativar todas as contas</translation>
    </message>
    <message>
        <source>Do you want to disable all accounts? They are logged out.</source>
        <translation>Você deseja desativar todas as contas? As sessões delas serão encerradas.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>e mais %n</numerusform>
            <numerusform>e mais %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvAccountHistory</name>
    <message>
        <source>The account &quot;%1&quot; cannot be enabled again: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>A conta “%1” não pode ser reativada: ela foi removida.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be restored to what it was before the import: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>A conta “%1” não pode voltar a ser como era antes da importação: ela foi removida.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be imported again: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>A conta “%1” não pode ser importada de novo: ela foi removida.</translation>
    </message>
</context>
<context>
    <name>KirvAccountImport</name>
    <message>
        <source>The file contains this login twice: &quot;%1&quot; is the same as &quot;%2&quot; to the server.</source>
        <extracomment>%1 and %2 are logins, which may be spelt the same</extracomment>
        <translation>O arquivo tem este nome de usuário duas vezes: para o servidor, “%1” é o mesmo que “%2”.</translation>
    </message>
    <message>
        <source>The account has no login.</source>
        <translation>A conta não tem nome de usuário.</translation>
    </message>
    <message>
        <source>The protocol %1 is not loaded.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>O protocolo %1 não está carregado.</translation>
    </message>
    <message>
        <source>Another account with this login was added or removed in the meantime.</source>
        <translation>Nesse meio-tempo, outra conta com este nome de usuário foi adicionada ou removida.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be imported. %2</source>
        <extracomment>%1 = login, %2 = a sentence</extracomment>
        <translation>A conta “%1” não pode ser importada. %2</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; was left out. %2</source>
        <extracomment>%1 = name of an account, %2 = a sentence</extracomment>
        <translation>A imagem da conta “%1” foi omitida. %2</translation>
    </message>
    <message>
        <source>Stored passwords of the account &quot;%1&quot; are not kept, because its settings in the file differ. They must be entered again.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>As senhas armazenadas da conta &quot;%1&quot; não são mantidas, porque as configurações dela no arquivo são outras. Elas precisam ser digitadas de novo.</translation>
    </message>
</context>
<context>
    <name>KirvAccountInvitation</name>
    <message>
        <source>Add an Account</source>
        <translation>Adicionar uma conta</translation>
    </message>
    <message>
        <source>Register a New One…</source>
        <translation>Registrar uma nova…</translation>
    </message>
    <message>
        <source>Create a new account on a server</source>
        <translation>Criar uma nova conta em um servidor</translation>
    </message>
    <message>
        <source>Add an account that you already have</source>
        <translation>Adicionar uma conta que você já tem</translation>
    </message>
    <message>
        <source>No protocol is loaded. Load one on the Plug-ins page.</source>
        <translation>Nenhum protocolo está carregado. Carregue um na página “Plug-ins”.</translation>
    </message>
    <message>
        <source>Take accounts over from a file</source>
        <translation>Importar contas de um arquivo</translation>
    </message>
    <message>
        <source>Take the accounts of Pidgin over; its own file is only read</source>
        <translation>Importar as contas do Pidgin; o arquivo dele é apenas lido</translation>
    </message>
    <message>
        <source>There is no account yet. Add one that you already have, register a new one, or import accounts from a file.</source>
        <translation>Ainda não há nenhuma conta. Adicione uma que você já tem, registre uma nova ou importe contas de um arquivo.</translation>
    </message>
    <message>
        <source>There is no account yet. Add one that you already have, register a new one, or import accounts. There are accounts of Pidgin on this computer.</source>
        <translation>Ainda não há nenhuma conta. Adicione uma que você já tem, registre uma nova ou importe contas. O Pidgin tem contas neste computador.</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Import from Pidgin…</source>
        <translation>Importar do Pidgin…</translation>
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
        <translation>Encerrando a sessão</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Aguardando</translation>
    </message>
    <message>
        <source>The program requests a log-in</source>
        <translation>O programa solicita um início de sessão</translation>
    </message>
    <message>
        <source>The program changes the presence</source>
        <translation>O programa altera o status</translation>
    </message>
    <message>
        <source>The program requests a log-out</source>
        <translation>O programa solicita o encerramento da sessão</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 (falha)</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>%1 (sucesso)</translation>
    </message>
    <message>
        <source>%1 begins</source>
        <translation>%1 (começo)</translation>
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
        <translation>Log de %1</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copies the selected entries, or all when none is selected. They hold no passwords.</source>
        <translation>Copia as entradas selecionadas, ou todas se nenhuma estiver selecionada. Elas não contêm senhas.</translation>
    </message>
    <message>
        <source>&amp;Report…</source>
        <translation>&amp;Relatório…</translation>
    </message>
    <message>
        <source>Puts the log and the versions of the program together for somebody who helps.</source>
        <translation>Reúne o log e as versões do programa para quem ajudar você.</translation>
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
        <translation>Não há nenhuma conta “%1”.</translation>
    </message>
    <message>
        <source>Several accounts are called &quot;%1&quot;. Name one of them with its protocol: %2</source>
        <extracomment>%1 = what was typed, %2 = names that could be meant</extracomment>
        <translation>Várias contas se chamam “%1”. Indique uma delas com o protocolo: %2</translation>
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
        <translation>Pesquisar contas</translation>
    </message>
    <message>
        <source>Search accounts, or “%1”…</source>
        <extracomment>%1 = the word that finds accounts whose state needs attention</extracomment>
        <translation>Pesquisar contas, ou “%1”…</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problema</translation>
    </message>
    <message>
        <source>Shows the accounts with these words in their alias, login, protocol or state</source>
        <translation>Mostra as contas que têm estas palavras no apelido, nome de usuário, protocolo ou estado</translation>
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
        <translation>Encerrando a sessão…</translation>
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
        <translation>Desativada</translation>
    </message>
    <message>
        <source>Its plug-in is not loaded</source>
        <translation>O plug-in dela não está carregado</translation>
    </message>
    <message>
        <source>Waiting to connect…</source>
        <extracomment>other accounts connect first</extracomment>
        <translation>Aguardando para conectar…</translation>
    </message>
    <message>
        <source>Waiting, next try in %1 s</source>
        <extracomment>%1 = number of seconds; keep it short</extracomment>
        <translation>Aguardando, próxima tentativa em %1 s</translation>
    </message>
    <message>
        <source>Waiting, next try in %1 min</source>
        <extracomment>%1 = number of minutes; keep it short</extracomment>
        <translation>Aguardando, próxima tentativa em %1 min</translation>
    </message>
    <message>
        <source>Waiting, next try at %1</source>
        <extracomment>%1 = time of day</extracomment>
        <translation>Aguardando, próxima tentativa: %1</translation>
    </message>
    <message>
        <source>main account</source>
        <translation>conta principal</translation>
    </message>
    <message>
        <source> · </source>
        <extracomment>between the parts of the line below the name of an account, as in &quot;Connected · Away · main account&quot;</extracomment>
        <translation> · </translation>
    </message>
    <message>
        <source>The account is logged out. It can be logged in with Reconnect.</source>
        <translation>A conta está desconectada. Ela pode ser conectada com “Reconectar”.</translation>
    </message>
    <message>
        <source>The account does not log in. It can be enabled with its check box.</source>
        <translation>A conta não inicia a sessão. Ela pode ser ativada com a sua caixa de seleção.</translation>
    </message>
    <message>
        <source>The plug-in of the protocol %1 is not loaded. Load it on the Plug-ins page.</source>
        <translation>O plug-in do protocolo %1 não está carregado. Carregue-o na página “Plug-ins”.</translation>
    </message>
    <message>
        <source>Other accounts connect first.</source>
        <translation>Outras contas se conectam primeiro.</translation>
    </message>
    <message>
        <source>The next try is at %1.</source>
        <translation>Próxima tentativa: %1.</translation>
    </message>
    <message>
        <source>The presence is %1.</source>
        <translation>O status é “%1”.</translation>
    </message>
    <message>
        <source>Protection: %1.</source>
        <translation>Proteção: %1.</translation>
    </message>
    <message>
        <source>Since %1.</source>
        <extracomment>%1 = time of day, or date and time, since when a connection has been in its state</extracomment>
        <translation>Desde %1.</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Senha incorreta</translation>
    </message>
    <message>
        <source>Password needed</source>
        <translation>Senha necessária</translation>
    </message>
    <message>
        <source>Server not found</source>
        <translation>Servidor não encontrado</translation>
    </message>
    <message>
        <source>Server not reachable</source>
        <translation>Servidor inacessível</translation>
    </message>
    <message>
        <source>No reply from the server</source>
        <translation>Nenhuma resposta do servidor</translation>
    </message>
    <message>
        <source>Certificate not trusted</source>
        <translation>Certificado não confiável</translation>
    </message>
    <message>
        <source>Encryption not offered</source>
        <translation>Criptografia não oferecida</translation>
    </message>
    <message>
        <source>No usable log-in offered</source>
        <translation>Nenhuma autenticação utilizável oferecida</translation>
    </message>
    <message>
        <source>Server not available</source>
        <translation>Servidor indisponível</translation>
    </message>
    <message>
        <source>Connection lost</source>
        <translation>Conexão perdida</translation>
    </message>
    <message>
        <source>Connection closed by the server</source>
        <translation>Conexão encerrada pelo servidor</translation>
    </message>
    <message>
        <source>Logged in elsewhere</source>
        <translation>Sessão iniciada em outro lugar</translation>
    </message>
    <message>
        <source>Name in use</source>
        <translation>Nome em uso</translation>
    </message>
    <message>
        <source>Name not allowed</source>
        <translation>Nome não permitido</translation>
    </message>
    <message>
        <source>Proxy not reachable</source>
        <translation>Proxy inacessível</translation>
    </message>
    <message>
        <source>No reply from the proxy</source>
        <translation>Nenhuma resposta do proxy</translation>
    </message>
    <message>
        <source>Log-in refused by the proxy</source>
        <translation>Autenticação recusada pelo proxy</translation>
    </message>
    <message>
        <source>Denied by the proxy</source>
        <translation>Negado pelo proxy</translation>
    </message>
    <message>
        <source>Proxy failed</source>
        <translation>Falha do proxy</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Acesso negado</translation>
    </message>
    <message>
        <source>Settings cannot be used</source>
        <translation>Configurações inutilizáveis</translation>
    </message>
    <message>
        <source>Not supported by the server</source>
        <translation>Sem suporte no servidor</translation>
    </message>
    <message>
        <source>Log-in failed</source>
        <translation>Falha ao iniciar a sessão</translation>
    </message>
    <message>
        <source>Enter the password again, or edit the account if the login is wrong.</source>
        <translation>Digite a senha novamente ou edite a conta se o nome de usuário estiver incorreto.</translation>
    </message>
    <message>
        <source>Enter the password.</source>
        <translation>Digite a senha.</translation>
    </message>
    <message>
        <source>Edit the account to change its settings.</source>
        <translation>Edite a conta para alterar suas configurações.</translation>
    </message>
    <message>
        <source>It can be logged in here again with Reconnect.</source>
        <translation>Ela pode ser conectada novamente aqui com “Reconectar”.</translation>
    </message>
    <message>
        <source>It can be tried again with Reconnect.</source>
        <translation>Você pode tentar novamente com “Reconectar”.</translation>
    </message>
    <message>
        <source>Look at it with Show Certificate.</source>
        <translation>Veja-o com “Exibir certificado”.</translation>
    </message>
    <message>
        <source>It is another one than the one that you have trusted.</source>
        <translation>Não é o mesmo em que você confiou.</translation>
    </message>
</context>
<context>
    <name>KirvAccountStrip</name>
    <message>
        <source>Enter Password…</source>
        <translation>Digitar a senha…</translation>
    </message>
    <message>
        <source>Takes another password and logs the account in with it.</source>
        <translation>Solicita outra senha e inicia a sessão da conta com ela.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Reconectar</translation>
    </message>
    <message>
        <source>Logs the account out and in again.</source>
        <translation>Encerra a sessão da conta e a inicia novamente.</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Editar…</translation>
    </message>
    <message>
        <source>Change the account</source>
        <translation>Alterar a conta</translation>
    </message>
    <message>
        <source>Reason of the state of the account</source>
        <translation>Motivo do estado da conta</translation>
    </message>
    <message>
        <source>No account is selected.</source>
        <translation>Nenhuma conta está selecionada.</translation>
    </message>
    <message>
        <source>State of %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Estado de %1</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts are selected.</source>
        <translation>
            <numerusform>%n conta está selecionada.</numerusform>
            <numerusform>%n contas estão selecionadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>They can be enabled, disabled and removed with the context menu.</source>
        <translation>Elas podem ser ativadas, desativadas e removidas pelo menu de contexto.</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>Shows what happened to the account&apos;s connection.</source>
        <translation>Mostra o que aconteceu com a conexão da conta.</translation>
    </message>
    <message>
        <source>What Is Wrong?</source>
        <translation>O que há de errado?</translation>
    </message>
    <message>
        <source>Tries each step of the log-in with what is stored, beside the account&apos;s own connection.</source>
        <translation>Testa cada etapa do início de sessão com o que está armazenado, em paralelo à conexão da própria conta.</translation>
    </message>
    <message>
        <source>Show Certificate…</source>
        <translation>Exibir certificado…</translation>
    </message>
    <message>
        <source>Shows the certificate of the server and asks whether it is trusted.</source>
        <translation>Mostra o certificado do servidor e pergunta se você confia nele.</translation>
    </message>
</context>
<context>
    <name>KirvAccountUndo</name>
    <message numerus="yes">
        <source>&amp;Undo Removing %n Accounts</source>
        <translation>
            <numerusform>Des&amp;fazer a remoção de %n conta</numerusform>
            <numerusform>Des&amp;fazer a remoção de %n contas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Disabling %n Accounts</source>
        <translation>
            <numerusform>Des&amp;fazer a desativação de %n conta</numerusform>
            <numerusform>Des&amp;fazer a desativação de %n contas</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Undo Removing %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Des&amp;fazer a remoção de %1</translation>
    </message>
    <message>
        <source>&amp;Undo Disabling %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Des&amp;fazer a desativação de %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Des&amp;fazer</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were removed.</source>
        <translation>
            <numerusform>%n conta foi removida.</numerusform>
            <numerusform>%n contas foram removidas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were disabled.</source>
        <translation>
            <numerusform>%n conta foi desativada.</numerusform>
            <numerusform>%n contas foram desativadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>The account %1 (%2) was removed.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>A conta %1 (%2) foi removida.</translation>
    </message>
    <message>
        <source>The account %1 (%2) was disabled.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>A conta %1 (%2) foi desativada.</translation>
    </message>
    <message>
        <source>&amp;Undo Importing %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Des&amp;fazer a importação de %1</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Importing %n Accounts</source>
        <translation>
            <numerusform>Des&amp;fazer a importação de %n conta</numerusform>
            <numerusform>Des&amp;fazer a importação de %n contas</numerusform>
        </translation>
    </message>
    <message>
        <source>The account %1 (%2) was imported.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>A conta %1 (%2) foi importada.</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were imported.</source>
        <translation>
            <numerusform>%n conta foi importada.</numerusform>
            <numerusform>%n contas foram importadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Import Again</source>
        <translation>&amp;Importar de novo</translation>
    </message>
    <message>
        <source>The import of the account %1 (%2) was undone.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>A importação da conta %1 (%2) foi desfeita.</translation>
    </message>
    <message numerus="yes">
        <source>The import of %n accounts was undone.</source>
        <translation>
            <numerusform>A importação de %n conta foi desfeita.</numerusform>
            <numerusform>A importação de %n contas foi desfeita.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvAccountsCommand</name>
    <message>
        <source>The profile in &quot;%1&quot; is open in another program, which does not take commands.</source>
        <translation>O perfil em “%1” está aberto em outro programa, que não aceita comandos.</translation>
    </message>
    <message>
        <source>There is no profile in &quot;%1&quot; yet.</source>
        <translation>Ainda não há nenhum perfil em “%1”.</translation>
    </message>
    <message>
        <source>The program that runs with this profile does not respond.</source>
        <translation>O programa que está em execução com este perfil não responde.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsOptions</name>
    <message>
        <source>Print one line of JSON.</source>
        <translation>Mostrar uma linha de JSON.</translation>
    </message>
    <message>
        <source>Export: put passwords into the file, encrypted with a pass phrase.</source>
        <translation>Exportar: incluir no arquivo as senhas, criptografadas com uma frase secreta.</translation>
    </message>
    <message>
        <source>Export: overwrite a file that is there.</source>
        <translation>Exportar: sobrescrever o arquivo se ele já existir.</translation>
    </message>
    <message>
        <source>Import: leave out the passwords that are in the file.</source>
        <translation>Importar: omitir as senhas que estiverem no arquivo.</translation>
    </message>
    <message>
        <source>Import: replace accounts that exist by those of the file.</source>
        <translation>Importar: substituir as contas existentes pelas do arquivo.</translation>
    </message>
    <message>
        <source>Import: say what would be done, and change nothing.</source>
        <translation>Importar: dizer o que seria feito, sem alterar nada.</translation>
    </message>
    <message>
        <source>Export and import: the pass phrase is the first line of &lt;file&gt;.</source>
        <translation>Exportar e importar: a frase secreta é a primeira linha de &lt;arquivo&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>arquivo</translation>
    </message>
    <message>
        <source>Export and import: the pass phrase is the first line that can be read from the file descriptor &lt;number&gt;.</source>
        <translation>Exportar e importar: a frase secreta é a primeira linha que puder ser lida do descritor de arquivo &lt;número&gt;.</translation>
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
        <translation>Lista, ativa, desativa, exporta e importa contas.
Uma conta é indicada como PROTOCOLO:ID, ou pelo seu ID quando nenhuma outra conta tem o mesmo.

  accounts list [conta…]
  accounts enable conta…
  accounts disable conta…
  accounts export arquivo [conta…]
  accounts import arquivo

Como arquivo, - significa a saída ou a entrada padrão.</translation>
    </message>
    <message>
        <source>list, enable, disable, export or import.</source>
        <translation>list, enable, disable, export ou import.</translation>
    </message>
    <message>
        <source>A file or an account.</source>
        <translation>Um arquivo ou uma conta.</translation>
    </message>
    <message>
        <source>[argument…]</source>
        <translation>[argumento…]</translation>
    </message>
    <message>
        <source>The command is missing: list, enable, disable, export or import.</source>
        <translation>Falta o comando: list, enable, disable, export ou import.</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; is not known: it can be list, enable, disable, export or import.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>O comando “%1” não é conhecido: ele pode ser list, enable, disable, export ou import.</translation>
    </message>
    <message>
        <source>The option --%1 does not belong to the command &quot;%2&quot;.</source>
        <extracomment>%1 = name of an option, %2 = name of a command</extracomment>
        <translation>A opção --%1 não pertence ao comando “%2”.</translation>
    </message>
    <message>
        <source>The file is missing.</source>
        <translation>Falta o arquivo.</translation>
    </message>
    <message>
        <source>The argument &quot;%1&quot; is not known.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>O argumento “%1” não é conhecido.</translation>
    </message>
    <message>
        <source>The account is missing.</source>
        <translation>Falta a conta.</translation>
    </message>
    <message>
        <source>The option --json cannot be used when the file goes to the standard output.</source>
        <translation>A opção --json não pode ser usada quando o arquivo vai para a saída padrão.</translation>
    </message>
    <message>
        <source>A pass phrase is of no use when no passwords are exported or imported.</source>
        <translation>Uma frase secreta não tem utilidade quando nenhuma senha é incluída.</translation>
    </message>
    <message>
        <source>The file with the pass phrase is missing.</source>
        <translation>Falta o arquivo com a frase secreta.</translation>
    </message>
    <message>
        <source>The option --pass-phrase-fd needs the number of a file descriptor.</source>
        <translation>A opção --pass-phrase-fd precisa do número de um descritor de arquivo.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsPageCompanion</name>
    <message>
        <source>The plug-in of the protocol %1 is not loaded. Load it on the Plug-ins page.</source>
        <translation>O plug-in do protocolo %1 não está carregado. Carregue-o na página “Plug-ins”.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsService</name>
    <message>
        <source>The account is missing.</source>
        <translation>Falta a conta.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsText</name>
    <message>
        <source>There are no accounts.</source>
        <translation>Não há contas.</translation>
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
        <translation>Apelido</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativada</translation>
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
        <translation>sim</translation>
    </message>
    <message>
        <source>no</source>
        <translation>não</translation>
    </message>
    <message>
        <source>%1 is enabled now.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>A conta %1 está ativada agora.</translation>
    </message>
    <message>
        <source>%1 is disabled now.</source>
        <translation>A conta %1 está desativada agora.</translation>
    </message>
    <message>
        <source>%1 was enabled already.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>A conta %1 já estava ativada.</translation>
    </message>
    <message>
        <source>%1 was disabled already.</source>
        <translation>A conta %1 já estava desativada.</translation>
    </message>
    <message>
        <source>Accounts exported: %1, with the passwords that are stored.</source>
        <extracomment>%1 = number</extracomment>
        <translation>Contas exportadas: %1, com as senhas armazenadas.</translation>
    </message>
    <message>
        <source>Accounts exported: %1, without passwords.</source>
        <translation>Contas exportadas: %1, sem senhas.</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nova</translation>
    </message>
    <message>
        <source>replaces %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>substitui %1</translation>
    </message>
    <message>
        <source>%1 is kept</source>
        <translation>%1 é mantida</translation>
    </message>
    <message>
        <source>Accounts that would be imported: %1. Nothing was changed.</source>
        <extracomment>%1 = number</extracomment>
        <translation>Contas que seriam importadas: %1. Nada foi alterado.</translation>
    </message>
    <message>
        <source>Accounts imported: %1.</source>
        <translation>Contas importadas: %1.</translation>
    </message>
</context>
<context>
    <name>KirvAddWindowCompanion</name>
    <message>
        <source>Add %1 Account</source>
        <extracomment>%1 = the name of a protocol</extracomment>
        <translation>Adicionar conta %1</translation>
    </message>
    <message>
        <source>Save Without a Password</source>
        <translation>Salvar sem senha</translation>
    </message>
    <message>
        <source>The login is missing.</source>
        <translation>Falta o nome de usuário.</translation>
    </message>
    <message>
        <source>The login and the password are missing.</source>
        <translation>Faltam o nome de usuário e a senha.</translation>
    </message>
    <message>
        <source>The account can be used without a password.</source>
        <translation>A conta pode ser usada sem senha.</translation>
    </message>
    <message>
        <source>The password is missing.</source>
        <translation>Falta a senha.</translation>
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
        <translation>Avançado</translation>
    </message>
</context>
<context>
    <name>KirvAliasEditor</name>
    <message>
        <source>Alias</source>
        <translation>Apelido</translation>
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
        <translation>Não foi possível copiar a imagem “%1” para o perfil: %2</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be written.</source>
        <translation>Não é possível gravar na pasta “%1”.</translation>
    </message>
</context>
<context>
    <name>KirvAvatarQuickSetWidget</name>
    <message>
        <source>Picture of the account</source>
        <translation>Imagem da conta</translation>
    </message>
    <message>
        <source>Click to choose a picture, or drop or paste one here</source>
        <translation>Clique para escolher uma imagem, ou arraste ou cole uma aqui</translation>
    </message>
    <message>
        <source>&amp;Choose Picture…</source>
        <translation>&amp;Escolher imagem…</translation>
    </message>
    <message>
        <source>&amp;Paste Picture</source>
        <translation>&amp;Colar imagem</translation>
    </message>
    <message>
        <source>&amp;Remove Picture</source>
        <translation>&amp;Remover imagem</translation>
    </message>
    <message>
        <source>Choose Picture</source>
        <translation>Escolher imagem</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Imagens (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>The picture cannot be stored on this computer.</source>
        <translation>A imagem não pode ser armazenada neste computador.</translation>
    </message>
    <message>
        <source>Picture of the Account</source>
        <translation>Imagem da conta</translation>
    </message>
</context>
<context>
    <name>KirvBoundedImage</name>
    <message>
        <source>The picture is too large: %1 × %2 pixels. Up to %3 million pixels are possible.</source>
        <translation>A imagem é grande demais: %1 × %2 pixels. São possíveis até %3 milhões de pixels.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is too large. Up to %2 MB are possible.</source>
        <translation>O arquivo “%1” é grande demais. São possíveis até %2 MB.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is not a picture that can be used. Pictures in the formats PNG, JPEG, GIF, BMP and WebP are possible.</source>
        <translation>O arquivo “%1” não é uma imagem que possa ser usada. São possíveis imagens nos formatos PNG, JPEG, GIF, BMP e WebP.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read.</source>
        <translation>O arquivo “%1” não pode ser lido.</translation>
    </message>
    <message>
        <source>The picture in the file &quot;%1&quot; is damaged.</source>
        <translation>A imagem no arquivo “%1” está danificada.</translation>
    </message>
    <message>
        <source>There is no picture that can be used.</source>
        <translation>Não há nenhuma imagem que possa ser usada.</translation>
    </message>
</context>
<context>
    <name>KirvCertificateQuestion</name>
    <message>
        <source>Trusted Certificate</source>
        <extracomment>%1 = name of a server</extracomment>
        <translation>Certificado confiável</translation>
    </message>
    <message>
        <source>Certificate of %1</source>
        <translation>Certificado de %1</translation>
    </message>
    <message>
        <source>What is wrong with the certificate</source>
        <translation>O que há de errado com o certificado</translation>
    </message>
    <message>
        <source>Somebody between you and the server could read your password.</source>
        <translation>Alguém entre você e o servidor poderia ler a sua senha.</translation>
    </message>
    <message>
        <source>You have chosen to trust this certificate for the account %1.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>Você decidiu confiar neste certificado para a conta %1.</translation>
    </message>
    <message>
        <source>The server shows another certificate than the one that you have trusted for the account %1.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>O servidor apresenta um certificado diferente daquele em que você confiou para a conta %1.</translation>
    </message>
    <message>
        <source>The certificate of the server of the account %1 is not trusted.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>O certificado do servidor da conta %1 não é confiável.</translation>
    </message>
    <message>
        <source>Trusted so far</source>
        <extracomment>the fingerprint of the certificate that was trusted so far</extracomment>
        <translation>Confiável até agora</translation>
    </message>
    <message>
        <source>%1:</source>
        <extracomment>the caption of a line: %1 = what it is about</extracomment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>&amp;Trust for This Account</source>
        <translation>&amp;Confiar para esta conta</translation>
    </message>
    <message>
        <source>&amp;Stop Trusting</source>
        <translation>&amp;Deixar de confiar</translation>
    </message>
    <message>
        <source>&amp;Do Not Connect</source>
        <translation>&amp;Não conectar</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>&amp;Fechar</translation>
    </message>
</context>
<context>
    <name>KirvClient</name>
    <message>
        <source>Accounts</source>
        <translation>Contas</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>There is no folder %1, so no protocol is available.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation>A pasta %1 não existe, portanto nenhum protocolo está disponível.</translation>
    </message>
    <message>
        <source>The link cannot be opened: the protocol %1 is not available.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>O link não pode ser aberto: o protocolo %1 não está disponível.</translation>
    </message>
    <message>
        <source>%1 is the main account now, because %2 was removed.</source>
        <translation>%1 agora é a conta principal, porque %2 foi removida.</translation>
    </message>
    <message>
        <source>%1 is the main account now, because %2 was disabled.</source>
        <translation>%1 agora é a conta principal, porque %2 foi desativada.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = name of an account, %2 = one or more sentences about it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>One password was moved to your keyring.</source>
        <translation>Uma senha foi movida para o seu chaveiro.</translation>
    </message>
    <message numerus="yes">
        <source>%n passwords were moved to your keyring.</source>
        <translation>
            <numerusform>%n senha foi movida para o seu chaveiro.</numerusform>
            <numerusform>%n senhas foram movidas para o seu chaveiro.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n passwords were moved to your keyring, which is %1.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>
            <numerusform>%n senha foi movida para o seu chaveiro (%1).</numerusform>
            <numerusform>%n senhas foram movidas para o seu chaveiro (%1).</numerusform>
        </translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>The link was not opened because another window waits for an answer. Close that, and open the link again.</source>
        <translation>O link não foi aberto porque outra janela aguarda uma resposta. Feche-a e abra o link novamente.</translation>
    </message>
    <message>
        <source>The link was not opened because it is too long.</source>
        <translation>O link não foi aberto porque é longo demais.</translation>
    </message>
</context>
<context>
    <name>KirvClientOptions</name>
    <message>
        <source>The option --%1 needs a folder.</source>
        <extracomment>%1 = name of an option</extracomment>
        <translation>A opção --%1 precisa de uma pasta.</translation>
    </message>
    <message>
        <source>Say whether the profile is damaged, list its copies and end: with 0 when it can be used, 2 when it is damaged, and 1 when it cannot be used for another reason.</source>
        <translation>Dizer se o perfil está danificado, listar suas cópias e terminar: com 0 quando ele pode ser usado, 2 quando está danificado e 1 quando não pode ser usado por outro motivo.</translation>
    </message>
    <message>
        <source>Put a copy in the place of the profile&apos;s database and end: the newest, or the one that is named. Passwords are in no copy.</source>
        <translation>Colocar uma cópia no lugar do banco de dados do perfil e terminar: a mais recente, ou a que for indicada. Nenhuma cópia contém senhas.</translation>
    </message>
    <message>
        <source>Read what is still readable of the profile&apos;s damaged database, keep that, and end.</source>
        <translation>Ler o que ainda for legível do banco de dados danificado do perfil, guardar isso e terminar.</translation>
    </message>
    <message>
        <source>The copy to restore.</source>
        <translation>A cópia a restaurar.</translation>
    </message>
    <message>
        <source>[copy]</source>
        <translation>[cópia]</translation>
    </message>
    <message>
        <source>A link that begins with xmpp:, irc: or ircs: opens the window for a new account of that protocol.</source>
        <translation>Um link que começa com xmpp:, irc: ou ircs: abre a janela de uma nova conta desse protocolo.</translation>
    </message>
    <message>
        <source>[link]</source>
        <translation>[link]</translation>
    </message>
    <message>
        <source>The options %1 and %2 cannot be used together.</source>
        <extracomment>%1, %2 = names of options</extracomment>
        <translation>As opções %1 e %2 não podem ser usadas juntas.</translation>
    </message>
    <message>
        <source>The argument &quot;%1&quot; is not known.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>O argumento “%1” não é conhecido.</translation>
    </message>
    <message>
        <source>Keep accounts and settings in &lt;folder&gt; instead of the user&apos;s own profile.</source>
        <translation>Manter as contas e as configurações em &lt;pasta&gt; em vez do perfil pessoal.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>pasta</translation>
    </message>
    <message>
        <source>Load the protocol plug-ins of &lt;folder&gt;.</source>
        <translation>Carregar os plug-ins de protocolo de &lt;pasta&gt;.</translation>
    </message>
    <message>
        <source>Accounts of several instant-messaging protocols in one place.
&quot;kirv accounts --help&quot; says how accounts are listed, enabled, disabled, exported and imported without windows.</source>
        <translation>Contas de vários protocolos de mensagens instantâneas em um só lugar.
“kirv accounts --help” explica como listar, ativar, desativar, exportar e importar contas sem janelas.</translation>
    </message>
</context>
<context>
    <name>KirvCommandFile</name>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2</source>
        <extracomment>%1 = path of a file, %2 = what the system says</extracomment>
        <translation>O arquivo “%1” não pode ser lido: %2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is too large to be a file of exported accounts.</source>
        <translation>O arquivo “%1” é grande demais para ser um arquivo de contas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file that can be overwritten.</source>
        <translation>“%1” não é um arquivo que possa ser sobrescrito.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists already. Use --force to overwrite it.</source>
        <translation>O arquivo “%1” já existe. Com --force, ele é sobrescrito.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written.</source>
        <translation>Não é possível gravar o arquivo “%1”.</translation>
    </message>
    <message>
        <source>The standard output cannot be written.</source>
        <translation>Não é possível gravar na saída padrão.</translation>
    </message>
</context>
<context>
    <name>KirvConnection</name>
    <message>
        <source>The account is not connected.</source>
        <translation>A conta não está conectada.</translation>
    </message>
</context>
<context>
    <name>KirvDamagedProfile</name>
    <message>
        <source>The copy of %1 was restored. Accounts: %2.</source>
        <extracomment>%1 = date and time, %2 = number of accounts</extracomment>
        <translation>A cópia de %1 foi restaurada. Contas: %2.</translation>
    </message>
    <message>
        <source>Passwords and other secret settings are in no copy and have to be entered again.</source>
        <translation>Senhas e outras configurações secretas não estão em nenhuma cópia e precisam ser digitadas novamente.</translation>
    </message>
    <message>
        <source>Everything could be read.</source>
        <translation>Foi possível ler tudo.</translation>
    </message>
    <message>
        <source>Only a part could be read. Accounts or settings are missing.</source>
        <translation>Só foi possível ler uma parte. Faltam contas ou configurações.</translation>
    </message>
    <message>
        <source>Accounts: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Contas: %1</translation>
    </message>
    <message>
        <source>Settings of accounts: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Configurações de contas: %1</translation>
    </message>
    <message>
        <source>Passwords and other secret settings: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Senhas e outras configurações secretas: %1</translation>
    </message>
    <message>
        <source>Settings of the program: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>Configurações do programa: %1</translation>
    </message>
    <message>
        <source>The profile has no accounts now.</source>
        <translation>O perfil não tem mais contas.</translation>
    </message>
    <message>
        <source>The database that was there is kept in &quot;%1&quot;, with the passwords in it. Delete it when it is no longer needed.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>O banco de dados anterior está guardado em “%1”, com as senhas. Exclua-o quando não for mais necessário.</translation>
    </message>
</context>
<context>
    <name>KirvDatabase</name>
    <message>
        <source>The SQLite driver of Qt, which the profile needs, is not installed.</source>
        <translation>O driver SQLite do Qt, do qual o perfil precisa, não está instalado.</translation>
    </message>
    <message>
        <source>The profile is not open.</source>
        <translation>O perfil não está aberto.</translation>
    </message>
    <message>
        <source>There is no space left on the disk, so nothing was stored. Free some space and try again.</source>
        <translation>Não há mais espaço no disco, portanto nada foi salvo. Libere espaço e tente novamente.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; could not be read or written (%2). The disk may be full or faulty.</source>
        <translation>Não foi possível ler ou gravar o perfil em “%1” (%2). O disco pode estar cheio ou com defeito.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is damaged, so nothing was stored. Start the program again to see what can be done.</source>
        <translation>O perfil em “%1” está danificado, portanto nada foi salvo. Inicie o programa novamente para ver o que pode ser feito.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; cannot be written. Check its owner and permissions.</source>
        <translation>Não é possível gravar no perfil em “%1”. Verifique o proprietário e as permissões dele.</translation>
    </message>
    <message>
        <source>Another program is using the profile in &quot;%1&quot;.</source>
        <translation>Outro programa está usando o perfil em “%1”.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; could not be used: %2</source>
        <translation>Não foi possível usar o perfil em “%1”: %2</translation>
    </message>
</context>
<context>
    <name>KirvDemo</name>
    <message>
        <source>No temporary folder for the profile can be made: %1</source>
        <translation>Não é possível criar uma pasta temporária para o perfil: %1</translation>
    </message>
    <message>
        <source>The demo needs the XMPP server Prosody (the package prosody), which did not start: %1</source>
        <translation>A demonstração precisa do servidor XMPP Prosody (o pacote prosody), que não foi iniciado: %1</translation>
    </message>
    <message>
        <source>This is a try-out with a profile of its own; nothing is kept. A private XMPP server runs on this computer. Add an XMPP account, choose the configuration &quot;Server on this computer&quot; and type the login %1 and the password %2.</source>
        <translation>Esta é uma demonstração com um perfil próprio; nada é mantido. Um servidor XMPP privado está em execução neste computador. Adicione uma conta XMPP, escolha o modelo “Servidor neste computador” e digite o nome de usuário %1 e a senha %2.</translation>
    </message>
    <message>
        <source>A private IRC server runs too: add an IRC account with the same configuration, with any nickname and any password.</source>
        <translation>Um servidor IRC privado também está em execução: adicione uma conta IRC com o mesmo modelo, com qualquer nick e qualquer senha.</translation>
    </message>
</context>
<context>
    <name>KirvDirectoryGuard</name>
    <message>
        <source>&amp;Fetch Again</source>
        <translation>Obter no&amp;vamente</translation>
    </message>
    <message>
        <source>Publishing the directory entry…</source>
        <translation>Publicando a entrada do diretório…</translation>
    </message>
    <message>
        <source>Requesting the directory entry…</source>
        <translation>Solicitando a entrada do diretório…</translation>
    </message>
    <message>
        <source>The account must be connected before its directory entry can be read or changed.</source>
        <translation>A conta precisa estar conectada para que sua entrada do diretório possa ser lida ou alterada.</translation>
    </message>
    <message>
        <source>The directory entry is not known. Fetch it again to change it.</source>
        <translation>A entrada do diretório não é conhecida. Obtenha-a novamente para alterá-la.</translation>
    </message>
    <message>
        <source>Nothing was saved, because the entry cannot be published like this. Correct what is marked.</source>
        <translation>Nada foi salvo, porque a entrada não pode ser publicada assim. Corrija o que está marcado.</translation>
    </message>
    <message>
        <source>The account was saved, but its directory entry was not published, as the account is not connected. Save again when it is.</source>
        <translation>A conta foi salva, mas sua entrada do diretório não foi publicada, pois a conta não está conectada. Salve novamente quando ela estiver.</translation>
    </message>
</context>
<context>
    <name>KirvEditWindowCompanion</name>
    <message>
        <source>&amp;Server Account</source>
        <translation>Conta no se&amp;rvidor</translation>
    </message>
    <message>
        <source>What can be done with the account on its server.</source>
        <translation>O que pode ser feito com a conta no servidor dela.</translation>
    </message>
    <message>
        <source>Saving Account</source>
        <translation>Salvar conta</translation>
    </message>
    <message>
        <source>Nothing was changed. The window stays open, so that you can try again.</source>
        <translation>Nada foi alterado. A janela permanece aberta para que você possa tentar novamente.</translation>
    </message>
    <message>
        <source>Picture of the Account</source>
        <translation>Imagem da conta</translation>
    </message>
    <message>
        <source>The picture was not changed.</source>
        <translation>A imagem não foi alterada.</translation>
    </message>
    <message>
        <source>None is stored</source>
        <translation>Nenhuma está armazenada</translation>
    </message>
</context>
<context>
    <name>KirvExportWindow</name>
    <message>
        <source>Export Accounts</source>
        <translation>Exportar contas</translation>
    </message>
    <message>
        <source>Include &amp;passwords (encrypted)</source>
        <translation>&amp;Incluir senhas (criptografadas)</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Several words that are not related are easy to remember and hard to guess. Whoever has the file and guesses the pass phrase has your passwords; without it, nobody can read them, not even you.</source>
        <translation>Várias palavras sem relação entre si são fáceis de lembrar e difíceis de adivinhar. Quem tiver o arquivo e adivinhar a frase secreta terá as suas senhas; sem ela ninguém pode lê-las, nem mesmo você.</translation>
    </message>
    <message>
        <source>Pass p&amp;hrase:</source>
        <translation>Fra&amp;se secreta:</translation>
    </message>
    <message>
        <source>&amp;Repeat pass phrase:</source>
        <translation>&amp;Repetir a frase:</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportar…</translation>
    </message>
    <message>
        <source>Choose the file to which the accounts are written.</source>
        <translation>Escolher o arquivo em que as contas são gravadas.</translation>
    </message>
    <message>
        <source>The two pass phrases must be the same.</source>
        <translation>A frase secreta e a sua repetição devem ser iguais.</translation>
    </message>
    <message>
        <source>Exported accounts (*.json)</source>
        <translation>Contas exportadas (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>The export was cancelled; nothing was written.</source>
        <translation>A exportação foi cancelada; nada foi gravado.</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were exported to %1.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>
            <numerusform>%n conta foi exportada para %1.</numerusform>
            <numerusform>%n contas foram exportadas para %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file contains no passwords.</source>
        <translation>O arquivo não contém senhas.</translation>
    </message>
    <message>
        <source>The following is not in the file:</source>
        <translation>O seguinte não está no arquivo:</translation>
    </message>
    <message>
        <source>The stored passwords are in it, encrypted with the pass phrase.</source>
        <translation>As senhas armazenadas estão nele, criptografadas com a frase secreta.</translation>
    </message>
</context>
<context>
    <name>KirvFailure</name>
    <message>
        <source>The server did not accept the login or the password.</source>
        <translation>O servidor não aceitou o nome de usuário ou a senha.</translation>
    </message>
    <message>
        <source>A password is needed to log in, and none is known.</source>
        <translation>É necessária uma senha para iniciar a sessão, e nenhuma é conhecida.</translation>
    </message>
    <message>
        <source>The server could not be found. Check its name and your network connection.</source>
        <translation>Não foi possível encontrar o servidor. Verifique o nome dele e a sua conexão de rede.</translation>
    </message>
    <message>
        <source>The server does not accept connections. Check its name and port, or try again later.</source>
        <translation>O servidor não aceita conexões. Verifique o nome e a porta dele ou tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The server did not answer in time.</source>
        <translation>O servidor não respondeu a tempo.</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted.</source>
        <translation>O certificado do servidor não é confiável.</translation>
    </message>
    <message>
        <source>The account requires encryption, and the server does not offer it.</source>
        <translation>A conta exige criptografia, e o servidor não a oferece.</translation>
    </message>
    <message>
        <source>The server offers no way to log in that this account can use.</source>
        <translation>O servidor não oferece nenhum método de autenticação que esta conta possa usar.</translation>
    </message>
    <message>
        <source>The server cannot log the account in at the moment.</source>
        <translation>O servidor não pode iniciar a sessão da conta no momento.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>A conexão com o servidor foi perdida.</translation>
    </message>
    <message>
        <source>The server closed the connection.</source>
        <translation>O servidor encerrou a conexão.</translation>
    </message>
    <message>
        <source>Another client logged in to the account and took its place.</source>
        <translation>Outro cliente iniciou uma sessão na conta e assumiu o lugar deste.</translation>
    </message>
    <message>
        <source>The name is already in use on the server.</source>
        <translation>O nome já está em uso no servidor.</translation>
    </message>
    <message>
        <source>The server does not allow this name.</source>
        <translation>O servidor não permite este nome.</translation>
    </message>
    <message>
        <source>The proxy cannot be reached. Check its name and port and your network connection.</source>
        <translation>Não é possível acessar o proxy. Verifique o nome e a porta dele e a sua conexão de rede.</translation>
    </message>
    <message>
        <source>The proxy did not connect to the server in time.</source>
        <translation>O proxy não se conectou ao servidor a tempo.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user or the password.</source>
        <translation>O proxy não aceitou o usuário ou a senha.</translation>
    </message>
    <message>
        <source>The proxy does not allow a connection to the server.</source>
        <translation>O proxy não permite uma conexão com o servidor.</translation>
    </message>
    <message>
        <source>The connection through the proxy failed.</source>
        <translation>A conexão pelo proxy falhou.</translation>
    </message>
    <message>
        <source>The system did not say in time which proxy to use, so no connection was made.</source>
        <translation>O sistema não informou a tempo qual proxy usar, portanto nenhuma conexão foi feita.</translation>
    </message>
    <message>
        <source>The server denied access.</source>
        <translation>O servidor negou o acesso.</translation>
    </message>
    <message>
        <source>The settings of the account cannot be used.</source>
        <translation>As configurações da conta não podem ser usadas.</translation>
    </message>
    <message>
        <source>The server does not offer what was requested.</source>
        <translation>O servidor não oferece o que foi solicitado.</translation>
    </message>
    <message>
        <source>The request failed.</source>
        <translation>A solicitação falhou.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Ocorreu um erro desconhecido.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; could not be found. Check its name and your network connection.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>Não foi possível encontrar o servidor “%1”. Verifique o nome dele e a sua conexão de rede.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; does not accept connections. Check its name and port, or try again later.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>O servidor “%1” não aceita conexões. Verifique o nome e a porta dele ou tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not answer in time.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>O servidor “%1” não respondeu a tempo.</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: %1</source>
        <extracomment>%1 is what is wrong with the certificate</extracomment>
        <translation>O certificado do servidor não é confiável: %1</translation>
    </message>
    <message>
        <source>The server cannot log the account in at the moment: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>O servidor não pode iniciar a sessão da conta no momento: %1</translation>
    </message>
    <message>
        <source>The connection to the server was lost: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>A conexão com o servidor foi perdida: %1</translation>
    </message>
    <message>
        <source>The server closed the connection: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>O servidor encerrou a conexão: %1</translation>
    </message>
    <message>
        <source>Another client logged in to the account and took its place: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>Outro cliente iniciou uma sessão na conta e assumiu o lugar deste: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is already in use on the server.</source>
        <extracomment>%1 is the name of a user</extracomment>
        <translation>O nome “%1” já está em uso no servidor.</translation>
    </message>
    <message>
        <source>The server does not allow the name &quot;%1&quot;.</source>
        <extracomment>%1 is the name of a user</extracomment>
        <translation>O servidor não permite o nome “%1”.</translation>
    </message>
    <message>
        <source>The server denied access: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>O servidor negou o acesso: %1</translation>
    </message>
    <message>
        <source>The settings of the account cannot be used: %1</source>
        <extracomment>%1 says which setting and what is wrong with it</extracomment>
        <translation>As configurações da conta não podem ser usadas: %1</translation>
    </message>
    <message>
        <source>The server does not offer what was requested: %1</source>
        <extracomment>%1 is what was requested</extracomment>
        <translation>O servidor não oferece o que foi solicitado: %1</translation>
    </message>
    <message>
        <source>The request failed: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>A solicitação falhou: %1</translation>
    </message>
    <message>
        <source>An error occurred: %1</source>
        <extracomment>%1 is what the server or the network said</extracomment>
        <translation>Ocorreu um erro: %1</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its name and port and your network connection.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>Não é possível acessar o proxy %1. Verifique o nome e a porta dele e a sua conexão de rede.</translation>
    </message>
    <message>
        <source>The proxy %1 did not connect to the server in time.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>O proxy %1 não se conectou ao servidor a tempo.</translation>
    </message>
    <message>
        <source>The proxy %1 did not accept the user or the password.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>O proxy %1 não aceitou o usuário ou a senha.</translation>
    </message>
    <message>
        <source>The proxy %1 does not allow a connection to the server.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>O proxy %1 não permite uma conexão com o servidor.</translation>
    </message>
    <message>
        <source>The connection through the proxy failed: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>A conexão pelo proxy falhou: %1</translation>
    </message>
    <message>
        <source>The connection ended before the server answered.</source>
        <translation>A conexão terminou antes que o servidor respondesse.</translation>
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
        <translation>Formato inválido.</translation>
    </message>
    <message>
        <source>Invalid format: %1</source>
        <translation>Formato inválido: %1</translation>
    </message>
    <message>
        <source>This must be filled in.</source>
        <translation>Este campo precisa ser preenchido.</translation>
    </message>
    <message>
        <source>This text is too long to be shown in full and to be changed here.</source>
        <translation>Este texto é longo demais para ser mostrado por inteiro e alterado aqui.</translation>
    </message>
    <message>
        <source>This text is too long to be shown in full. It is kept as long as nothing is changed here.</source>
        <translation>Este texto é longo demais para ser mostrado por inteiro. Ele é mantido enquanto nada for alterado aqui.</translation>
    </message>
    <message>
        <source>This must be a whole number from %1 to %2.</source>
        <translation>O valor deve ser um número inteiro de %1 a %2.</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obrigatório</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>Não escolhido</translation>
    </message>
</context>
<context>
    <name>KirvFileButton</name>
    <message>
        <source>Choose…</source>
        <translation>Escolher…</translation>
    </message>
    <message>
        <source>Choose the file.</source>
        <translation>Escolher o arquivo.</translation>
    </message>
    <message>
        <source>Choose the file for %1</source>
        <extracomment>%1 = what the file is, as &quot;Trusted certificate&quot;</extracomment>
        <translation>Escolher o arquivo para “%1”</translation>
    </message>
    <message>
        <source>Certificates and keys (*.pem *.crt *.cer *.key)</source>
        <translation>Certificados e chaves (*.pem *.crt *.cer *.key)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os arquivos (*)</translation>
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
        <translation>&amp;Idioma do programa:</translation>
    </message>
    <message>
        <source>As the system (%1)</source>
        <extracomment>entry of a list of languages; %1 = the language of the system in its own words, as &quot;Deutsch&quot;</extracomment>
        <translation>Como o sistema (%1)</translation>
    </message>
    <message>
        <source>No native speaker has read these texts yet.</source>
        <translation>Nenhum falante nativo leu estes textos ainda.</translation>
    </message>
    <message>
        <source>The language changes when the open windows are closed.</source>
        <translation>O idioma muda quando as janelas abertas são fechadas.</translation>
    </message>
    <message>
        <source>Passwords</source>
        <translation>Senhas</translation>
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
        <translation>Suas contas e configurações estão na pasta %1.</translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation>&amp;Abrir pasta</translation>
    </message>
    <message>
        <source>Shows the folder in the file manager.</source>
        <translation>Mostra a pasta no gerenciador de arquivos.</translation>
    </message>
    <message>
        <source>Copies of the profile</source>
        <translation>Cópias do perfil</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Contas</translation>
    </message>
    <message>
        <source>There are no copies of the profile yet.</source>
        <translation>Ainda não há cópias do perfil.</translation>
    </message>
    <message>
        <source>Copies of the profile, without passwords; one can be restored when the profile is damaged:</source>
        <translation>Cópias do perfil, sem senhas; uma delas pode ser restaurada se o perfil estiver danificado:</translation>
    </message>
    <message>
        <source>&amp;Export Accounts…</source>
        <translation>&amp;Exportar contas…</translation>
    </message>
    <message>
        <source>Writes accounts to a file that can be imported on another computer.</source>
        <translation>Grava contas em um arquivo que pode ser importado em outro computador.</translation>
    </message>
    <message>
        <source>&amp;Import Accounts…</source>
        <translation>I&amp;mportar contas…</translation>
    </message>
    <message>
        <source>Takes accounts over from such a file, or from Pidgin.</source>
        <translation>Importa contas de um arquivo desse tipo ou do Pidgin.</translation>
    </message>
    <message>
        <source>The keyring asks you to unlock it. Then the passwords that accounts wait for are read, and those that are in a file are moved.</source>
        <translation>O chaveiro pede que você o desbloqueie. Então as senhas que as contas esperam são lidas, e as que estão em um arquivo são movidas.</translation>
    </message>
</context>
<context>
    <name>KirvImportWindow</name>
    <message>
        <source>Import Accounts</source>
        <translation>Importar contas</translation>
    </message>
    <message>
        <source>About the file</source>
        <translation>Sobre o arquivo</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>O que acontece</translation>
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
        <translation>Fra&amp;se secreta:</translation>
    </message>
    <message>
        <source>Choose Another &amp;File…</source>
        <translation>Escolher &amp;outro arquivo…</translation>
    </message>
    <message>
        <source>&amp;Without Passwords</source>
        <translation>S&amp;em senhas</translation>
    </message>
    <message>
        <source>Lists the accounts; their passwords have to be entered here.</source>
        <translation>Lista as contas; as senhas delas precisam ser digitadas aqui.</translation>
    </message>
    <message>
        <source>Exported accounts, accounts of Pidgin (*.json *.xml)</source>
        <translation>Contas exportadas, contas do Pidgin (*.json *.xml)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>The file %1 is being read…</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Lendo o arquivo %1…</translation>
    </message>
    <message>
        <source>The file %1 contains passwords. Enter the pass phrase with which they are encrypted.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>O arquivo %1 contém senhas. Digite a frase secreta com a qual elas estão criptografadas.</translation>
    </message>
    <message>
        <source>The accounts in the file %1 cannot be imported.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>As contas do arquivo %1 não podem ser importadas.</translation>
    </message>
    <message>
        <source>The file %1 contains no accounts that can be imported.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Não há contas que possam ser importadas no arquivo %1.</translation>
    </message>
    <message>
        <source>The file %1 contains these accounts. Nothing is changed before you import them, and the import can be undone.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>Estas contas estão no arquivo %1. Nada é alterado antes que você as importe, e a importação pode ser desfeita.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Import %n Accounts</source>
        <translation>
            <numerusform>&amp;Importar %n conta</numerusform>
            <numerusform>&amp;Importar %n contas</numerusform>
        </translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nova</translation>
    </message>
    <message>
        <source>New, will be left out</source>
        <translation>Nova, será omitida</translation>
    </message>
    <message>
        <source>Exists, will be replaced</source>
        <translation>Existe aqui, será substituída</translation>
    </message>
    <message>
        <source>Exists, will be kept</source>
        <translation>Existe aqui, será mantida</translation>
    </message>
    <message>
        <source>Exists as %1, will be replaced</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>Existe aqui como %1, será substituída</translation>
    </message>
    <message>
        <source>Exists as %1, will be kept</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>Existe aqui como %1, será mantida</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = the login of an account, %2 = a sentence about it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The following is not imported:</source>
        <translation>O seguinte não é importado:</translation>
    </message>
    <message>
        <source>Exists, will be replaced; its passwords must be entered again</source>
        <translation>Existe aqui, será substituída; as senhas dela precisam ser digitadas de novo</translation>
    </message>
    <message>
        <source>Exists as %1, will be replaced; its passwords must be entered again</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>Existe aqui como %1, será substituída; as senhas dela precisam ser digitadas de novo</translation>
    </message>
</context>
<context>
    <name>KirvInstanceMessage</name>
    <message>
        <source>The program that runs with this profile has another version. Quit it, and try again.</source>
        <translation>O programa que está em execução com este perfil tem outra versão. Saia dele e tente novamente.</translation>
    </message>
    <message>
        <source>The message of the other program cannot be read.</source>
        <translation>Não é possível ler a mensagem do outro programa.</translation>
    </message>
    <message>
        <source>The program that runs with this profile does not have that command.</source>
        <translation>O programa que está em execução com este perfil não conhece esse comando.</translation>
    </message>
</context>
<context>
    <name>KirvIrcConnection</name>
    <message>
        <source>The server sent a line that is longer than lines can be.</source>
        <translation>O servidor enviou uma linha mais longa do que o permitido.</translation>
    </message>
    <message>
        <source>There is no certificate in the file &quot;%1&quot;.</source>
        <translation>Não há nenhum certificado no arquivo “%1”.</translation>
    </message>
    <message>
        <source>There is no private key that can be used in the file &quot;%1&quot;.</source>
        <translation>Não há nenhuma chave privada que possa ser usada no arquivo “%1”.</translation>
    </message>
    <message>
        <source>Other users of this computer can read or change the key file &quot;%1&quot;. Only its owner should.</source>
        <translation>Outros usuários deste computador podem ler ou alterar o arquivo de chave “%1”. Somente o proprietário deveria poder.</translation>
    </message>
    <message>
        <source>It does not offer SASL now, as it did before.</source>
        <translation>Ele não oferece SASL agora, embora oferecesse antes.</translation>
    </message>
    <message>
        <source>The nick &quot;%1&quot; could not be had; you are &quot;%2&quot; on this server now.</source>
        <translation>Não foi possível obter o nick “%1”; agora você é “%2” neste servidor.</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>%1 is what a server says first, as &quot;You are banned&quot;, %2 what it says when it closes the connection</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>password of the server</source>
        <translation>senha do servidor</translation>
    </message>
    <message>
        <source>no password</source>
        <translation>sem senha</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is the encryption, as &quot;TLSv1.3&quot;, %2 how the user has proved who he is, as &quot;SASL PLAIN&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not encrypted</source>
        <translation>sem criptografia</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Ausente</translation>
    </message>
    <message>
        <source>The server does not answer any more.</source>
        <translation>O servidor não responde mais.</translation>
    </message>
</context>
<context>
    <name>KirvIrcProtocol</name>
    <message>
        <source>Internet Relay Chat: conversations in channels of a network of servers.</source>
        <translation>Internet Relay Chat: conversas em canais de uma rede de servidores.</translation>
    </message>
    <message>
        <source>anna, or anna@irc.example.org</source>
        <translation>anna ou anna@irc.example.org</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponível</translation>
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
        <translation>A senha é mais longa do que o servidor aceita.</translation>
    </message>
    <message>
        <source>It has ended SASL before it was done.</source>
        <translation>Ele encerrou o SASL antes que estivesse concluído.</translation>
    </message>
    <message>
        <source>The client certificate is not known there.</source>
        <translation>O certificado de cliente não é conhecido lá.</translation>
    </message>
</context>
<context>
    <name>KirvIrcSettings</name>
    <message>
        <source>&quot;%1&quot; cannot be a nick.</source>
        <translation>“%1” não pode ser um nick.</translation>
    </message>
    <message>
        <source>No server is given.</source>
        <translation>Nenhum servidor foi informado.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a server.</source>
        <translation>“%1” não é o nome de um servidor.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>A porta deve ser um número de 1 a 65535.</translation>
    </message>
    <message>
        <source>There is a key of a client certificate, but no client certificate.</source>
        <translation>Há uma chave de um certificado de cliente, mas nenhum certificado de cliente.</translation>
    </message>
    <message>
        <source>A client certificate can be used with encryption only.</source>
        <translation>Um certificado de cliente só pode ser usado com criptografia.</translation>
    </message>
    <message>
        <source>The password cannot be sent: it is too long or has characters that do not belong to a line.</source>
        <translation>A senha não pode ser enviada: ela é longa demais ou tem caracteres que não podem fazer parte de uma linha.</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>The name or address of the server. When it is empty, the part of the login after the @ is the server.</source>
        <translation>O nome ou o endereço do servidor. Se estiver vazio, a parte do nome de usuário depois do @ é o servidor.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Criptografia</translation>
    </message>
    <message>
        <source>Required (TLS)</source>
        <translation>Obrigatória (TLS)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>With encryption the server must also prove who it is. Without, everybody on the way can read along.</source>
        <translation>Com criptografia, o servidor também precisa provar quem é. Sem ela, qualquer um no caminho pode ler tudo.</translation>
    </message>
    <message>
        <source>Trusted certificate</source>
        <translation>Certificado confiável</translation>
    </message>
    <message>
        <source>The path of a file with a certificate (PEM) to trust besides those that this computer trusts already.</source>
        <translation>O caminho de um arquivo com um certificado (PEM) no qual confiar além daqueles em que este computador já confia.</translation>
    </message>
    <message>
        <source>Use of the password</source>
        <translation>Uso da senha</translation>
    </message>
    <message>
        <source>Not used</source>
        <translation>Não usada</translation>
    </message>
    <message>
        <source>Password of the server</source>
        <translation>Senha do servidor</translation>
    </message>
    <message>
        <source>Password of a registered nick (SASL)</source>
        <translation>Senha de um nick registrado (SASL)</translation>
    </message>
    <message>
        <source>What the account&apos;s password is for. Most networks need none, unless you have registered your nick there.</source>
        <translation>Para que serve a senha da conta. A maioria das redes não precisa de nenhuma, a menos que você tenha registrado seu nick nelas.</translation>
    </message>
    <message>
        <source>SASL user</source>
        <translation>Usuário SASL</translation>
    </message>
    <message>
        <source>The name under which the nick is registered. Empty: the nick itself.</source>
        <translation>O nome com o qual o nick está registrado. Vazio: o próprio nick.</translation>
    </message>
    <message>
        <source>Real name</source>
        <translation>Nome real</translation>
    </message>
    <message>
        <source>What others see as your name when they ask for it. Empty: the nick.</source>
        <translation>O que os outros veem como seu nome quando perguntam por ele. Vazio: o nick.</translation>
    </message>
    <message>
        <source>Alternative nicks</source>
        <translation>Nicks alternativos</translation>
    </message>
    <message>
        <source>Nicks to try when yours is in use, separated by commas.</source>
        <translation>Nicks a tentar quando o seu estiver em uso, separados por vírgulas.</translation>
    </message>
    <message>
        <source>Client certificate</source>
        <translation>Certificado de cliente</translation>
    </message>
    <message>
        <source>The path of a file with a certificate of your own (PEM), to log in with instead of the password (SASL EXTERNAL). Empty: none.</source>
        <translation>O caminho de um arquivo com um certificado próprio (PEM), com o qual iniciar a sessão em vez da senha (SASL EXTERNAL). Vazio: nenhum.</translation>
    </message>
    <message>
        <source>Key of the client certificate</source>
        <translation>Chave do certificado de cliente</translation>
    </message>
    <message>
        <source>The path of the file with the certificate&apos;s private key (PEM, without a password). Empty: it is in the certificate&apos;s file.</source>
        <translation>O caminho do arquivo com a chave privada do certificado (PEM, sem senha). Vazio: ela está no arquivo do certificado.</translation>
    </message>
    <message>
        <source>Server on this computer</source>
        <translation>Servidor neste computador</translation>
    </message>
    <message>
        <source>A nickname contains no blanks.</source>
        <translation>Um nick não contém espaços.</translation>
    </message>
    <message>
        <source>The nickname is missing.</source>
        <translation>Falta o nick.</translation>
    </message>
    <message>
        <source>A nickname starts with a letter.</source>
        <translation>Um nick começa com uma letra.</translation>
    </message>
    <message>
        <source>A nickname consists of unaccented letters, digits and the characters %1.</source>
        <translation>Um nick é formado por letras sem acento, algarismos e os caracteres %1.</translation>
    </message>
    <message>
        <source>The server after the &quot;@&quot; is missing.</source>
        <translation>Falta o servidor depois do “@”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address of a server.</source>
        <translation>“%1” não é um endereço de servidor.</translation>
    </message>
    <message>
        <source>Usually 6697 with encryption and 6667 without. When the server is empty, a port in the login, as in ann@irc.example.org:6667, is used instead.</source>
        <translation>Normalmente 6697 com criptografia e 6667 sem. Quando o servidor está vazio, uma porta no nome de usuário, como em ann@irc.example.org:6667, é usada no lugar.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutCatalog</name>
    <message>
        <source>&quot;%1&quot; is a %2, but must be a %3.</source>
        <translation>“%1” é um %2, mas deve ser um %3.</translation>
    </message>
    <message>
        <source>There is no %1 named &quot;%2&quot;.</source>
        <translation>Não há nenhum %1 chamado “%2”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no standard button %2.</source>
        <translation>“%1” não tem o botão padrão %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs two tabs: the account and its directory entry.</source>
        <translation>“%1” precisa de duas abas: a conta e sua entrada do diretório.</translation>
    </message>
    <message>
        <source>The layout file %1 cannot be used; the built-in layout takes its place.
%2</source>
        <translation>O arquivo de layout %1 não pode ser usado; o layout embutido toma seu lugar.
%2</translation>
    </message>
    <message>
        <source>The window is a %1, but must be a %2.</source>
        <translation>A janela é um %1, mas deve ser um %2.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutCheck</name>
    <message>
        <source>It declares a document type, which a layout cannot have.</source>
        <translation>Ele declara um tipo de documento, o que um layout não pode ter.</translation>
    </message>
    <message>
        <source>It is not a window layout of Qt Designer.</source>
        <translation>Ele não é um layout de janela do Qt Designer.</translation>
    </message>
    <message>
        <source>Its elements are nested too deeply.</source>
        <translation>Seus elementos estão aninhados profundamente demais.</translation>
    </message>
    <message>
        <source>It has too many widgets.</source>
        <translation>Ele tem elementos gráficos demais.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Linha %1: %2</translation>
    </message>
    <message>
        <source>It connects widgets with each other, which only the program does.</source>
        <translation>Ele conecta elementos gráficos entre si, o que só o programa faz.</translation>
    </message>
    <message>
        <source>It has an element &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Ele tem um elemento “%1”, que um layout não pode ter.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of an icon.</source>
        <translation>“%1” não é o nome de um ícone.</translation>
    </message>
    <message>
        <source>It has an attribute &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Ele tem um atributo “%1”, que um layout não pode ter.</translation>
    </message>
    <message>
        <source>It has an attribute that is too long.</source>
        <translation>Ele tem um atributo longo demais.</translation>
    </message>
    <message>
        <source>It has a row or column that is out of bounds: %1.</source>
        <translation>Ele tem uma linha ou coluna fora dos limites: %1.</translation>
    </message>
    <message>
        <source>It has a number that is out of bounds: %1 (%2).</source>
        <translation>Ele tem um número fora dos limites: %1 (%2).</translation>
    </message>
    <message>
        <source>It has a text that can be read in more than one way: &quot;%1&quot;.</source>
        <translation>Ele tem um texto que pode ser lido de mais de uma maneira: “%1”.</translation>
    </message>
    <message>
        <source>It has a text of the format &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Ele tem um texto no formato “%1”, que um layout não pode ter.</translation>
    </message>
    <message>
        <source>It sets &quot;%1&quot; to a text, which a layout cannot do.</source>
        <translation>Ele atribui um texto a “%1”, o que um layout não pode fazer.</translation>
    </message>
    <message>
        <source>Its style sheet contains &quot;%1&quot;, which a layout cannot have.</source>
        <translation>Sua folha de estilo contém “%1”, o que um layout não pode ter.</translation>
    </message>
    <message>
        <source>Style sheets and rich texts name pictures by their whole path, &quot;%1&quot; does not.</source>
        <translation>Folhas de estilo e textos formatados indicam imagens pelo caminho completo, “%1” não faz isso.</translation>
    </message>
    <message>
        <source>It has a rich text that is too large.</source>
        <translation>Ele tem um texto formatado grande demais.</translation>
    </message>
    <message>
        <source>There is no picture &quot;%1&quot;.</source>
        <translation>Não há nenhuma imagem “%1”.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; is not in the folder of the layout.</source>
        <translation>A imagem “%1” não está na pasta do layout.</translation>
    </message>
    <message>
        <source>It uses the unknown class %1.</source>
        <translation>Ele pede um elemento gráfico da classe desconhecida %1.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutFile</name>
    <message>
        <source>It uses the unknown class %1.</source>
        <translation>Ele pede um elemento gráfico da classe desconhecida %1.</translation>
    </message>
    <message>
        <source>It is not a window layout: %1</source>
        <translation>Ele não é um layout de janela: %1</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>Ele não é um arquivo comum.</translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>Ele não pode ser lido: %1</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Ele está vazio.</translation>
    </message>
    <message>
        <source>It is larger than %1 kB.</source>
        <translation>Ele é maior que %1 kB.</translation>
    </message>
</context>
<context>
    <name>KirvLeftOut</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>e mais %n</numerusform>
            <numerusform>e mais %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvLengthLimit</name>
    <message>
        <source>The text is too long here. At most %1 characters are kept.</source>
        <translation>O texto é longo demais aqui. São mantidos no máximo %1 caracteres.</translation>
    </message>
</context>
<context>
    <name>KirvLoginLine</name>
    <message>
        <source>A login cannot contain this.</source>
        <translation>Um nome de usuário não pode conter isto.</translation>
    </message>
</context>
<context>
    <name>KirvLoginStep</name>
    <message>
        <source>Name look-up</source>
        <translation>Resolução do nome</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexão</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Criptografia</translation>
    </message>
    <message>
        <source>Log-in</source>
        <translation>Autenticação</translation>
    </message>
</context>
<context>
    <name>KirvLoginTest</name>
    <message>
        <source>The plug-in gives no connection.</source>
        <translation>O plug-in não fornece nenhuma conexão.</translation>
    </message>
    <message>
        <source>The log-in works.</source>
        <translation>O início de sessão funciona.</translation>
    </message>
    <message>
        <source>The test was cancelled.</source>
        <translation>O teste foi cancelado.</translation>
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
        <translation>em andamento</translation>
    </message>
    <message>
        <source>done</source>
        <translation>sucesso</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>falha</translation>
    </message>
    <message>
        <source>Test of a log-in, %1</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Teste de um início de sessão, %1</translation>
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
        <translation>Início de sessão de %1</translation>
    </message>
</context>
<context>
    <name>KirvLoginTestView</name>
    <message>
        <source>Copy Report</source>
        <translation>Copiar relatório</translation>
    </message>
    <message>
        <source>Steps of the log-in</source>
        <translation>Etapas do início de sessão</translation>
    </message>
    <message>
        <source>Copies the steps and the versions of the program, without the password.</source>
        <translation>Copia as etapas e as versões do programa, sem a senha.</translation>
    </message>
    <message>
        <source>Test Log-In</source>
        <translation>Testar o início de sessão</translation>
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
        <translation>Cancelar teste</translation>
    </message>
    <message>
        <source>Test Again</source>
        <translation>Testar novamente</translation>
    </message>
    <message>
        <source>Logs in once with what is here, and shows each step. Nothing is stored.</source>
        <translation>Inicia a sessão uma vez com o que está aqui e mostra cada etapa. Nada é armazenado.</translation>
    </message>
</context>
<context>
    <name>KirvMainAccountSelector</name>
    <message>
        <source>%1 (its plug-in is not loaded)</source>
        <extracomment>%1 = name of the main account</extracomment>
        <translation>%1 (o plug-in dela não está carregado)</translation>
    </message>
</context>
<context>
    <name>KirvMessageBar</name>
    <message>
        <source>Messages</source>
        <translation>Mensagens</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informação</translation>
    </message>
    <message>
        <source>Close this message.</source>
        <translation>Fechar esta mensagem.</translation>
    </message>
    <message>
        <source>Close This Message</source>
        <translation>Fechar esta mensagem</translation>
    </message>
</context>
<context>
    <name>KirvMoveDialog</name>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
</context>
<context>
    <name>KirvMovingCommands</name>
    <message>
        <source>Passwords of the account &quot;%1&quot; are left out: the keyring is locked.</source>
        <extracomment>%1 = name of an account, as XMPP:anna@example.org</extracomment>
        <translation>Senhas da conta “%1” foram omitidas: o chaveiro está bloqueado.</translation>
    </message>
    <message>
        <source>A pass phrase is needed.</source>
        <translation>É necessária uma frase secreta.</translation>
    </message>
</context>
<context>
    <name>KirvMovingFile</name>
    <message>
        <source>%1 is not an ordinary file.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>%1 não é um arquivo comum.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read: %2.</source>
        <extracomment>%1 = path of a file, %2 = the system&apos;s reason</extracomment>
        <translation>O arquivo %1 não pode ser lido: %2.</translation>
    </message>
    <message>
        <source>%1 is a link to another file. Choose another name.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>%1 é um link para outro arquivo. Escolha outro nome.</translation>
    </message>
    <message>
        <source>The file %1 is larger than %L2 MB, so it is not read.</source>
        <extracomment>%1 = path of a file, %L2 = a number</extracomment>
        <translation>O arquivo %1 tem mais de %L2 MB, portanto não é lido.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <extracomment>%1 = path of a file, %2 = the system&apos;s reason</extracomment>
        <translation>Não é possível gravar o arquivo %1: %2.</translation>
    </message>
</context>
<context>
    <name>KirvNgircdServer</name>
    <message>
        <source>The files of the server could not be given to it.</source>
        <translation>Não foi possível transferir ao servidor a propriedade dos arquivos dele.</translation>
    </message>
</context>
<context>
    <name>KirvPageCommands</name>
    <message numerus="yes">
        <source>&amp;Enable %n Accounts</source>
        <translation>
            <numerusform>&amp;Ativar %n conta</numerusform>
            <numerusform>&amp;Ativar %n contas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Disable %n Accounts</source>
        <translation>
            <numerusform>&amp;Desativar %n conta</numerusform>
            <numerusform>&amp;Desativar %n contas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Re&amp;move %n Accounts…</source>
        <translation>
            <numerusform>&amp;Remover %n conta…</numerusform>
            <numerusform>&amp;Remover %n contas…</numerusform>
        </translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>&amp;Remover…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Editar…</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Re&amp;nomear</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>&amp;Desativar</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>&amp;Ativar</translation>
    </message>
    <message>
        <source>Make Main &amp;Account</source>
        <translation>Definir como conta &amp;principal</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>Re&amp;conectar</translation>
    </message>
    <message>
        <source>Enter &amp;Password…</source>
        <translation>Digitar a &amp;senha…</translation>
    </message>
    <message>
        <source>Pre&amp;sence</source>
        <translation>Sta&amp;tus</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Mover para cima</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Mover para baixo</translation>
    </message>
    <message>
        <source>Disable A&amp;ll…</source>
        <translation>Desativar t&amp;odas…</translation>
    </message>
    <message>
        <source>Enable Those &amp;Again</source>
        <translation>Reati&amp;var estas</translation>
    </message>
    <message>
        <source>&amp;Own Order</source>
        <translation>Orde&amp;m própria</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Des&amp;fazer</translation>
    </message>
    <message>
        <source>Show &amp;Certificate…</source>
        <translation>Exi&amp;bir certificado…</translation>
    </message>
    <message>
        <source>&amp;Test Log-In</source>
        <translation>&amp;Testar o início de sessão</translation>
    </message>
    <message>
        <source>L&amp;og</source>
        <translation>&amp;Log</translation>
    </message>
    <message numerus="yes">
        <source>E&amp;xport %n Accounts…</source>
        <translation>
            <numerusform>E&amp;xportar %n conta…</numerusform>
            <numerusform>E&amp;xportar %n contas…</numerusform>
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
            <numerusform>A frase secreta precisa de pelo menos %n caractere.</numerusform>
            <numerusform>A frase secreta precisa de pelo menos %n caracteres.</numerusform>
        </translation>
    </message>
    <message>
        <source>The pass phrase is too long.</source>
        <translation>A frase secreta é longa demais.</translation>
    </message>
</context>
<context>
    <name>KirvPassPhraseInput</name>
    <message>
        <source>The pass phrase cannot be read from file descriptor %1.</source>
        <translation>A frase secreta não pode ser lida do descritor de arquivo %1.</translation>
    </message>
    <message>
        <source>The pass phrase from file descriptor %1 is too long.</source>
        <translation>A frase secreta lida do descritor de arquivo %1 é longa demais.</translation>
    </message>
    <message>
        <source>There is no pass phrase to be read from file descriptor %1.</source>
        <translation>Não há nenhuma frase secreta para ler do descritor de arquivo %1.</translation>
    </message>
    <message>
        <source>The pass phrase cannot be read from the file &quot;%1&quot;.</source>
        <translation>A frase secreta não pode ser lida do arquivo “%1”.</translation>
    </message>
    <message>
        <source>The pass phrase in the file &quot;%1&quot; is too long.</source>
        <translation>A frase secreta no arquivo “%1” é longa demais.</translation>
    </message>
    <message>
        <source>There is no pass phrase in the file &quot;%1&quot;.</source>
        <translation>Não há nenhuma frase secreta no arquivo “%1”.</translation>
    </message>
    <message>
        <source>A pass phrase is needed, and there is no terminal to enter it on. Use --pass-phrase-file or --pass-phrase-fd.</source>
        <translation>É necessária uma frase secreta, e não há nenhum terminal em que digitá-la. Informe-a com --pass-phrase-file ou --pass-phrase-fd.</translation>
    </message>
    <message>
        <source>Pass phrase for the file: </source>
        <translation>Frase secreta do arquivo: </translation>
    </message>
    <message>
        <source>No pass phrase was entered.</source>
        <translation>Nenhuma frase secreta foi digitada.</translation>
    </message>
    <message>
        <source>Repeat the pass phrase: </source>
        <translation>A mesma novamente: </translation>
    </message>
    <message>
        <source>The two pass phrases are not the same.</source>
        <translation>A frase secreta não foi digitada igual nas duas vezes.</translation>
    </message>
</context>
<context>
    <name>KirvPasswordDialog</name>
    <message>
        <source>&amp;Remember the password</source>
        <translation>&amp;Lembrar a senha</translation>
    </message>
    <message>
        <source>Password Needed</source>
        <translation>Senha necessária</translation>
    </message>
    <message>
        <source>Enter the password of the account %1 (%2).</source>
        <extracomment>%1 = name of an account, %2 = its protocol</extracomment>
        <translation>Digite a senha da conta %1 (%2).</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>Keeps the password, so that it is not asked for again.</source>
        <translation>Guarda a senha, para que não seja solicitada novamente.</translation>
    </message>
    <message>
        <source>&amp;Log In</source>
        <translation>&amp;Entrar</translation>
    </message>
    <message>
        <source>The server did not accept the password that was used last.</source>
        <translation>O servidor não aceitou a última senha usada.</translation>
    </message>
    <message>
        <source>The account has a password; the one that you enter takes its place.</source>
        <translation>A conta tem uma senha; a que você digitar a substituirá.</translation>
    </message>
    <message>
        <source>No password was entered for this account yet.</source>
        <translation>Nenhuma senha foi digitada para esta conta ainda.</translation>
    </message>
    <message>
        <source>The password is not remembered, so it is needed when the account logs in.</source>
        <translation>A senha não é lembrada, portanto é necessária quando a conta inicia a sessão.</translation>
    </message>
</context>
<context>
    <name>KirvPidginFile</name>
    <message>
        <source>The account &quot;%1&quot; was left out: the protocol %2 is not supported.</source>
        <extracomment>%1 = login, %2 = name of a protocol</extracomment>
        <translation>A conta “%1” foi omitida: não há suporte para o protocolo %2.</translation>
    </message>
    <message>
        <source>An account was left out: it has no login.</source>
        <translation>Uma conta foi omitida: ela não tem nome de usuário.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; was left out: it is not in the file.</source>
        <extracomment>%1 = login</extracomment>
        <translation>A imagem da conta “%1” foi omitida: ela não está no arquivo.</translation>
    </message>
    <message>
        <source>The resource of the account &quot;%1&quot; was left out: it has the name of the computer in it, or characters that mean something else here.</source>
        <extracomment>%1 = login</extracomment>
        <translation>O recurso da conta “%1” foi omitido: ele contém o nome do computador ou caracteres que têm outro significado aqui.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; now requires encryption: what the file says of it is not known.</source>
        <translation>A conta “%1” agora exige criptografia: o que o arquivo indica a respeito não é conhecido.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; does not send its password without encryption any more.</source>
        <translation>A conta “%1” não envia mais a senha sem criptografia.</translation>
    </message>
    <message>
        <source>The server of the account &quot;%1&quot; was left out: it is not the name or address of a server.</source>
        <translation>O servidor da conta “%1” foi omitido: ele não é um nome nem um endereço de servidor.</translation>
    </message>
    <message>
        <source>The port of the account &quot;%1&quot; was left out: it is not a number from 1 to 65535.</source>
        <translation>A porta da conta “%1” foi omitida: ela não é um número de 1 a 65535.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; has no server. Enter one before it is used.</source>
        <translation>A conta “%1” não tem servidor. Digite um antes de usá-la.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; uses UTF-8 instead of the encoding %2, which is not supported.</source>
        <extracomment>%1 = login, %2 = name of a character encoding</extracomment>
        <translation>A conta “%1” usa UTF-8 em vez da codificação %2, para a qual não há suporte.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; now requires encryption: otherwise its password would be sent without it.</source>
        <translation>A conta “%1” agora exige criptografia: caso contrário, a senha dela seria enviada sem criptografia.</translation>
    </message>
    <message>
        <source>Its kind is not supported.</source>
        <translation>Não há suporte para o tipo dele.</translation>
    </message>
    <message>
        <source>The proxy of the account &quot;%1&quot; was left out. %2 The account is disabled, so that it does not connect without the proxy.</source>
        <extracomment>%1 = login, %2 = a sentence</extracomment>
        <translation>O proxy da conta “%1” foi omitido. %2 A conta está desativada, para que não se conecte sem o proxy.</translation>
    </message>
    <message>
        <source>Settings of the account &quot;%1&quot; were left out, as there are no such settings here: %2.</source>
        <extracomment>%1 = login, %2 = names, separated by commas</extracomment>
        <translation>Configurações da conta “%1” foram omitidas, pois não há configurações equivalentes aqui: %2.</translation>
    </message>
    <message>
        <source>The file is no text.</source>
        <translation>O arquivo não é de texto.</translation>
    </message>
    <message>
        <source>A text in the file is too long.</source>
        <translation>Um texto do arquivo é longo demais.</translation>
    </message>
    <message>
        <source>The file is damaged or no XML (line %1: %2).</source>
        <extracomment>%1 = number of a line, %2 = what is wrong there</extracomment>
        <translation>O arquivo está danificado ou não é XML (linha %1: %2).</translation>
    </message>
    <message>
        <source>The file is not encoded as UTF-8.</source>
        <translation>O arquivo não está codificado em UTF-8.</translation>
    </message>
    <message>
        <source>The file declares a document type or uses entities, which no file of Pidgin does.</source>
        <translation>O arquivo declara um tipo de documento ou usa entidades, o que nenhum arquivo do Pidgin faz.</translation>
    </message>
    <message>
        <source>The elements of the file are nested too deeply, or have too many attributes.</source>
        <translation>Os elementos do arquivo estão aninhados em níveis demais ou têm atributos demais.</translation>
    </message>
    <message>
        <source>There are elements in the file where a text is expected (line %1).</source>
        <translation>Há elementos no arquivo onde se espera um texto (linha %1).</translation>
    </message>
    <message>
        <source>Something follows the accounts in the file.</source>
        <translation>Há algo mais depois das contas no arquivo.</translation>
    </message>
    <message>
        <source>An account in the file has too many settings.</source>
        <translation>Uma conta do arquivo tem configurações demais.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>O arquivo é grande demais.</translation>
    </message>
    <message>
        <source>The file does not hold accounts of Pidgin.</source>
        <translation>O arquivo não contém contas do Pidgin.</translation>
    </message>
    <message>
        <source>The file is of another version of Pidgin, which is not known.</source>
        <translation>O arquivo é de outra versão do Pidgin, que não é conhecida.</translation>
    </message>
    <message numerus="yes">
        <source>The file has more than %n accounts.</source>
        <translation>
            <numerusform>O arquivo tem mais de %n conta.</numerusform>
            <numerusform>O arquivo tem mais de %n contas.</numerusform>
        </translation>
    </message>
    <message>
        <source>If Pidgin uses a proxy for all accounts, it is not in this file. Set it for the accounts before they log in.</source>
        <translation>Se o Pidgin usa um proxy para todas as contas, ele não está neste arquivo. Defina-o nas contas antes que elas iniciem a sessão.</translation>
    </message>
</context>
<context>
    <name>KirvPluginCall</name>
    <message>
        <source>an exception of an unknown kind</source>
        <translation>uma exceção de tipo desconhecido</translation>
    </message>
    <message>
        <source>The plug-in failed: %1</source>
        <translation>O plug-in falhou: %1</translation>
    </message>
</context>
<context>
    <name>KirvPluginFile</name>
    <message>
        <source>The file is not a plug-in library.</source>
        <translation>O arquivo não é uma biblioteca de plug-in.</translation>
    </message>
    <message>
        <source>The plug-in is not one for protocols: its interface is &quot;%1&quot;.</source>
        <translation>O plug-in não é de protocolos: sua interface é “%1”.</translation>
    </message>
    <message>
        <source>The plug-in was built for version %1 of the plug-in interface; this program has version %2.</source>
        <translation>O plug-in foi compilado para a versão %1 da interface de plug-ins; este programa tem a versão %2.</translation>
    </message>
    <message>
        <source>The plug-in did not create its protocol and gave no reason.</source>
        <translation>O plug-in não criou seu protocolo e não informou o motivo.</translation>
    </message>
    <message>
        <source>The library cannot be loaded: %1</source>
        <translation>A biblioteca não pode ser carregada: %1</translation>
    </message>
    <message>
        <source>The plug-in does not have the interface that it states.</source>
        <translation>O plug-in não tem a interface que declara.</translation>
    </message>
    <message>
        <source>The protocol has no name.</source>
        <translation>O protocolo não tem nome.</translation>
    </message>
    <message>
        <source>The name of the protocol has more than %1 characters.</source>
        <translation>O nome do protocolo tem mais de %1 caracteres.</translation>
    </message>
    <message>
        <source>The protocol &quot;%1&quot; offers no presence.</source>
        <translation>O protocolo “%1” não oferece nenhum status.</translation>
    </message>
</context>
<context>
    <name>KirvPluginLoader</name>
    <message>
        <source>A protocol with the name &quot;%1&quot; is loaded already.</source>
        <translation>Um protocolo com o nome “%1” já está carregado.</translation>
    </message>
</context>
<context>
    <name>KirvPluginQueue</name>
    <message>
        <source>The plug-in &quot;%1&quot; was left out, because the program ended when it was loaded the last time. It can be loaded on the page of the plug-ins.</source>
        <extracomment>%1 = name of a plug-in</extracomment>
        <translation>O plug-in “%1” foi ignorado, porque o programa terminou na última vez em que ele foi carregado. Ele pode ser carregado na página dos plug-ins.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it crashed when it was tested.</source>
        <translation>O plug-in foi ignorado, porque fechou inesperadamente ao ser testado.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it ended the process in which it was tested.</source>
        <translation>O plug-in foi ignorado, porque encerrou o processo em que foi testado.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it was not ready within %1 s when it was tested.</source>
        <translation>O plug-in foi ignorado, porque não ficou pronto em %1 s ao ser testado.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because the program ended when it was loaded the last time.</source>
        <translation>O plug-in foi ignorado, porque o programa terminou na última vez em que ele foi carregado.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>O arquivo não pode ser lido.</translation>
    </message>
</context>
<context>
    <name>KirvPluginTrust</name>
    <message>
        <source>The file cannot be examined.</source>
        <translation>O arquivo não pode ser examinado.</translation>
    </message>
    <message>
        <source>The plug-in is not trusted: %1 belongs to another user.</source>
        <extracomment>%1 = path of a file or folder</extracomment>
        <translation>O plug-in não é confiável: %1 pertence a outro usuário.</translation>
    </message>
    <message>
        <source>The plug-in is not trusted: others than you may write to %1.</source>
        <extracomment>%1 = path of a file or folder</extracomment>
        <translation>O plug-in não é confiável: outros além de você podem gravar em %1.</translation>
    </message>
</context>
<context>
    <name>KirvPluginsPage</name>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Carregar</translation>
    </message>
    <message>
        <source>&amp;Unload</source>
        <translation>&amp;Descarregar</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Plug-in</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>About the plug-in</source>
        <translation>Sobre o plug-in</translation>
    </message>
    <message>
        <source>Loads the plug-in; its accounts come back as they were.</source>
        <translation>Carrega o plug-in; suas contas voltam como estavam.</translation>
    </message>
    <message>
        <source>Logs the accounts of the plug-in out. They stay in your profile.</source>
        <translation>Encerra a sessão das contas do plug-in. Elas permanecem no seu perfil.</translation>
    </message>
    <message>
        <source>Plug-ins are looked for in the folder %1.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation>Os plug-ins são procurados na pasta %1.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Aguardando</translation>
    </message>
    <message>
        <source>Being tested</source>
        <translation>Sendo testado</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Carregando</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>Carregado</translation>
    </message>
    <message>
        <source>Not loaded</source>
        <translation>Não carregado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>There are no plug-ins.</source>
        <translation>Não há plug-ins.</translation>
    </message>
    <message>
        <source>&amp;Report…</source>
        <translation>&amp;Relatório…</translation>
    </message>
    <message>
        <source>Puts versions, plug-ins and the states of the accounts together for somebody who helps.</source>
        <translation>Reúne as versões, os plug-ins e o estado das contas para quem ajudar você.</translation>
    </message>
    <message>
        <source>When the plug-in %1 is unloaded, its account %2 goes off line.</source>
        <extracomment>%1 = name of a plug-in, %2 = name of an account</extracomment>
        <translation>Quando o plug-in %1 é descarregado, a conta %2 dele fica desconectada.</translation>
    </message>
    <message numerus="yes">
        <source>When the plug-in %1 is unloaded, its %n connected accounts go off line.</source>
        <extracomment>%1 = name of a plug-in</extracomment>
        <translation>
            <numerusform>Quando o plug-in %1 é descarregado, a %n conta conectada dele fica desconectada.</numerusform>
            <numerusform>Quando o plug-in %1 é descarregado, as %n contas conectadas dele ficam desconectadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Unload Plug-in</source>
        <translation>Descarregar plug-in</translation>
    </message>
    <message>
        <source>The accounts stay in your profile and come back when the plug-in is loaded again.</source>
        <translation>As contas permanecem no seu perfil e voltam quando o plug-in é carregado novamente.</translation>
    </message>
</context>
<context>
    <name>KirvProfileCheck</name>
    <message>
        <source>The profile folder &quot;%1&quot; could not be made.</source>
        <translation>Não foi possível criar a pasta do perfil “%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link. The program follows no link inside a profile: replace it by what it leads to.</source>
        <translation>“%1” é um link. O programa não segue nenhum link dentro de um perfil: substitua-o por aquilo para que ele aponta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file. Move it away to use the profile.</source>
        <translation>“%1” não é um arquivo comum. Mova-o para outro lugar para usar o perfil.</translation>
    </message>
    <message>
        <source>Its database is missing.</source>
        <translation>Falta o banco de dados dele.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not a profile: it holds other files. Nothing in it was changed: choose an empty folder.</source>
        <translation>A pasta “%1” não é um perfil: ela contém outros arquivos. Nada nela foi alterado: escolha uma pasta vazia.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; was written by a newer version of the program. Use that version to open it; nothing in it was changed.</source>
        <translation>O perfil em “%1” foi gravado por uma versão mais recente do programa. Use essa versão para abri-lo; nada nele foi alterado.</translation>
    </message>
    <message>
        <source>The end of its database is missing.</source>
        <translation>Falta o final do banco de dados dele.</translation>
    </message>
    <message>
        <source>Tables or columns of its database are missing.</source>
        <translation>Faltam tabelas ou colunas do banco de dados dele.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is in use by another running instance of the program. Close that one first.</source>
        <translation>O perfil em “%1” está em uso por outra instância do programa em execução. Feche-a primeiro.</translation>
    </message>
    <message>
        <source>The profile folder &quot;%1&quot; cannot be written. Check its owner and permissions, and whether the disk is full.</source>
        <translation>Não é possível gravar na pasta do perfil “%1”. Verifique o proprietário e as permissões dela, e se o disco está cheio.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is damaged. %2 Nothing in it was changed.</source>
        <extracomment>%1 = path of a folder, %2 = a sentence about what is wrong with it</extracomment>
        <translation>O perfil em “%1” está danificado. %2 Nada nele foi alterado.</translation>
    </message>
    <message>
        <source>The file of its database does not hold one any more.</source>
        <translation>O arquivo do banco de dados dele não contém mais um banco de dados.</translation>
    </message>
    <message>
        <source>Parts of its database cannot be read, or contradict each other.</source>
        <translation>Partes do banco de dados dele não podem ser lidas ou se contradizem.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; belongs to another program. Nothing in it was changed.</source>
        <translation>O arquivo “%1” pertence a outro programa. Nada nele foi alterado.</translation>
    </message>
</context>
<context>
    <name>KirvProfileCommand</name>
    <message>
        <source>There is no profile in &quot;%1&quot; yet.</source>
        <translation>Ainda não há nenhum perfil em “%1”.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is not damaged.</source>
        <translation>O perfil em “%1” não está danificado.</translation>
    </message>
    <message>
        <source>The profile is not damaged, so nothing was restored. Name a copy to go back to it.</source>
        <translation>O perfil não está danificado, portanto nada foi restaurado. Indique uma cópia para voltar a ela.</translation>
    </message>
    <message>
        <source>There is no copy of the profile that could be restored.</source>
        <translation>Não há nenhuma cópia do perfil que possa ser restaurada.</translation>
    </message>
    <message>
        <source>There is no copy &quot;%1&quot; that could be restored.</source>
        <translation>Não há nenhuma cópia “%1” que possa ser restaurada.</translation>
    </message>
    <message>
        <source>The profile is not damaged, so there is nothing to recover.</source>
        <translation>O perfil não está danificado, portanto não há nada a recuperar.</translation>
    </message>
    <message>
        <source>The option --restore restores the newest copy or the one that is named, and --recover reads what is still readable of the damaged database. To start fresh, move the folder away.</source>
        <translation>A opção --restore restaura a cópia mais recente ou a que for indicada, e --recover lê o que ainda for legível do banco de dados danificado. Para começar do zero, mova a pasta para outro lugar.</translation>
    </message>
    <message>
        <source>Copies of the profile, without passwords:</source>
        <translation>Cópias do perfil, sem senhas:</translation>
    </message>
    <message>
        <source>  %1  %2  Accounts: %3</source>
        <extracomment>%1 = name of a file, %2 = date and time, %3 = number of accounts</extracomment>
        <translation>  %1  %2  Contas: %3</translation>
    </message>
</context>
<context>
    <name>KirvProfileCopies</name>
    <message>
        <source>No copy of the profile in &quot;%1&quot; could be kept. Check the permissions of the folder &quot;copies&quot; in it, and whether the disk is full.</source>
        <translation>Não foi possível guardar nenhuma cópia do perfil em “%1”. Verifique as permissões da pasta “copies” dele, e se o disco está cheio.</translation>
    </message>
</context>
<context>
    <name>KirvProfileOpening</name>
    <message>
        <source>The profile folder &quot;%1&quot; could not be made.</source>
        <translation>Não foi possível criar a pasta do perfil “%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be made. Check whether the disk is full.</source>
        <translation>Não foi possível criar “%1”. Verifique se o disco está cheio.</translation>
    </message>
</context>
<context>
    <name>KirvProfileRescue</name>
    <message>
        <source>There is no profile in &quot;%1&quot;.</source>
        <translation>Não há nenhum perfil em “%1”.</translation>
    </message>
    <message>
        <source>The copy &quot;%1&quot; is damaged, too.</source>
        <translation>A cópia “%1” também está danificada.</translation>
    </message>
    <message>
        <source>Nothing in the damaged profile in &quot;%1&quot; can be read any more.</source>
        <translation>Nada mais pode ser lido do perfil danificado em “%1”.</translation>
    </message>
</context>
<context>
    <name>KirvProfileSaver</name>
    <message>
        <source>&amp;Save to Another Folder…</source>
        <translation>&amp;Salvar em outra pasta…</translation>
    </message>
    <message>
        <source>Save to an Empty Folder</source>
        <translation>Salvar em uma pasta vazia</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Sa&amp;lvar</translation>
    </message>
    <message>
        <source>Everything that was stored is in &quot;%1&quot; again. Continue to go on with it; the accounts log in again then.</source>
        <translation>Tudo o que estava salvo está novamente em “%1”. Escolha “Continuar” para prosseguir com este perfil; as contas então iniciarão a sessão novamente.</translation>
    </message>
    <message>
        <source>Everything that was stored is in &quot;%1&quot; now. Continue to go on with it; the accounts log in again then. From the next start on, start the program with the option --profile &quot;%1&quot;.</source>
        <translation>Tudo o que estava salvo agora está em “%1”. Escolha “Continuar” para prosseguir com este perfil; as contas então iniciarão a sessão novamente. Da próxima vez em diante, inicie o programa com a opção --profile &quot;%1&quot;.</translation>
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
        <translation>%1 (não verificado; %2, %3)</translation>
    </message>
    <message>
        <source>Providers</source>
        <translation>Provedores</translation>
    </message>
    <message>
        <source>The Down key shows known providers.</source>
        <translation>A tecla Seta para baixo mostra os provedores conhecidos.</translation>
    </message>
    <message>
        <source>The list of providers %1 cannot be read.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>A lista de provedores %1 não pode ser lida.</translation>
    </message>
    <message>
        <source>The list of providers %1 is not used: it is too large.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>A lista de provedores %1 não é usada: ela é grande demais.</translation>
    </message>
    <message>
        <source>About the list of providers %1: %2</source>
        <extracomment>%1 = path of a file, %2 = a sentence</extracomment>
        <translation>Sobre a lista de provedores %1: %2</translation>
    </message>
    <message>
        <source>It is not used, because it has not the format of such a list.</source>
        <translation>Ela não é usada, porque não tem o formato de uma lista desse tipo.</translation>
    </message>
    <message>
        <source>One entry is left out, because it is not complete.</source>
        <translation>Uma entrada foi omitida, porque está incompleta.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries are left out, because they are not complete.</source>
        <translation>
            <numerusform>%n entrada foi omitida, porque está incompleta.</numerusform>
            <numerusform>%n entradas foram omitidas, porque estão incompletas.</numerusform>
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
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>That of the system</source>
        <translation>O do sistema</translation>
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
        <translation>Por onde passam todas as conexões da conta. Com um proxy, a conta nunca é conectada sem ele, e é o proxy que resolve o nome do servidor.</translation>
    </message>
    <message>
        <source>Proxy host</source>
        <translation>Servidor proxy</translation>
    </message>
    <message>
        <source>The name or address of a SOCKS5 or HTTP proxy.</source>
        <translation>O nome ou o endereço de um proxy SOCKS5 ou HTTP.</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Porta do proxy</translation>
    </message>
    <message>
        <source>Ordinarily 1080 with SOCKS5, and 3128 or 8080 with HTTP.</source>
        <translation>Normalmente 1080 com SOCKS5, e 3128 ou 8080 com HTTP.</translation>
    </message>
    <message>
        <source>Proxy user</source>
        <translation>Usuário do proxy</translation>
    </message>
    <message>
        <source>Empty: the proxy needs no log-in.</source>
        <translation>Vazio: o proxy não exige autenticação.</translation>
    </message>
    <message>
        <source>Proxy password</source>
        <translation>Senha do proxy</translation>
    </message>
    <message>
        <source>The proxy receives it without encryption. Do not use the password of the account.</source>
        <translation>O proxy a recebe sem criptografia. Não use a senha da conta.</translation>
    </message>
    <message>
        <source>The kind of the proxy is not known.</source>
        <translation>O tipo do proxy não é conhecido.</translation>
    </message>
    <message>
        <source>The proxy has no host.</source>
        <translation>O servidor proxy não foi informado.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a proxy.</source>
        <translation>“%1” não é o nome de um proxy.</translation>
    </message>
    <message>
        <source>The port of the proxy must be a number from 1 to 65535.</source>
        <translation>A porta do proxy deve ser um número de 1 a 65535.</translation>
    </message>
    <message>
        <source>The user or the password of the proxy cannot be sent: it is too long or has characters that do not belong to a line.</source>
        <translation>O usuário ou a senha do proxy não pode ser enviado: é longo demais ou tem caracteres que não podem fazer parte de uma linha.</translation>
    </message>
    <message>
        <source>The user of an HTTP proxy cannot have a colon.</source>
        <translation>O usuário de um proxy HTTP não pode conter dois-pontos.</translation>
    </message>
    <message>
        <source>There is a password of the proxy, but no user.</source>
        <translation>Há uma senha do proxy, mas nenhum usuário.</translation>
    </message>
    <message>
        <source>it does not find the server, or does not allow a connection to it</source>
        <translation>ele não encontra o servidor, ou não permite uma conexão com ele</translation>
    </message>
</context>
<context>
    <name>KirvRegistrationChooser</name>
    <message>
        <source>Register Account</source>
        <translation>Registrar conta</translation>
    </message>
    <message>
        <source>For which &amp;protocol do you want to register a new account?</source>
        <translation>Para qual &amp;protocolo você deseja registrar uma nova conta?</translation>
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
        <translation>Nenhuma biblioteca de criptografia</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <extracomment>%1 = &quot;Debian GNU/Linux 12&quot;, %2 = &quot;linux 6.1&quot;, %3 = a processor</extracomment>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>%1: no versions stated</source>
        <extracomment>%1 = name of a protocol, %2 = &quot;QXmpp 1.4.0&quot;, or several such</extracomment>
        <translation>%1: nenhuma versão informada</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>(name)</source>
        <translation>(nome)</translation>
    </message>
    <message>
        <source>%1: %2, file %3</source>
        <extracomment>%1 = name of a plug-in, %2 = its state, %3 = name of a file</extracomment>
        <translation>%1: %2, arquivo %3</translation>
    </message>
    <message>
        <source>Account %1, %2</source>
        <extracomment>%1 = a number, %2 = name of a protocol</extracomment>
        <translation>Conta %1, %2</translation>
    </message>
    <message>
        <source>Login: %1</source>
        <extracomment>%1 = a login</extracomment>
        <translation>Nome de usuário: %1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <extracomment>%1 = &quot;Connected&quot; or another state</extracomment>
        <translation>Estado: %1</translation>
    </message>
    <message>
        <source>Report of %1 (times in UTC)</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Relatório de %1 (horários em UTC)</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Plug-ins</translation>
    </message>
    <message numerus="yes">
        <source>%n more accounts are left out.</source>
        <translation>
            <numerusform>Mais %n conta foi omitida.</numerusform>
            <numerusform>Mais %n contas foram omitidas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvReportWindow</name>
    <message>
        <source>&amp;Include logins and other names</source>
        <translation>&amp;Incluir nomes de usuário e outros nomes</translation>
    </message>
    <message>
        <source>Report for Somebody Who Helps</source>
        <translation>Relatório para quem ajudar você</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Relatório</translation>
    </message>
    <message>
        <source>Passwords are left out. Read the report before you give it to anybody.</source>
        <translation>As senhas são omitidas. Leia o relatório antes de entregá-lo a alguém.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Salvar…</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Salvar relatório</translation>
    </message>
    <message>
        <source>report</source>
        <translation>relatório</translation>
    </message>
    <message>
        <source>The report was saved to %1.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>O relatório foi salvo em %1.</translation>
    </message>
    <message>
        <source>The report could not be saved to %1: %2.</source>
        <translation>Não foi possível salvar o relatório em %1: %2.</translation>
    </message>
</context>
<context>
    <name>KirvRescueWindow</name>
    <message>
        <source>Damaged Profile</source>
        <translation>Perfil danificado</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Choose what to do. The damaged database is kept in any case, under a name with the date.</source>
        <translation>Escolha o que fazer. O banco de dados danificado é guardado em qualquer caso, com um nome que inclui a data.</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>There is no copy of the profile that could be restored.</source>
        <translation>Não há nenhuma cópia do perfil que possa ser restaurada.</translation>
    </message>
    <message>
        <source>Co&amp;pies of the profile:</source>
        <translation>Có&amp;pias do perfil:</translation>
    </message>
    <message>
        <source>Copies of the profile</source>
        <translation>Cópias do perfil</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Contas</translation>
    </message>
    <message>
        <source>&amp;Restore the Selected Copy</source>
        <translation>&amp;Restaurar a cópia selecionada</translation>
    </message>
    <message>
        <source>Accounts and settings are then as they were at that time. Passwords and other secret settings are in no copy and have to be entered again.</source>
        <translation>As contas e configurações ficam como estavam naquele momento. Senhas e outras configurações secretas não estão em nenhuma cópia e precisam ser digitadas novamente.</translation>
    </message>
    <message>
        <source>Recover &amp;What Is Readable</source>
        <translation>Recuperar o que for &amp;legível</translation>
    </message>
    <message>
        <source>The damaged database is read row by row, with the passwords, and what was found is shown.</source>
        <translation>O banco de dados danificado é lido linha por linha, com as senhas, e o que foi encontrado é mostrado.</translation>
    </message>
    <message>
        <source>Start &amp;Fresh</source>
        <translation>Começar do &amp;zero</translation>
    </message>
    <message>
        <source>The profile then has no accounts.</source>
        <translation>O perfil fica então sem contas.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>The profile can be used again.</source>
        <translation>O perfil pode ser usado novamente.</translation>
    </message>
</context>
<context>
    <name>KirvRevealButton</name>
    <message>
        <source>Hide the text</source>
        <translation>Ocultar o texto</translation>
    </message>
    <message>
        <source>Show the text</source>
        <translation>Mostrar o texto</translation>
    </message>
</context>
<context>
    <name>KirvSecretTexts</name>
    <message>
        <source>in a file only you can read</source>
        <translation>em um arquivo que só você pode ler</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>where a password is kept; %1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>em %1</translation>
    </message>
    <message>
        <source>in %1 (locked: you will be asked to unlock it)</source>
        <extracomment>where a password is kept; %1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>em %1 (bloqueado: será solicitado que você o desbloqueie)</translation>
    </message>
    <message>
        <source>Your keyring does not respond: it would be kept there when it responds again</source>
        <translation>O seu chaveiro não responde: a senha seria guardada nele quando voltar a responder</translation>
    </message>
    <message>
        <source>There is no keyring here: it would be kept in a file only you can read</source>
        <translation>Não há chaveiro aqui: a senha seria guardada em um arquivo que só você pode ler</translation>
    </message>
    <message>
        <source>Reading the password…</source>
        <translation>Lendo a senha…</translation>
    </message>
    <message>
        <source>The keyring is locked</source>
        <translation>O chaveiro está bloqueado</translation>
    </message>
    <message>
        <source>The keyring does not respond</source>
        <translation>O chaveiro não responde</translation>
    </message>
    <message>
        <source>The keyring is not there</source>
        <translation>O chaveiro não está disponível</translation>
    </message>
    <message>
        <source>The keyring cannot be read</source>
        <translation>O chaveiro não pode ser lido</translation>
    </message>
    <message>
        <source>Or enter the password: it is used until the program ends.</source>
        <translation>Ou digite a senha: ela será usada até o programa terminar.</translation>
    </message>
    <message>
        <source>The password is being read from %1.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;, here and below</extracomment>
        <translation>A senha está sendo lida de %1.</translation>
    </message>
    <message>
        <source>The password is in %1, which is locked. Unlock it.</source>
        <translation>A senha está em %1, que está bloqueado. Desbloqueie-o.</translation>
    </message>
    <message>
        <source>The password is in %1, which was not unlocked. Reconnect asks again.</source>
        <translation>A senha está em %1, que não foi desbloqueado. “Reconectar” solicita o desbloqueio novamente.</translation>
    </message>
    <message>
        <source>The password is in %1, which does not respond. The account connects when it does.</source>
        <translation>A senha está em %1, que não responde. A conta se conectará quando ele responder.</translation>
    </message>
    <message>
        <source>The password is in the keyring, which is not there. The account connects when it is started.</source>
        <translation>A senha está no chaveiro, que não está disponível. A conta se conectará quando ele for iniciado.</translation>
    </message>
    <message>
        <source>The password is in %1, which cannot be read. Reconnect tries again.</source>
        <translation>A senha está em %1, que não pode ser lido. “Reconectar” tenta novamente.</translation>
    </message>
    <message>
        <source>in your keyring</source>
        <extracomment>where a password is kept</extracomment>
        <translation>no seu chaveiro</translation>
    </message>
    <message>
        <source>in your keyring (locked: you will be asked to unlock it)</source>
        <extracomment>where a password is kept</extracomment>
        <translation>no seu chaveiro (bloqueado: será solicitado que você o desbloqueie)</translation>
    </message>
    <message>
        <source>Passwords that are remembered are kept in a file only you can read.</source>
        <translation>As senhas lembradas são guardadas em um arquivo que só você pode ler.</translation>
    </message>
    <message>
        <source>The program is finding out whether there is a keyring.</source>
        <translation>O programa está verificando se há um chaveiro.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It is unlocked.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;, here and below</extracomment>
        <translation>%1 guarda as senhas. Este chaveiro está desbloqueado.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It is unlocked.</source>
        <translation>O seu chaveiro guarda as senhas. Ele está desbloqueado.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It is locked.</source>
        <translation>%1 guarda as senhas. Este chaveiro está bloqueado.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It is locked.</source>
        <translation>O seu chaveiro guarda as senhas. Ele está bloqueado.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It does not respond.</source>
        <translation>%1 guarda as senhas. Este chaveiro não responde.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It does not respond.</source>
        <translation>O seu chaveiro guarda as senhas. Ele não responde.</translation>
    </message>
    <message>
        <source>There is no keyring.</source>
        <translation>Não há chaveiro.</translation>
    </message>
    <message>
        <source>The password is being read from your keyring.</source>
        <translation>A senha está sendo lida do seu chaveiro.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which is locked. Unlock it.</source>
        <translation>A senha está no seu chaveiro, que está bloqueado. Desbloqueie-o.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which was not unlocked. Reconnect asks again.</source>
        <translation>A senha está no seu chaveiro, que não foi desbloqueado. “Reconectar” solicita o desbloqueio novamente.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which does not respond. The account connects when it does.</source>
        <translation>A senha está no seu chaveiro, que não responde. A conta se conectará quando ele responder.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which cannot be read. Reconnect tries again.</source>
        <translation>A senha está no seu chaveiro, que não pode ser lido. “Reconectar” tenta novamente.</translation>
    </message>
    <message>
        <source>The password is being read. It stays as it is unless you enter another one.</source>
        <translation>A senha está sendo lida. Ela permanece como está, a menos que você digite outra.</translation>
    </message>
    <message>
        <source>The keyring is locked. The password stays as it is unless you enter another one.</source>
        <translation>O chaveiro está bloqueado. A senha permanece como está, a menos que você digite outra.</translation>
    </message>
    <message>
        <source>The keyring does not respond. The password stays as it is unless you enter another one.</source>
        <translation>O chaveiro não responde. A senha permanece como está, a menos que você digite outra.</translation>
    </message>
    <message>
        <source>The keyring is not there. The password stays as it is unless you enter another one.</source>
        <translation>O chaveiro não está disponível. A senha permanece como está, a menos que você digite outra.</translation>
    </message>
    <message>
        <source>The keyring cannot be read. The password stays as it is unless you enter another one.</source>
        <translation>O chaveiro não pode ser lido. A senha permanece como está, a menos que você digite outra.</translation>
    </message>
    <message>
        <source>The password is not in the keyring any more.</source>
        <translation>A senha não está mais no chaveiro.</translation>
    </message>
    <message>
        <source>Or edit the account and enter its passwords again.</source>
        <translation>Ou edite a conta e digite de novo as senhas dela.</translation>
    </message>
    <message>
        <source>Or edit the account and enter it again.</source>
        <translation>Ou edite a conta e digite-a de novo.</translation>
    </message>
    <message>
        <source>Some passwords are still in a file only you can read. They are moved when the keyring is unlocked.</source>
        <translation>Algumas senhas ainda estão em um arquivo que só você pode ler. Elas são movidas quando o chaveiro é desbloqueado.</translation>
    </message>
    <message>
        <source>There is no keyring here: it is kept in a file only you can read.</source>
        <extracomment>it = a password that was just stored</extracomment>
        <translation>Não há chaveiro aqui: a senha é guardada em um arquivo que só você pode ler.</translation>
    </message>
</context>
<context>
    <name>KirvServerAssistant</name>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Waiting for the server</source>
        <translation>Aguardando o servidor</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Instruções</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Con&amp;figuration:</source>
        <translation>Mo&amp;delo:</translation>
    </message>
    <message>
        <source>&amp;Remember the password</source>
        <translation>&amp;Lembrar a senha</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Voltar</translation>
    </message>
    <message>
        <source>Reading the picture for &quot;%1&quot;…</source>
        <extracomment>%1 = a caption</extracomment>
        <translation>Lendo a imagem para “%1”…</translation>
    </message>
    <message>
        <source>There is a picture for &quot;%1&quot;, which cannot be shown: %2</source>
        <extracomment>%1 = a caption, %2 = an address</extracomment>
        <translation>Há uma imagem para “%1” que não pode ser mostrada: %2</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>&amp;Fechar</translation>
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
        <translation>Ele não é para %1.</translation>
    </message>
    <message>
        <source>It is for %1, and not for %2.</source>
        <extracomment>%1 and %2 = names of servers</extracomment>
        <translation>Ele é para %1, e não para %2.</translation>
    </message>
    <message>
        <source>It is self-signed: no authority has issued it.</source>
        <translation>Ele é autoassinado: nenhuma autoridade o emitiu.</translation>
    </message>
    <message>
        <source>It is not from an authority that this computer trusts.</source>
        <translation>Ele não é de uma autoridade na qual este computador confia.</translation>
    </message>
    <message>
        <source>It has expired: it was valid until %1.</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Ele expirou: era válido até %1.</translation>
    </message>
    <message>
        <source>A certificate of its issuer has expired.</source>
        <translation>Um certificado do emissor dele expirou.</translation>
    </message>
    <message>
        <source>It is not valid before %1.</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>Ele não é válido antes de %1.</translation>
    </message>
    <message>
        <source>A certificate of its issuer is not valid yet.</source>
        <translation>Um certificado do emissor dele ainda não é válido.</translation>
    </message>
    <message>
        <source>It was withdrawn.</source>
        <translation>Ele foi revogado.</translation>
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
        <translation>ele mesmo</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Válido desde</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Válido até</translation>
    </message>
    <message>
        <source>Fingerprint (SHA-256)</source>
        <translation>Impressão digital (SHA-256)</translation>
    </message>
</context>
<context>
    <name>KirvServerCommands</name>
    <message>
        <source>None of the loaded plug-ins can register a new account.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>Nenhum dos plug-ins carregados pode registrar uma nova conta.</translation>
    </message>
    <message>
        <source>New accounts cannot be registered with %1.</source>
        <translation>Não é possível registrar novas contas com %1.</translation>
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
        <translation>O servidor aceitou o formulário. Adicione a conta com o nome de usuário que o servidor fornecer a você.</translation>
    </message>
    <message>
        <source>The account %1 is registered on the server, but it was not added here. %2</source>
        <extracomment>%1 = login of an account, %2 = the reason, a sentence</extracomment>
        <translation>A conta %1 está registrada no servidor, mas não foi adicionada aqui. %2</translation>
    </message>
    <message>
        <source>Add Again</source>
        <translation>Adicionar novamente</translation>
    </message>
    <message>
        <source>The account %1 has the new password on its server. The password is used until the program ends, but it is not stored. %2</source>
        <extracomment>%1 = name of an account, %2 = the reason, a sentence</extracomment>
        <translation>A conta %1 tem a nova senha no servidor dela. A senha será usada até o programa terminar, mas não está armazenada. %2</translation>
    </message>
    <message>
        <source>Store Again</source>
        <translation>Armazenar novamente</translation>
    </message>
    <message>
        <source>The account %1 is deleted on its server, but it was not removed here. %2</source>
        <extracomment>%1 = name of an account, %2 = the reason, a sentence</extracomment>
        <translation>A conta %1 está excluída no servidor dela, mas não foi removida aqui. %2</translation>
    </message>
    <message>
        <source>Remove Again</source>
        <translation>Remover novamente</translation>
    </message>
    <message>
        <source>The password of the account %1 is changed on its server.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>A senha da conta %1 foi alterada no servidor dela.</translation>
    </message>
</context>
<context>
    <name>KirvSettingsManager</name>
    <message>
        <source>Name shown</source>
        <translation>Nome mostrado</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>Remember the password</source>
        <translation>Lembrar a senha</translation>
    </message>
    <message>
        <source>Restore the last presence</source>
        <translation>Restaurar o último status</translation>
    </message>
    <message>
        <source>Restore the last description</source>
        <translation>Restaurar a última descrição</translation>
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
        <translation>Sair</translation>
    </message>
    <message>
        <source>Kirv – Settings</source>
        <extracomment>window title; %1 = name of the main account</extracomment>
        <translation>Kirv – Configurações</translation>
    </message>
    <message>
        <source>Kirv – Settings – %1</source>
        <translation>Kirv – Configurações – %1</translation>
    </message>
</context>
<context>
    <name>KirvSocketSteps</name>
    <message>
        <source>%1, port %2</source>
        <extracomment>%1 = name of a server, %2 = number of a port</extracomment>
        <translation>%1, porta %2</translation>
    </message>
    <message>
        <source>%1, which the proxy looks up</source>
        <extracomment>%1 = server and port</extracomment>
        <translation>%1; o proxy procura o nome</translation>
    </message>
    <message>
        <source>through the proxy %1</source>
        <extracomment>%1 = name of a proxy</extracomment>
        <translation>pelo proxy %1</translation>
    </message>
    <message>
        <source>none, as the settings say</source>
        <translation>nenhuma, conforme as configurações</translation>
    </message>
    <message>
        <source>none: the server offers none</source>
        <translation>nenhuma: o servidor não oferece</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 = &quot;TLS 1.3&quot;, %2 = about a certificate</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>certificate of %1, valid until %2, fingerprint %3 (SHA-256)</source>
        <extracomment>%1 = name of a server, %2 = a date, %3 = hexadecimal digits</extracomment>
        <translation>certificado de %1, válido até %2, impressão digital %3 (SHA-256)</translation>
    </message>
</context>
<context>
    <name>KirvSortingHint</name>
    <message>
        <source>The list is sorted by a column. Accounts can be moved only in your own order.</source>
        <translation>A lista está ordenada por uma coluna. As contas só podem ser movidas na ordem própria.</translation>
    </message>
    <message>
        <source>&amp;Own Order</source>
        <translation>Orde&amp;m própria</translation>
    </message>
</context>
<context>
    <name>KirvStore</name>
    <message>
        <source>The account &quot;%1&quot; (%2) is not in the profile.</source>
        <translation>A conta “%1” (%2) não está no perfil.</translation>
    </message>
    <message>
        <source>There is no home folder to keep the profile in: the environment variable HOME is not set. Set it, or name a folder for the profile.</source>
        <translation>Não há uma pasta pessoal onde guardar o perfil: a variável de ambiente HOME não está definida. Defina-a ou indique uma pasta para o perfil.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; was deleted, moved or replaced while the program was running, so nothing was stored. Save the accounts to another folder.</source>
        <translation>O perfil em “%1” foi excluído, movido ou substituído enquanto o programa estava em execução, portanto nada foi salvo. Salve as contas em outra pasta.</translation>
    </message>
    <message>
        <source>The copies of the profile in &quot;%1&quot; could not be removed. Check the permissions of the folder &quot;copies&quot; in it.</source>
        <translation>Não foi possível remover as cópias do perfil em “%1”. Verifique as permissões da pasta “copies” dele.</translation>
    </message>
    <message>
        <source>There is a profile in &quot;%1&quot; already. Choose an empty folder.</source>
        <translation>Já há um perfil em “%1”. Escolha uma pasta vazia.</translation>
    </message>
</context>
<context>
    <name>KirvXmppAvatar</name>
    <message>
        <source>The picture of the account cannot be read.</source>
        <translation>A imagem da conta não pode ser lida.</translation>
    </message>
</context>
<context>
    <name>KirvXmppConnection</name>
    <message>
        <source>The login must be an address such as user@domain.</source>
        <translation>O nome de usuário deve ser um endereço como usuario@dominio.</translation>
    </message>
    <message>
        <source>the server does not answer any more</source>
        <translation>o servidor não responde mais</translation>
    </message>
    <message>
        <source>The account is not connected.</source>
        <translation>A conta não está conectada.</translation>
    </message>
</context>
<context>
    <name>KirvXmppDeletionRequest</name>
    <message>
        <source>Delete Account on Server</source>
        <translation>Excluir conta no servidor</translation>
    </message>
    <message>
        <source>Do you want to delete the account %1 on its server? Its contacts and everything the server keeps for it are lost.</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>Você deseja excluir a conta %1 no servidor dela? Os contatos e tudo o que o servidor guarda para ela serão perdidos.</translation>
    </message>
    <message>
        <source>Delete on Server</source>
        <translation>Excluir no servidor</translation>
    </message>
    <message>
        <source>This cannot be undone, and somebody else can take the address %1 afterwards. Is %1 really to be deleted?</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>Isso não pode ser desfeito, e depois outra pessoa poderá tomar o endereço %1. Você realmente deseja excluir %1?</translation>
    </message>
    <message>
        <source>Delete for Good</source>
        <translation>Excluir definitivamente</translation>
    </message>
    <message>
        <source>Deleting the account…</source>
        <translation>Excluindo a conta…</translation>
    </message>
</context>
<context>
    <name>KirvXmppDirectory</name>
    <message>
        <source>The directory entry is too long to be sent.</source>
        <translation>A entrada do diretório é longa demais para ser enviada.</translation>
    </message>
</context>
<context>
    <name>KirvXmppError</name>
    <message>
        <source>the name is already in use</source>
        <translation>o nome já está em uso</translation>
    </message>
    <message>
        <source>the server does not accept what was sent</source>
        <translation>o servidor não aceita o que foi enviado</translation>
    </message>
    <message>
        <source>the server does not allow it</source>
        <translation>o servidor não permite isso</translation>
    </message>
    <message>
        <source>the server does not allow it now</source>
        <translation>o servidor não permite isso agora</translation>
    </message>
    <message>
        <source>the server requires encryption</source>
        <translation>o servidor exige criptografia</translation>
    </message>
</context>
<context>
    <name>KirvXmppLoginGuard</name>
    <message>
        <source>It requires more than a log-in needs.</source>
        <translation>Ele pede mais do que uma autenticação precisa.</translation>
    </message>
    <message>
        <source>It requires more work to check the password than is allowed (%1 rounds, at most %2).</source>
        <translation>Ele pede mais trabalho do que o permitido para verificar a senha (%1 iterações, no máximo %2).</translation>
    </message>
    <message>
        <source>It has not proved that it knows the password.</source>
        <translation>Ele não provou que conhece a senha.</translation>
    </message>
    <message>
        <source>Its part of the log-in is wrong.</source>
        <translation>A parte dele na autenticação está incorreta.</translation>
    </message>
</context>
<context>
    <name>KirvXmppPasswordRequest</name>
    <message>
        <source>Change Password on Server</source>
        <translation>Alterar senha no servidor</translation>
    </message>
    <message>
        <source>The account %1 gets a new password on its server. All clients need it then.</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>A conta %1 recebe uma nova senha no servidor dela. A partir daí, todos os clientes precisarão usá-la.</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nova senha</translation>
    </message>
    <message>
        <source>The same again</source>
        <translation>Repetir a senha</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Alterar senha</translation>
    </message>
    <message>
        <source>Enter the new password.</source>
        <translation>Digite a nova senha.</translation>
    </message>
    <message>
        <source>The two passwords are different. Enter the same password twice.</source>
        <translation>As duas senhas são diferentes. Digite a mesma senha duas vezes.</translation>
    </message>
    <message>
        <source>The password holds characters that cannot be sent.</source>
        <translation>A senha contém caracteres que não podem ser enviados.</translation>
    </message>
    <message>
        <source>Changing the password…</source>
        <translation>Alterando a senha…</translation>
    </message>
</context>
<context>
    <name>KirvXmppProtocol</name>
    <message>
        <source>XMPP (Jabber): conversations between addresses of many independent servers.</source>
        <translation>XMPP (Jabber): conversas entre endereços de muitos servidores independentes.</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponível</translation>
    </message>
    <message>
        <source>Free to chat</source>
        <translation>Disponível para conversar</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Ausente</translation>
    </message>
    <message>
        <source>Extended away</source>
        <translation>Ausência prolongada</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Não perturbe</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Invisível</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Desconectado</translation>
    </message>
    <message>
        <source>Change Password on Server…</source>
        <translation>Alterar senha no servidor…</translation>
    </message>
    <message>
        <source>Gives the account a new password on its server.</source>
        <translation>Define uma nova senha para a conta no servidor dela.</translation>
    </message>
    <message>
        <source>Delete Account on Server…</source>
        <translation>Excluir conta no servidor…</translation>
    </message>
    <message>
        <source>Deletes the account on its server for good, and then here.</source>
        <translation>Exclui a conta definitivamente no servidor dela e depois aqui.</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistration</name>
    <message>
        <source>registration of accounts</source>
        <translation>registro de contas</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistrationForm</name>
    <message>
        <source>User name</source>
        <translation>Nome de usuário</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Apelido</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Nome completo</translation>
    </message>
    <message>
        <source>First name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>Sobrenome</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Endereço</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Cidade</translation>
    </message>
    <message>
        <source>State or region</source>
        <translation>Estado ou região</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>Código postal</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telefone</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Página web</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be filled in.</source>
        <translation>“%1” precisa ser preenchido.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds characters that cannot be sent.</source>
        <translation>“%1” contém caracteres que não podem ser enviados.</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistrationRequest</name>
    <message>
        <source>Domain</source>
        <translation>Domínio</translation>
    </message>
    <message>
        <source>The part of the address after the @.</source>
        <translation>A parte do endereço depois do @.</translation>
    </message>
    <message>
        <source>Register XMPP Account</source>
        <translation>Registrar conta XMPP</translation>
    </message>
    <message>
        <source>Choose the server of the new account. The server determines what is to be filled in next.</source>
        <translation>Escolha o servidor da nova conta. O servidor determina o que deve ser preenchido em seguida.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Enter the domain of the server.</source>
        <translation>Digite o domínio do servidor.</translation>
    </message>
    <message>
        <source>The name of a server holds characters that cannot be sent.</source>
        <translation>O nome de um servidor contém caracteres que não podem ser enviados.</translation>
    </message>
    <message>
        <source>Requesting the registration form…</source>
        <translation>Solicitando o formulário de registro…</translation>
    </message>
    <message>
        <source>This server does not register accounts from within a client.</source>
        <translation>Este servidor não registra contas a partir de um cliente.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrar</translation>
    </message>
    <message>
        <source>The server sent another form. Check it and register again.</source>
        <translation>O servidor enviou outro formulário. Verifique-o e registre novamente.</translation>
    </message>
    <message>
        <source>The server also names this address: %1</source>
        <extracomment>%1 = a web address</extracomment>
        <translation>O servidor também indica este endereço: %1</translation>
    </message>
    <message>
        <source>Sending the form…</source>
        <translation>Enviando o formulário…</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted. Somebody between you and the server could read your password.</source>
        <translation>O certificado do servidor não é confiável. Alguém entre você e o servidor poderia ler a sua senha.</translation>
    </message>
    <message>
        <source>Trust for This Account</source>
        <translation>Confiar para esta conta</translation>
    </message>
</context>
<context>
    <name>KirvXmppRoute</name>
    <message>
        <source>servers refer to one another without end</source>
        <translation>servidores remetem uns aos outros sem fim</translation>
    </message>
    <message>
        <source>it refers to a server of a private network</source>
        <translation>ele remete a um servidor de uma rede privada</translation>
    </message>
    <message>
        <source>%1 starts with encryption at once. Choose direct TLS, or another port.</source>
        <extracomment>%1 is a server and its port</extracomment>
        <translation>%1 começa imediatamente com criptografia. Escolha TLS direto ou outra porta.</translation>
    </message>
    <message>
        <source>%1 does not start with encryption at once. Do not choose direct TLS, or choose another port.</source>
        <extracomment>%1 is a server and its port</extracomment>
        <translation>%1 não começa imediatamente com criptografia. Não escolha TLS direto ou escolha outra porta.</translation>
    </message>
    <message>
        <source>servers of %1</source>
        <extracomment>%1 = a domain</extracomment>
        <translation>servidores de %1</translation>
    </message>
    <message>
        <source>the server refers to %1</source>
        <extracomment>%1 = a server</extracomment>
        <translation>o servidor encaminha para %1</translation>
    </message>
</context>
<context>
    <name>KirvXmppServerLink</name>
    <message>
        <source>What the server sent is no XMPP stream.</source>
        <translation>O que o servidor enviou não é um fluxo XMPP.</translation>
    </message>
    <message>
        <source>The server sent data that is longer than allowed.</source>
        <translation>O servidor enviou dados mais longos do que o permitido.</translation>
    </message>
    <message>
        <source>The server sent data that is no valid XML.</source>
        <translation>O servidor enviou dados que não são XML válido.</translation>
    </message>
    <message>
        <source>The server sent XML that is not allowed in a stream.</source>
        <translation>O servidor enviou XML que não é permitido em um fluxo.</translation>
    </message>
    <message>
        <source>the reply of the server is too large</source>
        <translation>a resposta do servidor é grande demais</translation>
    </message>
    <message>
        <source>it refers to a server of a private network</source>
        <translation>ele remete a um servidor de uma rede privada</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is the encryption, as &quot;TLSv1.3&quot;, %2 how the user has proved who he is, as &quot;SASL SCRAM-SHA-256&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not encrypted</source>
        <translation>sem criptografia</translation>
    </message>
    <message>
        <source>The server begins the log-in again and again.</source>
        <translation>O servidor começa a autenticação repetidas vezes.</translation>
    </message>
    <message>
        <source>the server requires encryption</source>
        <translation>o servidor exige criptografia</translation>
    </message>
    <message>
        <source>the server does not serve the domain of the login</source>
        <translation>o servidor não atende o domínio do nome de usuário</translation>
    </message>
    <message>
        <source>it refers to a server without a name</source>
        <translation>ele remete a um servidor sem nome</translation>
    </message>
    <message>
        <source>It has logged in the account &quot;%1&quot;.</source>
        <extracomment>%1 is the address of an account</extracomment>
        <translation>Ele iniciou a sessão da conta “%1”.</translation>
    </message>
    <message>
        <source>the server does not answer any more</source>
        <translation>o servidor não responde mais</translation>
    </message>
    <message>
        <source>Its part of the log-in is wrong.</source>
        <translation>A parte dele na autenticação está incorreta.</translation>
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
        <translation>Distingue este cliente dos outros que você usa. Caracteres aleatórios tomam o lugar de um *. Vazio: o servidor escolhe.</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridade</translation>
    </message>
    <message>
        <source>Messages go to the client with the highest priority, and to none with a negative one. This client does not show messages.</source>
        <translation>As mensagens vão para o cliente com a maior prioridade, e para nenhum com prioridade negativa. Este cliente não mostra mensagens.</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Only needed when it cannot be found by the domain of the login. Service records are not looked up where there is a proxy.</source>
        <translation>Necessário somente quando ele não pode ser encontrado pelo domínio do nome de usuário. Registros de serviço não são consultados quando há um proxy.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Ordinarily %1, and %2 with direct TLS.</source>
        <translation>Normalmente %1, e %2 com TLS direto.</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Criptografia</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obrigatória</translation>
    </message>
    <message>
        <source>If the server offers it</source>
        <translation>Se o servidor a oferecer</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>Required at once (direct TLS)</source>
        <translation>Obrigatória desde o início (TLS direto)</translation>
    </message>
    <message>
        <source>Without encryption others in the network can read along, your password included.</source>
        <translation>Sem criptografia, outros na rede podem ler tudo, inclusive a sua senha.</translation>
    </message>
    <message>
        <source>Trusted certificate</source>
        <translation>Certificado confiável</translation>
    </message>
    <message>
        <source>A file with a certificate (PEM) that is trusted besides those of the system.</source>
        <translation>Um arquivo com um certificado (PEM) que é confiável além dos certificados do sistema.</translation>
    </message>
    <message>
        <source>Server of the domain</source>
        <translation>Servidor do domínio</translation>
    </message>
    <message>
        <source>Server on this computer</source>
        <translation>Servidor neste computador</translation>
    </message>
    <message>
        <source>Server on this computer, unencrypted</source>
        <translation>Servidor neste computador, sem criptografia</translation>
    </message>
    <message>
        <source>An address contains no blanks.</source>
        <translation>Um endereço não contém espaços.</translation>
    </message>
    <message>
        <source>The character &quot;%1&quot; is not allowed in an address.</source>
        <translation>O caractere “%1” não é permitido em um endereço.</translation>
    </message>
    <message>
        <source>The domain is missing, as in anna@example.org.</source>
        <translation>Falta o domínio (exemplo: anna@example.org).</translation>
    </message>
    <message>
        <source>An address contains one &quot;@&quot; only.</source>
        <translation>Um endereço contém somente um “@”.</translation>
    </message>
    <message>
        <source>The name before the &quot;@&quot; is missing.</source>
        <translation>Falta o nome antes do “@”.</translation>
    </message>
    <message>
        <source>The domain after the &quot;@&quot; is missing.</source>
        <translation>Falta o domínio depois do “@”.</translation>
    </message>
    <message>
        <source>The domain after the &quot;@&quot; is not complete.</source>
        <translation>O domínio depois do “@” não está completo.</translation>
    </message>
    <message>
        <source>The address is too long.</source>
        <translation>O endereço é longo demais.</translation>
    </message>
    <message>
        <source>The trusted certificate %1 cannot be read (%2).</source>
        <extracomment>%1 is a file name, %2 the reason</extracomment>
        <translation>O certificado confiável %1 não pode ser lido (%2).</translation>
    </message>
    <message>
        <source>The file %1 does not hold a certificate in PEM format.</source>
        <translation>O arquivo %1 não contém um certificado no formato PEM.</translation>
    </message>
    <message>
        <source>The trusted certificate %1 is not a file.</source>
        <extracomment>%1 is a file name</extracomment>
        <translation>O certificado confiável %1 não é um arquivo.</translation>
    </message>
</context>
<context>
    <name>KirvXmppVCard</name>
    <message>
        <source>Birthday</source>
        <translation>Data de nascimento</translation>
    </message>
    <message>
        <source>Year, month and day, such as 1999-12-31.</source>
        <translation>Ano, mês e dia, por exemplo 1999-12-31.</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Nome completo</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Apelido</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telefone</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Cidade</translation>
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
        <translation>Organização</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre mim</translation>
    </message>
    <message>
        <source>An address that begins with http:// or https://.</source>
        <translation>Um endereço que começa com http:// ou https://.</translation>
    </message>
</context>
<context>
    <name>translation</name>
    <message>
        <source>Alias</source>
        <comment>account alias in account list</comment>
        <translation>Apelido</translation>
    </message>
    <message>
        <source>Protocol</source>
        <comment>account protocol in account list</comment>
        <translation>Protocolo</translation>
    </message>
    <message>
        <source>Removing account</source>
        <comment>message box title</comment>
        <translation>Remover conta</translation>
    </message>
    <message>
        <source>Do you want to remove account &apos;%1&apos; (%2) and all related data?</source>
        <comment>%1 = account alias, %2 = account protocol. Confirmation of removing account</comment>
        <translation>Você deseja remover a conta “%1” (%2) e todos os dados relacionados?</translation>
    </message>
    <message>
        <source>Disabling account</source>
        <comment>message box title</comment>
        <translation>Desativar conta</translation>
    </message>
    <message>
        <source>Do you want to disable account &apos;%1&apos; (%2) in which you are currently logged in.</source>
        <comment>%1 = account id, %2 = account protocol. Confirmation of disabling account</comment>
        <translation>Você deseja desativar a conta “%1” (%2), que está com uma sessão iniciada no momento?</translation>
    </message>
    <message>
        <source>None</source>
        <comment>nc</comment>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Add account</source>
        <comment>adding account error message box title</comment>
        <translation>Adicionar conta</translation>
    </message>
    <message>
        <source>Account &apos;%1&apos; alerady exists!</source>
        <comment>information about existing account while adding account</comment>
        <translation>A conta “%1” já existe!</translation>
    </message>
    <message>
        <source>Deleting directory entry</source>
        <comment>message box title</comment>
        <translation>Excluir a entrada do diretório</translation>
    </message>
    <message>
        <source>Do you want to delete the directory entry of account &apos;%1&apos; (%2) from the server?</source>
        <comment>%1 = account id, %2 = account protocol. Confirmation of deleting the directory entry</comment>
        <translation>Você deseja excluir do servidor a entrada do diretório da conta “%1” (%2)?</translation>
    </message>
</context>
</TS>
