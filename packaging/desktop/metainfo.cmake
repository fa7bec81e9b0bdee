# SPDX-License-Identifier: LGPL-2.1-or-later
# Writes the client's description for catalogs of software to the file ${metainfo}, with the addresses that are known:
# KIRV_HOME_PAGE, KIRV_BUG_TRACKER and KIRV_SCREENSHOTS. Takes KIRV_APPLICATION_ID, too. Included, or run as a script.
set(KIRV_METAINFO_ADDRESSES "")
if(KIRV_HOME_PAGE)
    string(APPEND KIRV_METAINFO_ADDRESSES "  <url type=\"homepage\">${KIRV_HOME_PAGE}</url>\n")
endif()
if(KIRV_BUG_TRACKER)
    string(APPEND KIRV_METAINFO_ADDRESSES "  <url type=\"bugtracker\">${KIRV_BUG_TRACKER}</url>\n")
endif()
if(KIRV_SCREENSHOTS)
    string(APPEND KIRV_METAINFO_ADDRESSES "  <screenshots>
    <screenshot type=\"default\">
      <caption>The accounts of two protocols</caption>
      <caption xml:lang=\"de\">Die Konten zweier Protokolle</caption>
      <caption xml:lang=\"ar\">حسابات بروتوكولين</caption>
      <caption xml:lang=\"es\">Las cuentas de dos protocolos</caption>
      <caption xml:lang=\"fr\">Les comptes de deux protocoles</caption>
      <caption xml:lang=\"pl\">Konta dwóch protokołów</caption>
      <caption xml:lang=\"pt_BR\">As contas de dois protocolos</caption>
      <image>${KIRV_SCREENSHOTS}/accounts-page.png</image>
    </screenshot>
    <screenshot>
      <caption>Adding an account</caption>
      <caption xml:lang=\"de\">Ein Konto wird hinzugefügt</caption>
      <caption xml:lang=\"ar\">إضافة حساب</caption>
      <caption xml:lang=\"es\">Se añade una cuenta</caption>
      <caption xml:lang=\"fr\">L’ajout d’un compte</caption>
      <caption xml:lang=\"pl\">Dodawanie konta</caption>
      <caption xml:lang=\"pt_BR\">Uma conta é adicionada</caption>
      <image>${KIRV_SCREENSHOTS}/adding.png</image>
    </screenshot>
    <screenshot>
      <caption>A wrong password, and what to do about it</caption>
      <caption xml:lang=\"de\">Ein falsches Passwort, und was dagegen zu tun ist</caption>
      <caption xml:lang=\"ar\">كلمة سر خاطئة وما يجب فعله</caption>
      <caption xml:lang=\"es\">Una contraseña incorrecta y qué hacer</caption>
      <caption xml:lang=\"fr\">Un mot de passe incorrect et ce qu’il faut faire</caption>
      <caption xml:lang=\"pl\">Błędne hasło i co można zrobić</caption>
      <caption xml:lang=\"pt_BR\">Uma senha incorreta e o que fazer</caption>
      <image>${KIRV_SCREENSHOTS}/wrong-password.png</image>
    </screenshot>
  </screenshots>\n")
endif()
configure_file("${CMAKE_CURRENT_LIST_DIR}/kirv.metainfo.xml.in" "${metainfo}" @ONLY)
