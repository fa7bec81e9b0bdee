<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>Accounts</name>
    <message>
        <source>Accounts</source>
        <translation>الحسابات</translation>
    </message>
    <message>
        <source>The check box of an account tells whether it is enabled.</source>
        <translation>يبيّن مربع الاختيار بجوار الحساب إن كان الحساب مفعّلًا.</translation>
    </message>
    <message>
        <source>Add an account that you already have</source>
        <translation>أضف حسابًا لديك بالفعل</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>أ&amp;ضف</translation>
    </message>
    <message>
        <source>Change the selected account</source>
        <translation>غيّر الحساب المحدد</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;حرّر…</translation>
    </message>
    <message>
        <source>Remove the selected account and all its data</source>
        <translation>أزل الحساب المحدد وكل بياناته</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>أ&amp;زل…</translation>
    </message>
    <message>
        <source>Create a new account on a server</source>
        <translation>أنشئ حسابًا جديدًا على خادم</translation>
    </message>
    <message>
        <source>Re&amp;gister…</source>
        <translation>&amp;سجّل…</translation>
    </message>
    <message>
        <source>&amp;Main account:</source>
        <translation>الحساب ال&amp;رئيسي:</translation>
    </message>
    <message>
        <source>The account that the rest of the program works with</source>
        <translation>الحساب الذي تستعمله بقية البرنامج</translation>
    </message>
    <message>
        <source>Main account</source>
        <translation>الحساب الرئيسي</translation>
    </message>
</context>
<context>
    <name>AddAccount</name>
    <message>
        <source>Add Account</source>
        <translation>إضافة حساب</translation>
    </message>
    <message>
        <source>&amp;Configuration:</source>
        <translation>ال&amp;تهيئة:</translation>
    </message>
    <message>
        <source>A ready-made configuration fills in the settings for you</source>
        <translation>تملأ التهيئة الجاهزة الإعدادات نيابة عنك</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>التهيئة</translation>
    </message>
    <message>
        <source>&amp;Login:</source>
        <translation>اسم ال&amp;دخول:</translation>
    </message>
    <message>
        <source>The name under which you log in</source>
        <translation>الاسم الذي تسجّل الدخول به</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>اسم الدخول</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;كلمة السر:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة السر</translation>
    </message>
    <message>
        <source>If this is off, you are asked for the password when the account logs in</source>
        <translation>إذا كان هذا معطّلًا فستُسأل عن كلمة السر عندما يسجّل الحساب الدخول</translation>
    </message>
    <message>
        <source>&amp;Remember password</source>
        <translation>ت&amp;ذكّر كلمة السر</translation>
    </message>
    <message>
        <source>S&amp;tart as:</source>
        <translation>الحضور عند ال&amp;بدء:</translation>
    </message>
    <message>
        <source>The presence that the account takes when it logs in</source>
        <translation>الحضور الذي يتخذه الحساب عندما يسجّل الدخول</translation>
    </message>
    <message>
        <source>Start as</source>
        <translation>الحضور عند البدء</translation>
    </message>
</context>
<context>
    <name>EditAccount</name>
    <message>
        <source>Edit Account</source>
        <translation>تحرير الحساب</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>ال&amp;حساب</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>الحساب:</translation>
    </message>
    <message>
        <source>Picture:</source>
        <translation>الصورة:</translation>
    </message>
    <message>
        <source>A&amp;lias:</source>
        <translation>الاسم ال&amp;مستعار:</translation>
    </message>
    <message>
        <source>The name shown for the account</source>
        <translation>الاسم الذي يظهر للحساب</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>الاسم المستعار</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;كلمة السر:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة السر</translation>
    </message>
    <message>
        <source>If this is off, you are asked for the password when the account logs in</source>
        <translation>إذا كان هذا معطّلًا فستُسأل عن كلمة السر عندما يسجّل الحساب الدخول</translation>
    </message>
    <message>
        <source>&amp;Remember password</source>
        <translation>ت&amp;ذكّر كلمة السر</translation>
    </message>
    <message>
        <source>The account takes the presence and description that it had last</source>
        <translation>يتخذ الحساب آخر حضور ووصف كانا له</translation>
    </message>
    <message>
        <source>Restore the last pr&amp;esence</source>
        <translation>ا&amp;ستعد آخر حضور</translation>
    </message>
    <message>
        <source>The account takes the description that it had last</source>
        <translation>يتخذ الحساب آخر وصف كان له</translation>
    </message>
    <message>
        <source>Restore the last descript&amp;ion</source>
        <translation>استعد آخر و&amp;صف</translation>
    </message>
    <message>
        <source>S&amp;tart as:</source>
        <translation>الحضور عند ال&amp;بدء:</translation>
    </message>
    <message>
        <source>The presence that the account takes when it logs in</source>
        <translation>الحضور الذي يتخذه الحساب عندما يسجّل الدخول</translation>
    </message>
    <message>
        <source>Start as</source>
        <translation>الحضور عند البدء</translation>
    </message>
    <message>
        <source>Descriptio&amp;n:</source>
        <translation>ال&amp;وصف:</translation>
    </message>
    <message>
        <source>What your contacts read beside the presence</source>
        <translation>ما تقرؤه جهات اتصالك بجوار الحضور</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>P&amp;ublic Directory</source>
        <translation>الدليل ال&amp;عام</translation>
    </message>
    <message>
        <source>Ask the server for your entry; changes that are not saved are lost</source>
        <translation>اطلب مدخلتك من الخادم؛ ستضيع التغييرات غير المحفوظة</translation>
    </message>
    <message>
        <source>&amp;Fetch Again</source>
        <translation>ا&amp;جلب من جديد</translation>
    </message>
    <message>
        <source>Take your entry out of the directory</source>
        <translation>أزل مدخلتك من الدليل</translation>
    </message>
    <message>
        <source>&amp;Delete Entry…</source>
        <translation>احذ&amp;ف المدخلة…</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>الحالة:</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>الخادم</translation>
    </message>
    <message>
        <source>Presence</source>
        <translation>الحضور</translation>
    </message>
    <message>
        <source>Pages of the account</source>
        <translation>صفحات الحساب</translation>
    </message>
</context>
<context>
    <name>KirvAccount</name>
    <message>
        <source>A password could not be kept in the keyring. It is used until the program ends, and is kept when the keyring can be used.</source>
        <translation>تعذّر حفظ كلمة سر في حلقة المفاتيح. ستُستعمل حتى إنهاء البرنامج، وستُحفظ عندما يمكن استعمال حلقة المفاتيح.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 = a sentence, %2 = what the keyring says</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>other accounts connect first</source>
        <translation>تتصل حسابات أخرى أولًا</translation>
    </message>
    <message>
        <source>the next try is at %1</source>
        <extracomment>%1 = time of day</extracomment>
        <translation>المحاولة التالية في الساعة %1</translation>
    </message>
    <message>
        <source>A password could not be stored. It is used until the program ends. %1</source>
        <extracomment>%1 = the reason, a sentence</extracomment>
        <translation>تعذّر تخزين كلمة سر. تُستعمل إلى أن ينتهي البرنامج. %1</translation>
    </message>
</context>
<context>
    <name>KirvAccountActionsMenu</name>
    <message>
        <source>&amp;Server Account</source>
        <translation>الحساب على الخا&amp;دم</translation>
    </message>
</context>
<context>
    <name>KirvAccountCheckList</name>
    <message>
        <source>&amp;All accounts</source>
        <translation>&amp;كل الحسابات</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>الحسابات</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>الحساب</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>البروتوكول</translation>
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
        <translation>الحسابان «%1» و«%2» (بروتوكول %3) هما حساب واحد لدى الخادم. أُبقي على كليهما؛ أزل ما لا حاجة إليه منهما.</translation>
    </message>
    <message numerus="yes">
        <source>The same is true of %n further logins.</source>
        <translation>
            <numerusform>لا ينطبق ذلك على أي اسم دخول آخر.</numerusform>
            <numerusform>ينطبق ذلك أيضًا على اسم دخول واحد آخر.</numerusform>
            <numerusform>ينطبق ذلك أيضًا على اسمي دخول آخرين.</numerusform>
            <numerusform>ينطبق ذلك أيضًا على %n أسماء دخول أخرى.</numerusform>
            <numerusform>ينطبق ذلك أيضًا على %n اسم دخول آخر.</numerusform>
            <numerusform>ينطبق ذلك أيضًا على %n اسم دخول آخر.</numerusform>
        </translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) exists already.</source>
        <translation>الحساب «%1» (بروتوكول %2) موجود بالفعل.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) exists already: it is the same as &quot;%3&quot; to the server.</source>
        <extracomment>%1 and %3 are two spellings of a login, %2 is the name of a protocol</extracomment>
        <translation>الحساب «%1» (بروتوكول %2) موجود بالفعل: هو لدى الخادم نفس «%3».</translation>
    </message>
    <message>
        <source>An account needs a login.</source>
        <translation>يحتاج الحساب إلى اسم دخول.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; could not be created: the protocol %2 is not loaded.</source>
        <translation>تعذّر إنشاء الحساب «%1»: البروتوكول %2 غير محمّل.</translation>
    </message>
    <message>
        <source>The pictures of the accounts could not be written into a temporary file.</source>
        <translation>تعذّرت كتابة صور الحسابات في ملف مؤقت.</translation>
    </message>
    <message>
        <source>There is no account &quot;%1&quot; (%2) any more.</source>
        <translation>لم يعد الحساب «%1» (بروتوكول %2) موجودًا.</translation>
    </message>
</context>
<context>
    <name>KirvAccountExport</name>
    <message>
        <source>The password of the account &quot;%1&quot; (%2) is left out: it is in the keyring and could not be read.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>استُبعدت كلمة سر الحساب «%1» (بروتوكول %2): هي في حلقة المفاتيح وتعذّرت قراءتها.</translation>
    </message>
    <message>
        <source>Secret settings of the account &quot;%1&quot; (%2) are left out: they are in the keyring and could not be read.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>استُبعدت إعدادات سرية للحساب «%1» (بروتوكول %2): هي في حلقة المفاتيح وتعذّرت قراءتها.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) is left out: it has texts that cannot be exported.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>استُبعد الحساب «%1» (بروتوكول %2): فيه نصوص لا يمكن تصديرها.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) is left out: it could not be read, or is too large.</source>
        <extracomment>%1 = name of an account, %2 = name of a protocol</extracomment>
        <translation>استُبعدت صورة الحساب «%1» (بروتوكول %2): تعذّرت قراءتها أو هي أكبر من اللازم.</translation>
    </message>
</context>
<context>
    <name>KirvAccountFile</name>
    <message>
        <source>The file is damaged, or it is not a file of exported accounts.</source>
        <translation>الملف تالف، أو ليس ملف حسابات مصدّرة.</translation>
    </message>
    <message>
        <source>The passwords in the file are damaged, so nothing is imported from it.</source>
        <translation>كلمات السر في الملف تالفة، ولذلك لا يُستورد منه شيء.</translation>
    </message>
    <message>
        <source>The file is too large. Up to %1 MB are possible.</source>
        <translation>الملف كبير جدًا. الحد الأقصى %1 ميغابايت.</translation>
    </message>
    <message>
        <source>The file was made by a newer version of the program. This one cannot read it.</source>
        <translation>أنشأ الملفَ إصدارٌ أحدث من البرنامج. لا يمكن لهذا الإصدار قراءته.</translation>
    </message>
    <message>
        <source>The file has too many accounts. Up to %1 are possible.</source>
        <translation>في الملف حسابات كثيرة جدًا. الحد الأقصى لعدد الحسابات %1.</translation>
    </message>
    <message>
        <source>Account %1 in the file is damaged: &quot;%2&quot; cannot be used.</source>
        <extracomment>%1 = number of an account in a file, %2 = name of a value that is stored there</extracomment>
        <translation>الحساب رقم %1 في الملف تالف: لا يمكن استعمال القيمة «%2».</translation>
    </message>
    <message>
        <source>The file contains the account &quot;%1&quot; (%2) twice.</source>
        <extracomment>%1 = login, %2 = name of a protocol</extracomment>
        <translation>الحساب «%1» (بروتوكول %2) وارد في الملف مرتين.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) in the file is too large.</source>
        <translation>صورة الحساب «%1» (بروتوكول %2) في الملف كبيرة جدًا.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; (%2) is left out: it is of a kind that cannot be used.</source>
        <translation>استُبعدت صورة الحساب «%1» (بروتوكول %2): هي من نوع لا يمكن استعماله.</translation>
    </message>
    <message>
        <source>The file is damaged: its main account is not in it.</source>
        <translation>الملف تالف: حسابه الرئيسي ليس فيه.</translation>
    </message>
    <message>
        <source>The file contains no passwords that the pass phrase could decrypt. If it should contain some, somebody has changed it.</source>
        <translation>ليس في الملف كلمات سر، ولذلك لا يوجد ما تفتحه عبارة السر. إذا كان يجب أن تكون فيه كلمات سر فقد غيّره شخص ما.</translation>
    </message>
    <message>
        <source>The passwords in the file are left out, as they need its pass phrase.</source>
        <translation>استُبعدت كلمات السر التي في الملف، لأنها تحتاج إلى عبارة سره.</translation>
    </message>
    <message>
        <source>Decrypting the passwords in the file needs more memory or time than is allowed, so nothing is imported from it.</source>
        <translation>يتطلب فتح كلمات السر في الملف ذاكرة أو وقتًا أكثر من المسموح به، ولذلك لا يُستورد منه شيء.</translation>
    </message>
    <message>
        <source>There is not enough memory to decrypt the passwords in the file.</source>
        <translation>لا توجد ذاكرة كافية لفتح كلمات السر في الملف.</translation>
    </message>
    <message>
        <source>The pass phrase does not decrypt the passwords in the file.</source>
        <translation>لا تفتح عبارة السر هذه كلمات السر في الملف.</translation>
    </message>
    <message>
        <source>The accounts in the file were changed after it was written. They do not belong to its passwords any more, so nothing is imported from it.</source>
        <translation>غُيّرت الحسابات في الملف بعد كتابته. لم تعد تطابق كلمات السر التي فيه، ولذلك لا يُستورد منه شيء.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; (%2) has texts or a picture that cannot be exported.</source>
        <translation>في الحساب «%1» (بروتوكول %2) نصوص أو صورة لا يمكن تصديرها.</translation>
    </message>
    <message>
        <source>There is not enough memory to encrypt the passwords.</source>
        <translation>لا توجد ذاكرة كافية لتشفير كلمات السر.</translation>
    </message>
    <message>
        <source>The file would have more than %1 MB or %2 accounts. Export fewer accounts at once.</source>
        <translation>سيتجاوز الملف الحد الأقصى للحجم (%1 ميغابايت) أو لعدد الحسابات (%2). صدّر حسابات أقل في المرة الواحدة.</translation>
    </message>
</context>
<context>
    <name>KirvAccountGroup</name>
    <message>
        <source>Disabling Accounts</source>
        <translation>تعطيل حسابات</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to disable %n accounts? They are logged out.</source>
        <translation>
            <numerusform>هل تريد تعطيل %n حساب؟ سيُسجَّل خروجها.</numerusform>
            <numerusform>هل تريد تعطيل حساب واحد؟ سيُسجَّل خروجه.</numerusform>
            <numerusform>هل تريد تعطيل حسابين؟ سيُسجَّل خروجهما.</numerusform>
            <numerusform>هل تريد تعطيل %n حسابات؟ سيُسجَّل خروجها.</numerusform>
            <numerusform>هل تريد تعطيل %n حسابًا؟ سيُسجَّل خروجها.</numerusform>
            <numerusform>هل تريد تعطيل %n حساب؟ سيُسجَّل خروجها.</numerusform>
        </translation>
    </message>
    <message>
        <source>Removing Accounts</source>
        <translation>إزالة حسابات</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to remove %n accounts and all related data?</source>
        <translation>
            <numerusform>هل تريد إزالة %n حساب وكل البيانات المرتبطة بها؟</numerusform>
            <numerusform>هل تريد إزالة حساب واحد وكل البيانات المرتبطة به؟</numerusform>
            <numerusform>هل تريد إزالة حسابين وكل البيانات المرتبطة بهما؟</numerusform>
            <numerusform>هل تريد إزالة %n حسابات وكل البيانات المرتبطة بها؟</numerusform>
            <numerusform>هل تريد إزالة %n حسابًا وكل البيانات المرتبطة بها؟</numerusform>
            <numerusform>هل تريد إزالة %n حساب وكل البيانات المرتبطة بها؟</numerusform>
        </translation>
    </message>
    <message>
        <source>Disabling All Accounts</source>
        <translation>تعطيل كل الحسابات</translation>
    </message>
    <message>
        <source>Do you want to disable all accounts? They are logged out.</source>
        <translation>هل تريد تعطيل كل الحسابات؟ سيُسجَّل خروجها.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ولا حسابات أخرى</numerusform>
            <numerusform>وحساب واحد آخر</numerusform>
            <numerusform>وحسابان آخران</numerusform>
            <numerusform>و%n حسابات أخرى</numerusform>
            <numerusform>و%n حسابًا آخر</numerusform>
            <numerusform>و%n حساب آخر</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvAccountHistory</name>
    <message>
        <source>The account &quot;%1&quot; cannot be enabled again: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>لا يمكن تفعيل الحساب «%1» من جديد: لقد أُزيل.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be restored to what it was before the import: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>لا يمكن أن يعود الحساب «%1» إلى ما كان عليه قبل الاستيراد: لقد أُزيل.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be imported again: it was removed.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>لا يمكن استيراد الحساب ”%1“ مرة أخرى: لقد أزيل.</translation>
    </message>
</context>
<context>
    <name>KirvAccountImport</name>
    <message>
        <source>The file contains this login twice: &quot;%1&quot; is the same as &quot;%2&quot; to the server.</source>
        <extracomment>%1 and %2 are logins, which may be spelt the same</extracomment>
        <translation>اسم الدخول هذا وارد في الملف مرتين: «%1» هو لدى الخادم نفس «%2».</translation>
    </message>
    <message>
        <source>The account has no login.</source>
        <translation>ليس للحساب اسم دخول.</translation>
    </message>
    <message>
        <source>The protocol %1 is not loaded.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>البروتوكول %1 غير محمّل.</translation>
    </message>
    <message>
        <source>Another account with this login was added or removed in the meantime.</source>
        <translation>أُضيف أو أُزيل منذ ذلك الحين حساب آخر باسم الدخول هذا.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; cannot be imported. %2</source>
        <extracomment>%1 = login, %2 = a sentence</extracomment>
        <translation>لا يمكن استيراد الحساب «%1». %2</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; was left out. %2</source>
        <extracomment>%1 = name of an account, %2 = a sentence</extracomment>
        <translation>استُبعدت صورة الحساب «%1». %2</translation>
    </message>
    <message>
        <source>Stored passwords of the account &quot;%1&quot; are not kept, because its settings in the file differ. They must be entered again.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>لا تُحفظ كلمات السر المخزنة للحساب «%1»، لأن إعداداته في الملف مختلفة. يجب إدخالها من جديد.</translation>
    </message>
</context>
<context>
    <name>KirvAccountInvitation</name>
    <message>
        <source>Add an Account</source>
        <translation>أضف حسابًا</translation>
    </message>
    <message>
        <source>Register a New One…</source>
        <translation>سجّل حسابًا جديدًا…</translation>
    </message>
    <message>
        <source>Create a new account on a server</source>
        <translation>أنشئ حسابًا جديدًا على خادم</translation>
    </message>
    <message>
        <source>Add an account that you already have</source>
        <translation>أضف حسابًا لديك بالفعل</translation>
    </message>
    <message>
        <source>No protocol is loaded. Load one on the Plug-ins page.</source>
        <translation>لم يُحمَّل أي بروتوكول. حمّل واحدًا من صفحة «الملحقات».</translation>
    </message>
    <message>
        <source>Take accounts over from a file</source>
        <translation>انقل الحسابات من ملف</translation>
    </message>
    <message>
        <source>Take the accounts of Pidgin over; its own file is only read</source>
        <translation>انقل حسابات Pidgin؛ يُقرأ ملفه فقط ولا يُغيَّر</translation>
    </message>
    <message>
        <source>There is no account yet. Add one that you already have, register a new one, or import accounts from a file.</source>
        <translation>لا يوجد حساب بعد. أضف حسابًا لديك بالفعل، أو سجّل حسابًا جديدًا، أو استورد حسابات من ملف.</translation>
    </message>
    <message>
        <source>There is no account yet. Add one that you already have, register a new one, or import accounts. There are accounts of Pidgin on this computer.</source>
        <translation>لا يوجد حساب بعد. أضف حسابًا لديك بالفعل، أو سجّل حسابًا جديدًا، أو استورد حسابات. لبرنامج Pidgin حسابات على هذا الحاسوب.</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>استورد…</translation>
    </message>
    <message>
        <source>Import from Pidgin…</source>
        <translation>استورد من Pidgin…</translation>
    </message>
</context>
<context>
    <name>KirvAccountLog</name>
    <message>
        <source>Off line</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>يتصل</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Logging out</source>
        <translation>يسجّل الخروج</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>في الانتظار</translation>
    </message>
    <message>
        <source>The program requests a log-in</source>
        <translation>يطلب البرنامج تسجيل الدخول</translation>
    </message>
    <message>
        <source>The program changes the presence</source>
        <translation>يغيّر البرنامج الحضور</translation>
    </message>
    <message>
        <source>The program requests a log-out</source>
        <translation>يطلب البرنامج تسجيل الخروج</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>فشل %1</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>تم %1</translation>
    </message>
    <message>
        <source>%1 begins</source>
        <translation>بدأ %1</translation>
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
        <translation>سجل الحساب %1</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>ان&amp;سخ</translation>
    </message>
    <message>
        <source>Copies the selected entries, or all when none is selected. They hold no passwords.</source>
        <translation>ينسخ المدخلات المحددة، أو كلها إذا لم تُحدَّد أي منها. لا تحوي المدخلات كلمات سر.</translation>
    </message>
    <message>
        <source>&amp;Report…</source>
        <translation>ال&amp;تقرير…</translation>
    </message>
    <message>
        <source>Puts the log and the versions of the program together for somebody who helps.</source>
        <translation>يجمع السجل وإصدارات البرنامج لمن يساعدك.</translation>
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
        <translation>لا يوجد حساب باسم «%1».</translation>
    </message>
    <message>
        <source>Several accounts are called &quot;%1&quot;. Name one of them with its protocol: %2</source>
        <extracomment>%1 = what was typed, %2 = names that could be meant</extracomment>
        <translation>عدة حسابات تحمل الاسم «%1». اذكر واحدًا منها مع بروتوكوله: %2</translation>
    </message>
</context>
<context>
    <name>KirvAccountRowStates</name>
    <message>
        <source>%1, %2</source>
        <extracomment>read aloud for a row: %1 = name of an account, %2 = its state</extracomment>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>KirvAccountSearch</name>
    <message>
        <source>Search accounts</source>
        <translation>ابحث في الحسابات</translation>
    </message>
    <message>
        <source>Search accounts, or “%1”…</source>
        <extracomment>%1 = the word that finds accounts whose state needs attention</extracomment>
        <translation>ابحث في الحسابات، أو اكتب «%1»…</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>مشكلة</translation>
    </message>
    <message>
        <source>Shows the accounts with these words in their alias, login, protocol or state</source>
        <translation>يُظهر الحسابات التي ترد هذه الكلمات في اسمها المستعار أو اسم دخولها أو بروتوكولها أو حالتها</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>how many accounts a search shows, as &quot;3 of 120&quot;</extracomment>
        <translation>%1 من %2</translation>
    </message>
</context>
<context>
    <name>KirvAccountStatus</name>
    <message>
        <source>Connected</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Logging out…</source>
        <translation>يسجّل الخروج…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>يتصل…</translation>
    </message>
    <message>
        <source>Off line</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>Its plug-in is not loaded</source>
        <translation>ملحقته غير محمّلة</translation>
    </message>
    <message>
        <source>Waiting to connect…</source>
        <extracomment>other accounts connect first</extracomment>
        <translation>ينتظر الاتصال…</translation>
    </message>
    <message>
        <source>Waiting, next try in %1 s</source>
        <extracomment>%1 = number of seconds; keep it short</extracomment>
        <translation>ينتظر، المحاولة التالية بعد %1 ث</translation>
    </message>
    <message>
        <source>Waiting, next try in %1 min</source>
        <extracomment>%1 = number of minutes; keep it short</extracomment>
        <translation>ينتظر، المحاولة التالية بعد %1 د</translation>
    </message>
    <message>
        <source>Waiting, next try at %1</source>
        <extracomment>%1 = time of day</extracomment>
        <translation>ينتظر، المحاولة التالية في الساعة %1</translation>
    </message>
    <message>
        <source>main account</source>
        <translation>الحساب الرئيسي</translation>
    </message>
    <message>
        <source> · </source>
        <extracomment>between the parts of the line below the name of an account, as in &quot;Connected · Away · main account&quot;</extracomment>
        <translation> · </translation>
    </message>
    <message>
        <source>The account is logged out. It can be logged in with Reconnect.</source>
        <translation>سُجّل خروج الحساب. يمكن تسجيل دخوله بالأمر «أعد الاتصال».</translation>
    </message>
    <message>
        <source>The account does not log in. It can be enabled with its check box.</source>
        <translation>لا يسجّل الحساب الدخول. يمكن تفعيله بمربع اختياره.</translation>
    </message>
    <message>
        <source>The plug-in of the protocol %1 is not loaded. Load it on the Plug-ins page.</source>
        <translation>ملحقة البروتوكول %1 غير محمّلة. حمّلها من صفحة «الملحقات».</translation>
    </message>
    <message>
        <source>Other accounts connect first.</source>
        <translation>تتصل حسابات أخرى أولًا.</translation>
    </message>
    <message>
        <source>The next try is at %1.</source>
        <translation>المحاولة التالية في الساعة %1.</translation>
    </message>
    <message>
        <source>The presence is %1.</source>
        <translation>الحضور: %1.</translation>
    </message>
    <message>
        <source>Protection: %1.</source>
        <translation>الحماية: %1.</translation>
    </message>
    <message>
        <source>Since %1.</source>
        <extracomment>%1 = time of day, or date and time, since when a connection has been in its state</extracomment>
        <translation>منذ %1.</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>كلمة السر خاطئة</translation>
    </message>
    <message>
        <source>Password needed</source>
        <translation>كلمة السر مطلوبة</translation>
    </message>
    <message>
        <source>Server not found</source>
        <translation>لم يُعثر على الخادم</translation>
    </message>
    <message>
        <source>Server not reachable</source>
        <translation>لا يمكن الوصول إلى الخادم</translation>
    </message>
    <message>
        <source>No reply from the server</source>
        <translation>لا ردّ من الخادم</translation>
    </message>
    <message>
        <source>Certificate not trusted</source>
        <translation>الشهادة غير موثوق بها</translation>
    </message>
    <message>
        <source>Encryption not offered</source>
        <translation>الخادم لا يتيح التشفير</translation>
    </message>
    <message>
        <source>No usable log-in offered</source>
        <translation>لا تتاح طريقة دخول صالحة</translation>
    </message>
    <message>
        <source>Server not available</source>
        <translation>الخادم غير متاح</translation>
    </message>
    <message>
        <source>Connection lost</source>
        <translation>انقطع الاتصال</translation>
    </message>
    <message>
        <source>Connection closed by the server</source>
        <translation>أغلق الخادم الاتصال</translation>
    </message>
    <message>
        <source>Logged in elsewhere</source>
        <translation>سُجّل الدخول من مكان آخر</translation>
    </message>
    <message>
        <source>Name in use</source>
        <translation>الاسم مستعمل</translation>
    </message>
    <message>
        <source>Name not allowed</source>
        <translation>الاسم غير مسموح به</translation>
    </message>
    <message>
        <source>Proxy not reachable</source>
        <translation>لا يمكن الوصول إلى الوسيط</translation>
    </message>
    <message>
        <source>No reply from the proxy</source>
        <translation>لا ردّ من الوسيط</translation>
    </message>
    <message>
        <source>Log-in refused by the proxy</source>
        <translation>رفض الوسيط تسجيل الدخول</translation>
    </message>
    <message>
        <source>Denied by the proxy</source>
        <translation>رفض الوسيط الاتصال</translation>
    </message>
    <message>
        <source>Proxy failed</source>
        <translation>فشل الوسيط</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>رُفض الوصول</translation>
    </message>
    <message>
        <source>Settings cannot be used</source>
        <translation>الإعدادات غير صالحة للاستعمال</translation>
    </message>
    <message>
        <source>Not supported by the server</source>
        <translation>لا يدعمه الخادم</translation>
    </message>
    <message>
        <source>Log-in failed</source>
        <translation>فشل تسجيل الدخول</translation>
    </message>
    <message>
        <source>Enter the password again, or edit the account if the login is wrong.</source>
        <translation>أدخل كلمة السر من جديد، أو حرّر الحساب إذا كان اسم الدخول خاطئًا.</translation>
    </message>
    <message>
        <source>Enter the password.</source>
        <translation>أدخل كلمة السر.</translation>
    </message>
    <message>
        <source>Edit the account to change its settings.</source>
        <translation>حرّر الحساب لتغيير إعداداته.</translation>
    </message>
    <message>
        <source>It can be logged in here again with Reconnect.</source>
        <translation>يمكن تسجيل دخوله هنا من جديد بالأمر «أعد الاتصال».</translation>
    </message>
    <message>
        <source>It can be tried again with Reconnect.</source>
        <translation>يمكن تكرار المحاولة بالأمر «أعد الاتصال».</translation>
    </message>
    <message>
        <source>Look at it with Show Certificate.</source>
        <translation>افحصها بالأمر «اعرض الشهادة».</translation>
    </message>
    <message>
        <source>It is another one than the one that you have trusted.</source>
        <translation>هي غير الشهادة التي وثقت بها.</translation>
    </message>
</context>
<context>
    <name>KirvAccountStrip</name>
    <message>
        <source>Enter Password…</source>
        <translation>أدخل كلمة السر…</translation>
    </message>
    <message>
        <source>Takes another password and logs the account in with it.</source>
        <translation>يأخذ كلمة سر أخرى ويسجّل دخول الحساب بها.</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>أعد الاتصال</translation>
    </message>
    <message>
        <source>Logs the account out and in again.</source>
        <translation>يسجّل خروج الحساب ثم دخوله من جديد.</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>حرّر…</translation>
    </message>
    <message>
        <source>Change the account</source>
        <translation>غيّر الحساب</translation>
    </message>
    <message>
        <source>Reason of the state of the account</source>
        <translation>سبب حالة الحساب</translation>
    </message>
    <message>
        <source>No account is selected.</source>
        <translation>لم يُحدَّد أي حساب.</translation>
    </message>
    <message>
        <source>State of %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>حالة الحساب %1</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts are selected.</source>
        <translation>
            <numerusform>لم يُحدَّد أي حساب.</numerusform>
            <numerusform>حُدّد حساب واحد.</numerusform>
            <numerusform>حُدّد حسابان.</numerusform>
            <numerusform>حُدّدت %n حسابات.</numerusform>
            <numerusform>حُدّد %n حسابًا.</numerusform>
            <numerusform>حُدّد %n حساب.</numerusform>
        </translation>
    </message>
    <message>
        <source>They can be enabled, disabled and removed with the context menu.</source>
        <translation>يمكن تفعيلها وتعطيلها وإزالتها من قائمة السياق.</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Shows what happened to the account&apos;s connection.</source>
        <translation>يُظهر ما حدث لاتصال الحساب.</translation>
    </message>
    <message>
        <source>What Is Wrong?</source>
        <translation>ما المشكلة؟</translation>
    </message>
    <message>
        <source>Tries each step of the log-in with what is stored, beside the account&apos;s own connection.</source>
        <translation>يجرّب كل خطوة من تسجيل الدخول بالبيانات المحفوظة، إلى جانب اتصال الحساب نفسه.</translation>
    </message>
    <message>
        <source>Show Certificate…</source>
        <translation>اعرض الشهادة…</translation>
    </message>
    <message>
        <source>Shows the certificate of the server and asks whether it is trusted.</source>
        <translation>يُظهر شهادة الخادم ويسأل عن الوثوق بها.</translation>
    </message>
</context>
<context>
    <name>KirvAccountUndo</name>
    <message numerus="yes">
        <source>&amp;Undo Removing %n Accounts</source>
        <translation>
            <numerusform>ترا&amp;جع عن إزالة %n حساب</numerusform>
            <numerusform>ترا&amp;جع عن إزالة حساب واحد</numerusform>
            <numerusform>ترا&amp;جع عن إزالة حسابين</numerusform>
            <numerusform>ترا&amp;جع عن إزالة %n حسابات</numerusform>
            <numerusform>ترا&amp;جع عن إزالة %n حسابًا</numerusform>
            <numerusform>ترا&amp;جع عن إزالة %n حساب</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Disabling %n Accounts</source>
        <translation>
            <numerusform>ترا&amp;جع عن تعطيل %n حساب</numerusform>
            <numerusform>ترا&amp;جع عن تعطيل حساب واحد</numerusform>
            <numerusform>ترا&amp;جع عن تعطيل حسابين</numerusform>
            <numerusform>ترا&amp;جع عن تعطيل %n حسابات</numerusform>
            <numerusform>ترا&amp;جع عن تعطيل %n حسابًا</numerusform>
            <numerusform>ترا&amp;جع عن تعطيل %n حساب</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Undo Removing %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>ترا&amp;جع عن إزالة الحساب %1</translation>
    </message>
    <message>
        <source>&amp;Undo Disabling %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>ترا&amp;جع عن تعطيل الحساب %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>ترا&amp;جع</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were removed.</source>
        <translation>
            <numerusform>لم يُزَل أي حساب.</numerusform>
            <numerusform>أُزيل حساب واحد.</numerusform>
            <numerusform>أُزيل حسابان.</numerusform>
            <numerusform>أُزيلت %n حسابات.</numerusform>
            <numerusform>أُزيل %n حسابًا.</numerusform>
            <numerusform>أُزيل %n حساب.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were disabled.</source>
        <translation>
            <numerusform>لم يُعطَّل أي حساب.</numerusform>
            <numerusform>عُطّل حساب واحد.</numerusform>
            <numerusform>عُطّل حسابان.</numerusform>
            <numerusform>عُطّلت %n حسابات.</numerusform>
            <numerusform>عُطّل %n حسابًا.</numerusform>
            <numerusform>عُطّل %n حساب.</numerusform>
        </translation>
    </message>
    <message>
        <source>The account %1 (%2) was removed.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>أُزيل الحساب %1 (بروتوكول %2).</translation>
    </message>
    <message>
        <source>The account %1 (%2) was disabled.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>عُطّل الحساب %1 (بروتوكول %2).</translation>
    </message>
    <message>
        <source>&amp;Undo Importing %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>ترا&amp;جع عن استيراد الحساب %1</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Importing %n Accounts</source>
        <translation>
            <numerusform>ترا&amp;جع عن استيراد %n حساب</numerusform>
            <numerusform>ترا&amp;جع عن استيراد حساب واحد</numerusform>
            <numerusform>ترا&amp;جع عن استيراد حسابين</numerusform>
            <numerusform>ترا&amp;جع عن استيراد %n حسابات</numerusform>
            <numerusform>ترا&amp;جع عن استيراد %n حسابًا</numerusform>
            <numerusform>ترا&amp;جع عن استيراد %n حساب</numerusform>
        </translation>
    </message>
    <message>
        <source>The account %1 (%2) was imported.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>استُورد الحساب %1 (بروتوكول %2).</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were imported.</source>
        <translation>
            <numerusform>لم يُستورد أي حساب.</numerusform>
            <numerusform>استُورد حساب واحد.</numerusform>
            <numerusform>استُورد حسابان.</numerusform>
            <numerusform>استُوردت %n حسابات.</numerusform>
            <numerusform>استُورد %n حسابًا.</numerusform>
            <numerusform>استُورد %n حساب.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Import Again</source>
        <translation>ا&amp;ستيراد مرة أخرى</translation>
    </message>
    <message>
        <source>The import of the account %1 (%2) was undone.</source>
        <extracomment>%1 = name of an account, %2 = name of its protocol</extracomment>
        <translation>تم التراجع عن استيراد الحساب %1 (%2).</translation>
    </message>
    <message numerus="yes">
        <source>The import of %n accounts was undone.</source>
        <translation>
            <numerusform>لم يُتراجع عن استيراد أي حساب.</numerusform>
            <numerusform>تم التراجع عن استيراد حساب واحد.</numerusform>
            <numerusform>تم التراجع عن استيراد حسابين.</numerusform>
            <numerusform>تم التراجع عن استيراد %n حسابات.</numerusform>
            <numerusform>تم التراجع عن استيراد %n حسابًا.</numerusform>
            <numerusform>تم التراجع عن استيراد %n حساب.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvAccountsCommand</name>
    <message>
        <source>The profile in &quot;%1&quot; is open in another program, which does not take commands.</source>
        <translation>الملف الشخصي في «‎%1» مفتوح في برنامج آخر لا يقبل الأوامر.</translation>
    </message>
    <message>
        <source>There is no profile in &quot;%1&quot; yet.</source>
        <translation>لا يوجد ملف شخصي في «‎%1» بعد.</translation>
    </message>
    <message>
        <source>The program that runs with this profile does not respond.</source>
        <translation>البرنامج الذي يعمل بهذا الملف الشخصي لا يستجيب.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsOptions</name>
    <message>
        <source>Print one line of JSON.</source>
        <translation>يطبع سطرًا واحدًا بصيغة JSON.</translation>
    </message>
    <message>
        <source>Export: put passwords into the file, encrypted with a pass phrase.</source>
        <translation>التصدير: يضع كلمات السر في الملف مشفّرة بعبارة سر.</translation>
    </message>
    <message>
        <source>Export: overwrite a file that is there.</source>
        <translation>التصدير: يكتب فوق ملف موجود.</translation>
    </message>
    <message>
        <source>Import: leave out the passwords that are in the file.</source>
        <translation>الاستيراد: يستبعد كلمات السر التي في الملف.</translation>
    </message>
    <message>
        <source>Import: replace accounts that exist by those of the file.</source>
        <translation>الاستيراد: يستبدل بالحسابات الموجودة حسابات الملف.</translation>
    </message>
    <message>
        <source>Import: say what would be done, and change nothing.</source>
        <translation>الاستيراد: يبيّن ما كان سيُفعل، ولا يغيّر شيئًا.</translation>
    </message>
    <message>
        <source>Export and import: the pass phrase is the first line of &lt;file&gt;.</source>
        <translation>التصدير والاستيراد: عبارة السر هي السطر الأول من &lt;ملف&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>ملف</translation>
    </message>
    <message>
        <source>Export and import: the pass phrase is the first line that can be read from the file descriptor &lt;number&gt;.</source>
        <translation>التصدير والاستيراد: عبارة السر هي أول سطر يمكن قراءته من واصف الملف &lt;رقم&gt;.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>رقم</translation>
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
        <translation>يسرد الحسابات ويفعّلها ويعطّلها ويصدّرها ويستوردها.
يُذكر الحساب بالصيغة ‎PROTOCOL:ID، أو بمعرّفه وحده إذا لم يكن لحساب آخر المعرّف نفسه.

  ‎accounts list [حساب…]
  ‎accounts enable حساب…
  ‎accounts disable حساب…
  ‎accounts export ملف [حساب…]
  ‎accounts import ملف

العلامة «-» مكان اسم الملف تعني الخرج القياسي أو الدخل القياسي.</translation>
    </message>
    <message>
        <source>list, enable, disable, export or import.</source>
        <translation>أحد الأوامر list أو enable أو disable أو export أو import.</translation>
    </message>
    <message>
        <source>A file or an account.</source>
        <translation>ملف أو حساب.</translation>
    </message>
    <message>
        <source>[argument…]</source>
        <translation>[معامل…]</translation>
    </message>
    <message>
        <source>The command is missing: list, enable, disable, export or import.</source>
        <translation>لم يُذكر الأمر: list أو enable أو disable أو export أو import.</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; is not known: it can be list, enable, disable, export or import.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>الأمر «‎%1» غير معروف: يمكن أن يكون list أو enable أو disable أو export أو import.</translation>
    </message>
    <message>
        <source>The option --%1 does not belong to the command &quot;%2&quot;.</source>
        <extracomment>%1 = name of an option, %2 = name of a command</extracomment>
        <translation>الخيار ‎--%1 لا يخص الأمر «%2».</translation>
    </message>
    <message>
        <source>The file is missing.</source>
        <translation>لم يُذكر الملف.</translation>
    </message>
    <message>
        <source>The argument &quot;%1&quot; is not known.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>المعامل «‎%1» غير معروف.</translation>
    </message>
    <message>
        <source>The account is missing.</source>
        <translation>لم يُذكر الحساب.</translation>
    </message>
    <message>
        <source>The option --json cannot be used when the file goes to the standard output.</source>
        <translation>لا يمكن استعمال الخيار ‎--json عندما يُكتب الملف إلى الخرج القياسي.</translation>
    </message>
    <message>
        <source>A pass phrase is of no use when no passwords are exported or imported.</source>
        <translation>لا فائدة من عبارة سر إذا لم تُنقل كلمات السر.</translation>
    </message>
    <message>
        <source>The file with the pass phrase is missing.</source>
        <translation>لم يُذكر الملف الذي فيه عبارة السر.</translation>
    </message>
    <message>
        <source>The option --pass-phrase-fd needs the number of a file descriptor.</source>
        <translation>الخيار ‎--pass-phrase-fd يحتاج إلى رقم واصف ملف.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsPageCompanion</name>
    <message>
        <source>The plug-in of the protocol %1 is not loaded. Load it on the Plug-ins page.</source>
        <translation>ملحقة البروتوكول %1 غير محمّلة. حمّلها من صفحة «الملحقات».</translation>
    </message>
</context>
<context>
    <name>KirvAccountsService</name>
    <message>
        <source>The account is missing.</source>
        <translation>لم يُذكر الحساب.</translation>
    </message>
</context>
<context>
    <name>KirvAccountsText</name>
    <message>
        <source>There are no accounts.</source>
        <translation>لا توجد حسابات.</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>البروتوكول</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>المعرّف</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>الاسم المستعار</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>مفعّل</translation>
    </message>
    <message>
        <source>Main</source>
        <translation>رئيسي</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>no</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>%1 is enabled now.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>الحساب %1 مفعّل الآن.</translation>
    </message>
    <message>
        <source>%1 is disabled now.</source>
        <translation>الحساب %1 معطّل الآن.</translation>
    </message>
    <message>
        <source>%1 was enabled already.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>كان الحساب %1 مفعّلًا بالفعل.</translation>
    </message>
    <message>
        <source>%1 was disabled already.</source>
        <translation>كان الحساب %1 معطّلًا بالفعل.</translation>
    </message>
    <message>
        <source>Accounts exported: %1, with the passwords that are stored.</source>
        <extracomment>%1 = number</extracomment>
        <translation>الحسابات المصدّرة: %1، مع كلمات السر المحفوظة.</translation>
    </message>
    <message>
        <source>Accounts exported: %1, without passwords.</source>
        <translation>الحسابات المصدّرة: %1، بلا كلمات سر.</translation>
    </message>
    <message>
        <source>new</source>
        <translation>جديد</translation>
    </message>
    <message>
        <source>replaces %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>يحل محل %1</translation>
    </message>
    <message>
        <source>%1 is kept</source>
        <translation>يبقى %1 كما هو</translation>
    </message>
    <message>
        <source>Accounts that would be imported: %1. Nothing was changed.</source>
        <extracomment>%1 = number</extracomment>
        <translation>الحسابات التي كانت ستُستورد: %1. لم يُغيَّر شيء.</translation>
    </message>
    <message>
        <source>Accounts imported: %1.</source>
        <translation>الحسابات المستوردة: %1.</translation>
    </message>
</context>
<context>
    <name>KirvAddWindowCompanion</name>
    <message>
        <source>Add %1 Account</source>
        <extracomment>%1 = the name of a protocol</extracomment>
        <translation>إضافة حساب %1</translation>
    </message>
    <message>
        <source>Save Without a Password</source>
        <translation>احفظ بلا كلمة سر</translation>
    </message>
    <message>
        <source>The login is missing.</source>
        <translation>لم يُدخَل اسم الدخول.</translation>
    </message>
    <message>
        <source>The login and the password are missing.</source>
        <translation>لم يُدخَل اسم الدخول ولا كلمة السر.</translation>
    </message>
    <message>
        <source>The account can be used without a password.</source>
        <translation>يمكن استعمال الحساب بلا كلمة سر.</translation>
    </message>
    <message>
        <source>The password is missing.</source>
        <translation>لم تُدخَل كلمة السر.</translation>
    </message>
</context>
<context>
    <name>KirvAdvancedSection</name>
    <message>
        <source>, </source>
        <comment>between names of settings</comment>
        <translation>، </translation>
    </message>
    <message>
        <source>%1…</source>
        <extracomment>%1 = the names of the first settings</extracomment>
        <translation>%1…</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>متقدم</translation>
    </message>
</context>
<context>
    <name>KirvAliasEditor</name>
    <message>
        <source>Alias</source>
        <translation>الاسم المستعار</translation>
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
        <translation>تعذّر نسخ الصورة «‎%1» إلى الملف الشخصي: %2</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be written.</source>
        <translation>لا يمكن الكتابة في المجلد «‎%1».</translation>
    </message>
</context>
<context>
    <name>KirvAvatarQuickSetWidget</name>
    <message>
        <source>Picture of the account</source>
        <translation>صورة الحساب</translation>
    </message>
    <message>
        <source>Click to choose a picture, or drop or paste one here</source>
        <translation>انقر لاختيار صورة، أو أسقط صورة هنا أو ألصقها</translation>
    </message>
    <message>
        <source>&amp;Choose Picture…</source>
        <translation>ا&amp;ختر صورة…</translation>
    </message>
    <message>
        <source>&amp;Paste Picture</source>
        <translation>أل&amp;صق صورة</translation>
    </message>
    <message>
        <source>&amp;Remove Picture</source>
        <translation>أ&amp;زل الصورة</translation>
    </message>
    <message>
        <source>Choose Picture</source>
        <translation>اختيار صورة</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>الصور (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>كل الملفات (*)</translation>
    </message>
    <message>
        <source>The picture cannot be stored on this computer.</source>
        <translation>لا يمكن حفظ الصورة على هذا الحاسوب.</translation>
    </message>
    <message>
        <source>Picture of the Account</source>
        <translation>صورة الحساب</translation>
    </message>
</context>
<context>
    <name>KirvBoundedImage</name>
    <message>
        <source>The picture is too large: %1 × %2 pixels. Up to %3 million pixels are possible.</source>
        <translation>الصورة كبيرة جدًا: ‎%1 × %2 بكسل. الحد الأقصى %3 مليون بكسل.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is too large. Up to %2 MB are possible.</source>
        <translation>الملف «‎%1» كبير جدًا. الحد الأقصى %2 ميغابايت.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is not a picture that can be used. Pictures in the formats PNG, JPEG, GIF, BMP and WebP are possible.</source>
        <translation>الملف «‎%1» ليس صورة يمكن استعمالها. يمكن استعمال الصور بالأنساق PNG وJPEG وGIF وBMP وWebP.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read.</source>
        <translation>لا يمكن قراءة الملف «‎%1».</translation>
    </message>
    <message>
        <source>The picture in the file &quot;%1&quot; is damaged.</source>
        <translation>الصورة في الملف «‎%1» تالفة.</translation>
    </message>
    <message>
        <source>There is no picture that can be used.</source>
        <translation>لا توجد صورة يمكن استعمالها.</translation>
    </message>
</context>
<context>
    <name>KirvCertificateQuestion</name>
    <message>
        <source>Trusted Certificate</source>
        <extracomment>%1 = name of a server</extracomment>
        <translation>شهادة موثوق بها</translation>
    </message>
    <message>
        <source>Certificate of %1</source>
        <translation>شهادة الخادم %1</translation>
    </message>
    <message>
        <source>What is wrong with the certificate</source>
        <translation>ما المشكلة في الشهادة</translation>
    </message>
    <message>
        <source>Somebody between you and the server could read your password.</source>
        <translation>يمكن لشخص بينك وبين الخادم أن يقرأ كلمة السر.</translation>
    </message>
    <message>
        <source>You have chosen to trust this certificate for the account %1.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>اخترت الوثوق بهذه الشهادة للحساب %1.</translation>
    </message>
    <message>
        <source>The server shows another certificate than the one that you have trusted for the account %1.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>يقدّم الخادم شهادة غير الشهادة التي وثقت بها للحساب %1.</translation>
    </message>
    <message>
        <source>The certificate of the server of the account %1 is not trusted.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>شهادة خادم الحساب %1 غير موثوق بها.</translation>
    </message>
    <message>
        <source>Trusted so far</source>
        <extracomment>the fingerprint of the certificate that was trusted so far</extracomment>
        <translation>الموثوق بها حتى الآن</translation>
    </message>
    <message>
        <source>%1:</source>
        <extracomment>the caption of a line: %1 = what it is about</extracomment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>&amp;Trust for This Account</source>
        <translation>&amp;ثق بها لهذا الحساب</translation>
    </message>
    <message>
        <source>&amp;Stop Trusting</source>
        <translation>أو&amp;قف الوثوق بها</translation>
    </message>
    <message>
        <source>&amp;Do Not Connect</source>
        <translation>لا &amp;تتصل</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>أ&amp;غلق</translation>
    </message>
</context>
<context>
    <name>KirvClient</name>
    <message>
        <source>Accounts</source>
        <translation>الحسابات</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>الملحقات</translation>
    </message>
    <message>
        <source>There is no folder %1, so no protocol is available.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation>لا يوجد المجلد ‎%1، ولذلك لا يتاح أي بروتوكول.</translation>
    </message>
    <message>
        <source>The link cannot be opened: the protocol %1 is not available.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>لا يمكن فتح الرابط: البروتوكول %1 غير متاح.</translation>
    </message>
    <message>
        <source>%1 is the main account now, because %2 was removed.</source>
        <translation>أصبح %1 الحساب الرئيسي الآن، لأن %2 أُزيل.</translation>
    </message>
    <message>
        <source>%1 is the main account now, because %2 was disabled.</source>
        <translation>أصبح %1 الحساب الرئيسي الآن، لأن %2 عُطّل.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = name of an account, %2 = one or more sentences about it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>One password was moved to your keyring.</source>
        <translation>نُقلت كلمة سر واحدة إلى حلقة المفاتيح.</translation>
    </message>
    <message numerus="yes">
        <source>%n passwords were moved to your keyring.</source>
        <translation>
            <numerusform>لم تُنقل أي كلمة سر إلى حلقة المفاتيح.</numerusform>
            <numerusform>نُقلت كلمة سر واحدة إلى حلقة المفاتيح.</numerusform>
            <numerusform>نُقلت كلمتا سر إلى حلقة المفاتيح.</numerusform>
            <numerusform>نُقلت %n كلمات سر إلى حلقة المفاتيح.</numerusform>
            <numerusform>نُقلت %n كلمة سر إلى حلقة المفاتيح.</numerusform>
            <numerusform>نُقلت %n كلمة سر إلى حلقة المفاتيح.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n passwords were moved to your keyring, which is %1.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>
            <numerusform>لم تُنقل أي كلمة سر إلى حلقة المفاتيح %1.</numerusform>
            <numerusform>نُقلت كلمة سر واحدة إلى حلقة المفاتيح %1.</numerusform>
            <numerusform>نُقلت كلمتا سر إلى حلقة المفاتيح %1.</numerusform>
            <numerusform>نُقلت %n كلمات سر إلى حلقة المفاتيح %1.</numerusform>
            <numerusform>نُقلت %n كلمة سر إلى حلقة المفاتيح %1.</numerusform>
            <numerusform>نُقلت %n كلمة سر إلى حلقة المفاتيح %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>The link was not opened because another window waits for an answer. Close that, and open the link again.</source>
        <translation>لم يُفتح الرابط لأن نافذة أخرى تنتظر ردًا. أغلق تلك النافذة وافتح الرابط من جديد.</translation>
    </message>
    <message>
        <source>The link was not opened because it is too long.</source>
        <translation>لم يُفتح الرابط لأنه أطول من اللازم.</translation>
    </message>
</context>
<context>
    <name>KirvClientOptions</name>
    <message>
        <source>The option --%1 needs a folder.</source>
        <extracomment>%1 = name of an option</extracomment>
        <translation>الخيار ‎--%1 يحتاج إلى مجلد.</translation>
    </message>
    <message>
        <source>Say whether the profile is damaged, list its copies and end: with 0 when it can be used, 2 when it is damaged, and 1 when it cannot be used for another reason.</source>
        <translation>يبيّن إن كان الملف الشخصي تالفًا، ويسرد نسخه، ثم ينتهي: برمز 0 إذا كان استعماله ممكنًا، و2 إذا كان تالفًا، و1 إذا تعذّر استعماله لسبب آخر.</translation>
    </message>
    <message>
        <source>Put a copy in the place of the profile&apos;s database and end: the newest, or the one that is named. Passwords are in no copy.</source>
        <translation>يضع نسخة مكان قاعدة بيانات الملف الشخصي ثم ينتهي: النسخة الأحدث أو النسخة المذكورة. لا تحوي النسخ كلمات سر.</translation>
    </message>
    <message>
        <source>Read what is still readable of the profile&apos;s damaged database, keep that, and end.</source>
        <translation>يقرأ ما لا تزال قراءته ممكنة من قاعدة البيانات التالفة للملف الشخصي، ويحفظه، ثم ينتهي.</translation>
    </message>
    <message>
        <source>The copy to restore.</source>
        <translation>النسخة المراد استعادتها.</translation>
    </message>
    <message>
        <source>[copy]</source>
        <translation>[نسخة]</translation>
    </message>
    <message>
        <source>A link that begins with xmpp:, irc: or ircs: opens the window for a new account of that protocol.</source>
        <translation>الرابط الذي يبدأ بأحد المخططات xmpp أو irc أو ircs يفتح نافذة حساب جديد لذلك البروتوكول.</translation>
    </message>
    <message>
        <source>[link]</source>
        <translation>[رابط]</translation>
    </message>
    <message>
        <source>The options %1 and %2 cannot be used together.</source>
        <extracomment>%1, %2 = names of options</extracomment>
        <translation>لا يمكن استعمال الخيارين ‎%1 و‎%2 معًا.</translation>
    </message>
    <message>
        <source>The argument &quot;%1&quot; is not known.</source>
        <extracomment>%1 = a word of the command line</extracomment>
        <translation>المعامل «‎%1» غير معروف.</translation>
    </message>
    <message>
        <source>Keep accounts and settings in &lt;folder&gt; instead of the user&apos;s own profile.</source>
        <translation>يحفظ الحسابات والإعدادات في &lt;مجلد&gt; بدلًا من الملف الشخصي للمستخدم.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>مجلد</translation>
    </message>
    <message>
        <source>Load the protocol plug-ins of &lt;folder&gt;.</source>
        <translation>يحمّل ملحقات البروتوكولات من &lt;مجلد&gt;.</translation>
    </message>
    <message>
        <source>Accounts of several instant-messaging protocols in one place.
&quot;kirv accounts --help&quot; says how accounts are listed, enabled, disabled, exported and imported without windows.</source>
        <translation>حسابات عدة بروتوكولات للتراسل الفوري في مكان واحد.
يبيّن الأمر «‎kirv accounts --help» كيف تُسرد الحسابات وتُفعَّل وتُعطَّل وتُصدَّر وتُستورد بلا نوافذ.</translation>
    </message>
</context>
<context>
    <name>KirvCommandFile</name>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2</source>
        <extracomment>%1 = path of a file, %2 = what the system says</extracomment>
        <translation>لا يمكن قراءة الملف «‎%1»: %2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is too large to be a file of exported accounts.</source>
        <translation>الملف «‎%1» أكبر من أن يكون ملف حسابات.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file that can be overwritten.</source>
        <translation>المسار «‎%1» ليس ملفًا يمكن الكتابة فوقه.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists already. Use --force to overwrite it.</source>
        <translation>الملف «‎%1» موجود بالفعل. للكتابة فوقه استعمل الخيار ‎--force.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written.</source>
        <translation>لا يمكن كتابة الملف «‎%1».</translation>
    </message>
    <message>
        <source>The standard output cannot be written.</source>
        <translation>لا يمكن الكتابة إلى الخرج القياسي.</translation>
    </message>
</context>
<context>
    <name>KirvConnection</name>
    <message>
        <source>The account is not connected.</source>
        <translation>الحساب غير متصل.</translation>
    </message>
</context>
<context>
    <name>KirvDamagedProfile</name>
    <message>
        <source>The copy of %1 was restored. Accounts: %2.</source>
        <extracomment>%1 = date and time, %2 = number of accounts</extracomment>
        <translation>استُعيدت نسخة %1. عدد الحسابات: %2.</translation>
    </message>
    <message>
        <source>Passwords and other secret settings are in no copy and have to be entered again.</source>
        <translation>لا تحوي النسخ كلمات السر ولا الإعدادات السرية الأخرى، ويجب إدخالها من جديد.</translation>
    </message>
    <message>
        <source>Everything could be read.</source>
        <translation>أمكنت قراءة كل شيء.</translation>
    </message>
    <message>
        <source>Only a part could be read. Accounts or settings are missing.</source>
        <translation>لم يمكن إلا قراءة جزء. بعض الحسابات أو الإعدادات مفقودة.</translation>
    </message>
    <message>
        <source>Accounts: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>الحسابات: %1</translation>
    </message>
    <message>
        <source>Settings of accounts: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>إعدادات الحسابات: %1</translation>
    </message>
    <message>
        <source>Passwords and other secret settings: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>كلمات السر والإعدادات السرية الأخرى: %1</translation>
    </message>
    <message>
        <source>Settings of the program: %1</source>
        <extracomment>what was found in a damaged database; %1 = a number</extracomment>
        <translation>إعدادات البرنامج: %1</translation>
    </message>
    <message>
        <source>The profile has no accounts now.</source>
        <translation>ليس في الملف الشخصي حسابات الآن.</translation>
    </message>
    <message>
        <source>The database that was there is kept in &quot;%1&quot;, with the passwords in it. Delete it when it is no longer needed.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>حُفظت قاعدة البيانات السابقة في «‎%1»، وفيها كلمات السر. احذفها عندما لا تبقى حاجة إليها.</translation>
    </message>
</context>
<context>
    <name>KirvDatabase</name>
    <message>
        <source>The SQLite driver of Qt, which the profile needs, is not installed.</source>
        <translation>مشغّل SQLite الخاص بمكتبة Qt، الذي يحتاج إليه الملف الشخصي، غير مثبّت.</translation>
    </message>
    <message>
        <source>The profile is not open.</source>
        <translation>الملف الشخصي غير مفتوح.</translation>
    </message>
    <message>
        <source>There is no space left on the disk, so nothing was stored. Free some space and try again.</source>
        <translation>لم تبق مساحة على القرص، ولذلك لم يُحفظ شيء. أفرغ بعض المساحة وحاول من جديد.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; could not be read or written (%2). The disk may be full or faulty.</source>
        <translation>تعذّرت قراءة الملف الشخصي في «‎%1» أو الكتابة فيه (%2). ربما كان القرص ممتلئًا أو معطوبًا.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is damaged, so nothing was stored. Start the program again to see what can be done.</source>
        <translation>الملف الشخصي في «‎%1» تالف، ولذلك لم يُحفظ شيء. ابدأ البرنامج من جديد لترى ما يمكن فعله.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; cannot be written. Check its owner and permissions.</source>
        <translation>لا يمكن الكتابة في الملف الشخصي في «‎%1». تحقق من مالكه وأذوناته.</translation>
    </message>
    <message>
        <source>Another program is using the profile in &quot;%1&quot;.</source>
        <translation>يستعمل برنامج آخر الملف الشخصي في «‎%1».</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; could not be used: %2</source>
        <translation>تعذّر استعمال الملف الشخصي في «‎%1»: %2</translation>
    </message>
</context>
<context>
    <name>KirvDemo</name>
    <message>
        <source>No temporary folder for the profile can be made: %1</source>
        <translation>لا يمكن إنشاء مجلد مؤقت للملف الشخصي: %1</translation>
    </message>
    <message>
        <source>The demo needs the XMPP server Prosody (the package prosody), which did not start: %1</source>
        <translation>يحتاج العرض التجريبي إلى خادم XMPP المسمى Prosody (الحزمة prosody)، ولم يبدأ الخادم: %1</translation>
    </message>
    <message>
        <source>This is a try-out with a profile of its own; nothing is kept. A private XMPP server runs on this computer. Add an XMPP account, choose the configuration &quot;Server on this computer&quot; and type the login %1 and the password %2.</source>
        <translation>هذه تجربة لها ملف شخصي مستقل؛ لن يُحفظ شيء. يعمل على هذا الحاسوب خادم XMPP خاص. أضف حساب XMPP، واختر التهيئة «خادم على هذا الحاسوب»، واكتب اسم الدخول %1 وكلمة السر %2.</translation>
    </message>
    <message>
        <source>A private IRC server runs too: add an IRC account with the same configuration, with any nickname and any password.</source>
        <translation>يعمل خادم IRC خاص أيضًا: أضف حساب IRC بالتهيئة نفسها، وبأي لقب وأي كلمة سر.</translation>
    </message>
</context>
<context>
    <name>KirvDirectoryGuard</name>
    <message>
        <source>&amp;Fetch Again</source>
        <translation>ا&amp;جلب من جديد</translation>
    </message>
    <message>
        <source>Publishing the directory entry…</source>
        <translation>تُنشر مدخلة الدليل…</translation>
    </message>
    <message>
        <source>Requesting the directory entry…</source>
        <translation>تُطلب مدخلة الدليل…</translation>
    </message>
    <message>
        <source>The account must be connected before its directory entry can be read or changed.</source>
        <translation>يجب أن يكون الحساب متصلًا قبل قراءة مدخلته في الدليل أو تغييرها.</translation>
    </message>
    <message>
        <source>The directory entry is not known. Fetch it again to change it.</source>
        <translation>مدخلة الدليل غير معروفة. اجلبها من جديد لتغييرها.</translation>
    </message>
    <message>
        <source>Nothing was saved, because the entry cannot be published like this. Correct what is marked.</source>
        <translation>لم يُحفظ شيء، لأن المدخلة لا يمكن نشرها هكذا. صحّح ما هو معلَّم.</translation>
    </message>
    <message>
        <source>The account was saved, but its directory entry was not published, as the account is not connected. Save again when it is.</source>
        <translation>حُفظ الحساب، لكن لم تُنشر مدخلته في الدليل لأنه غير متصل. احفظ مرة أخرى عندما يتصل.</translation>
    </message>
</context>
<context>
    <name>KirvEditWindowCompanion</name>
    <message>
        <source>&amp;Server Account</source>
        <translation>الحساب على الخا&amp;دم</translation>
    </message>
    <message>
        <source>What can be done with the account on its server.</source>
        <translation>ما يمكن فعله بالحساب على خادمه.</translation>
    </message>
    <message>
        <source>Saving Account</source>
        <translation>حفظ الحساب</translation>
    </message>
    <message>
        <source>Nothing was changed. The window stays open, so that you can try again.</source>
        <translation>لم يُغيَّر شيء. تبقى النافذة مفتوحة، حتى يمكنك المحاولة من جديد.</translation>
    </message>
    <message>
        <source>Picture of the Account</source>
        <translation>صورة الحساب</translation>
    </message>
    <message>
        <source>The picture was not changed.</source>
        <translation>لم تُغيَّر الصورة.</translation>
    </message>
    <message>
        <source>None is stored</source>
        <translation>لا توجد كلمة سر محفوظة</translation>
    </message>
</context>
<context>
    <name>KirvExportWindow</name>
    <message>
        <source>Export Accounts</source>
        <translation>تصدير الحسابات</translation>
    </message>
    <message>
        <source>Include &amp;passwords (encrypted)</source>
        <translation>أدرج كلمات ال&amp;سر (مشفّرة)</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>النتيجة</translation>
    </message>
    <message>
        <source>Several words that are not related are easy to remember and hard to guess. Whoever has the file and guesses the pass phrase has your passwords; without it, nobody can read them, not even you.</source>
        <translation>عدة كلمات لا رابط بينها يسهل تذكّرها ويصعب تخمينها. من لديه الملف وخمّن عبارة السر حصل على كلمات السر التي فيه؛ ومن دونها لا يستطيع أحد قراءتها، ولا حتى أنت.</translation>
    </message>
    <message>
        <source>Pass p&amp;hrase:</source>
        <translation>&amp;عبارة السر:</translation>
    </message>
    <message>
        <source>&amp;Repeat pass phrase:</source>
        <translation>&amp;تأكيد العبارة:</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;صدّر…</translation>
    </message>
    <message>
        <source>Choose the file to which the accounts are written.</source>
        <translation>اختر الملف الذي تُكتب فيه الحسابات.</translation>
    </message>
    <message>
        <source>The two pass phrases must be the same.</source>
        <translation>يجب أن تتطابق عبارة السر وتأكيدها.</translation>
    </message>
    <message>
        <source>Exported accounts (*.json)</source>
        <translation>حسابات مصدّرة (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>كل الملفات (*)</translation>
    </message>
    <message>
        <source>The export was cancelled; nothing was written.</source>
        <translation>أُلغي التصدير؛ لم يُكتب شيء.</translation>
    </message>
    <message numerus="yes">
        <source>%n accounts were exported to %1.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>
            <numerusform>لم يُصدَّر أي حساب إلى ‎%1.</numerusform>
            <numerusform>صُدّر حساب واحد إلى ‎%1.</numerusform>
            <numerusform>صُدّر حسابان إلى ‎%1.</numerusform>
            <numerusform>صُدّرت %n حسابات إلى ‎%1.</numerusform>
            <numerusform>صُدّر %n حسابًا إلى ‎%1.</numerusform>
            <numerusform>صُدّر %n حساب إلى ‎%1.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file contains no passwords.</source>
        <translation>ليس في الملف كلمات سر.</translation>
    </message>
    <message>
        <source>The following is not in the file:</source>
        <translation>ما ليس في الملف:</translation>
    </message>
    <message>
        <source>The stored passwords are in it, encrypted with the pass phrase.</source>
        <translation>كلمات السر المخزنة موجودة فيه، مشفرة بعبارة السر.</translation>
    </message>
</context>
<context>
    <name>KirvFailure</name>
    <message>
        <source>The server did not accept the login or the password.</source>
        <translation>لم يقبل الخادم اسم الدخول أو كلمة السر.</translation>
    </message>
    <message>
        <source>A password is needed to log in, and none is known.</source>
        <translation>تلزم كلمة سر لتسجيل الدخول، ولا تُعرف أي كلمة سر.</translation>
    </message>
    <message>
        <source>The server could not be found. Check its name and your network connection.</source>
        <translation>لم يُعثر على الخادم. تحقق من اسمه ومن اتصالك بالشبكة.</translation>
    </message>
    <message>
        <source>The server does not accept connections. Check its name and port, or try again later.</source>
        <translation>لا يقبل الخادم الاتصالات. تحقق من اسمه ومنفذه، أو حاول من جديد لاحقًا.</translation>
    </message>
    <message>
        <source>The server did not answer in time.</source>
        <translation>لم يردّ الخادم في الوقت المناسب.</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted.</source>
        <translation>شهادة الخادم غير موثوق بها.</translation>
    </message>
    <message>
        <source>The account requires encryption, and the server does not offer it.</source>
        <translation>يتطلب الحساب التشفير، ولا يتيحه الخادم.</translation>
    </message>
    <message>
        <source>The server offers no way to log in that this account can use.</source>
        <translation>لا يتيح الخادم أي طريقة دخول يمكن لهذا الحساب استعمالها.</translation>
    </message>
    <message>
        <source>The server cannot log the account in at the moment.</source>
        <translation>لا يمكن للخادم تسجيل دخول الحساب حاليًا.</translation>
    </message>
    <message>
        <source>The connection to the server was lost.</source>
        <translation>انقطع الاتصال بالخادم.</translation>
    </message>
    <message>
        <source>The server closed the connection.</source>
        <translation>أغلق الخادم الاتصال.</translation>
    </message>
    <message>
        <source>Another client logged in to the account and took its place.</source>
        <translation>سجّل عميل آخر الدخول إلى الحساب وأخذ مكانه.</translation>
    </message>
    <message>
        <source>The name is already in use on the server.</source>
        <translation>الاسم مستعمل بالفعل على الخادم.</translation>
    </message>
    <message>
        <source>The server does not allow this name.</source>
        <translation>لا يسمح الخادم بهذا الاسم.</translation>
    </message>
    <message>
        <source>The proxy cannot be reached. Check its name and port and your network connection.</source>
        <translation>لا يمكن الوصول إلى الوسيط. تحقق من اسمه ومنفذه ومن اتصالك بالشبكة.</translation>
    </message>
    <message>
        <source>The proxy did not connect to the server in time.</source>
        <translation>لم يتصل الوسيط بالخادم في الوقت المناسب.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user or the password.</source>
        <translation>لم يقبل الوسيط المستخدم أو كلمة السر.</translation>
    </message>
    <message>
        <source>The proxy does not allow a connection to the server.</source>
        <translation>لا يسمح الوسيط بالاتصال بالخادم.</translation>
    </message>
    <message>
        <source>The connection through the proxy failed.</source>
        <translation>فشل الاتصال عبر الوسيط.</translation>
    </message>
    <message>
        <source>The system did not say in time which proxy to use, so no connection was made.</source>
        <translation>لم يحدد النظام في الوقت المناسب الوسيط الواجب استعماله، ولذلك لم يُجرَ أي اتصال.</translation>
    </message>
    <message>
        <source>The server denied access.</source>
        <translation>رفض الخادم الوصول.</translation>
    </message>
    <message>
        <source>The settings of the account cannot be used.</source>
        <translation>لا يمكن استعمال إعدادات الحساب.</translation>
    </message>
    <message>
        <source>The server does not offer what was requested.</source>
        <translation>لا يتيح الخادم ما طُلب.</translation>
    </message>
    <message>
        <source>The request failed.</source>
        <translation>فشل الطلب.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>حدث خطأ غير معروف.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; could not be found. Check its name and your network connection.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>لم يُعثر على الخادم «%1». تحقق من اسمه ومن اتصالك بالشبكة.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; does not accept connections. Check its name and port, or try again later.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>لا يقبل الخادم «%1» الاتصالات. تحقق من اسمه ومنفذه، أو حاول من جديد لاحقًا.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not answer in time.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>لم يردّ الخادم «%1» في الوقت المناسب.</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: %1</source>
        <extracomment>%1 is what is wrong with the certificate</extracomment>
        <translation>شهادة الخادم غير موثوق بها: %1</translation>
    </message>
    <message>
        <source>The server cannot log the account in at the moment: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>لا يمكن للخادم تسجيل دخول الحساب حاليًا: %1</translation>
    </message>
    <message>
        <source>The connection to the server was lost: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>انقطع الاتصال بالخادم: %1</translation>
    </message>
    <message>
        <source>The server closed the connection: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>أغلق الخادم الاتصال: %1</translation>
    </message>
    <message>
        <source>Another client logged in to the account and took its place: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>سجّل عميل آخر الدخول إلى الحساب وأخذ مكانه: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is already in use on the server.</source>
        <extracomment>%1 is the name of a user</extracomment>
        <translation>الاسم «%1» مستعمل بالفعل على الخادم.</translation>
    </message>
    <message>
        <source>The server does not allow the name &quot;%1&quot;.</source>
        <extracomment>%1 is the name of a user</extracomment>
        <translation>لا يسمح الخادم بالاسم «%1».</translation>
    </message>
    <message>
        <source>The server denied access: %1</source>
        <extracomment>%1 is what the server said</extracomment>
        <translation>رفض الخادم الوصول: %1</translation>
    </message>
    <message>
        <source>The settings of the account cannot be used: %1</source>
        <extracomment>%1 says which setting and what is wrong with it</extracomment>
        <translation>لا يمكن استعمال إعدادات الحساب: %1</translation>
    </message>
    <message>
        <source>The server does not offer what was requested: %1</source>
        <extracomment>%1 is what was requested</extracomment>
        <translation>لا يتيح الخادم ما طُلب: %1</translation>
    </message>
    <message>
        <source>The request failed: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>فشل الطلب: %1</translation>
    </message>
    <message>
        <source>An error occurred: %1</source>
        <extracomment>%1 is what the server or the network said</extracomment>
        <translation>حدث خطأ: %1</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its name and port and your network connection.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>لا يمكن الوصول إلى الوسيط %1. تحقق من اسمه ومنفذه ومن اتصالك بالشبكة.</translation>
    </message>
    <message>
        <source>The proxy %1 did not connect to the server in time.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>لم يتصل الوسيط %1 بالخادم في الوقت المناسب.</translation>
    </message>
    <message>
        <source>The proxy %1 did not accept the user or the password.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>لم يقبل الوسيط %1 المستخدم أو كلمة السر.</translation>
    </message>
    <message>
        <source>The proxy %1 does not allow a connection to the server.</source>
        <extracomment>%1 is the name and port of a proxy</extracomment>
        <translation>لا يسمح الوسيط %1 بالاتصال بالخادم.</translation>
    </message>
    <message>
        <source>The connection through the proxy failed: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>فشل الاتصال عبر الوسيط: %1</translation>
    </message>
    <message>
        <source>The connection ended before the server answered.</source>
        <translation>انتهى الاتصال قبل أن يردّ الخادم.</translation>
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
        <translation>نسق غير صالح.</translation>
    </message>
    <message>
        <source>Invalid format: %1</source>
        <translation>نسق غير صالح: %1</translation>
    </message>
    <message>
        <source>This must be filled in.</source>
        <translation>يجب ملء هذا الحقل.</translation>
    </message>
    <message>
        <source>This text is too long to be shown in full and to be changed here.</source>
        <translation>هذا النص أطول من أن يُعرض كله ويُغيَّر هنا.</translation>
    </message>
    <message>
        <source>This text is too long to be shown in full. It is kept as long as nothing is changed here.</source>
        <translation>هذا النص أطول من أن يُعرض كله. سيبقى كما هو ما دام لا يُغيَّر شيء هنا.</translation>
    </message>
    <message>
        <source>This must be a whole number from %1 to %2.</source>
        <translation>يجب أن يكون هذا عددًا صحيحًا من %1 إلى %2.</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>مطلوب</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>لم يُختر شيء</translation>
    </message>
</context>
<context>
    <name>KirvFileButton</name>
    <message>
        <source>Choose…</source>
        <translation>اختر…</translation>
    </message>
    <message>
        <source>Choose the file.</source>
        <translation>اختر الملف.</translation>
    </message>
    <message>
        <source>Choose the file for %1</source>
        <extracomment>%1 = what the file is, as &quot;Trusted certificate&quot;</extracomment>
        <translation>اختر الملف للحقل «%1»</translation>
    </message>
    <message>
        <source>Certificates and keys (*.pem *.crt *.cer *.key)</source>
        <translation>الشهادات والمفاتيح (*.pem *.crt *.cer *.key)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>كل الملفات (*)</translation>
    </message>
</context>
<context>
    <name>KirvGeneralPage</name>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>&amp;Language of the program:</source>
        <translation>&amp;لغة البرنامج:</translation>
    </message>
    <message>
        <source>As the system (%1)</source>
        <extracomment>entry of a list of languages; %1 = the language of the system in its own words, as &quot;Deutsch&quot;</extracomment>
        <translation>لغة النظام (%1)</translation>
    </message>
    <message>
        <source>No native speaker has read these texts yet.</source>
        <translation>لم يقرأ هذه النصوص بعدُ أي متحدث أصلي باللغة.</translation>
    </message>
    <message>
        <source>The language changes when the open windows are closed.</source>
        <translation>تتغير اللغة عند إغلاق النوافذ المفتوحة.</translation>
    </message>
    <message>
        <source>Passwords</source>
        <translation>كلمات السر</translation>
    </message>
    <message>
        <source>&amp;Unlock…</source>
        <translation>افتح ال&amp;قفل…</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>الملف الشخصي</translation>
    </message>
    <message>
        <source>Your accounts and settings are in the folder %1.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation>حساباتك وإعداداتك في المجلد ‎%1.</translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation>افتح ال&amp;مجلد</translation>
    </message>
    <message>
        <source>Shows the folder in the file manager.</source>
        <translation>يُظهر المجلد في مدير الملفات.</translation>
    </message>
    <message>
        <source>Copies of the profile</source>
        <translation>نسخ الملف الشخصي</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>الحسابات</translation>
    </message>
    <message>
        <source>There are no copies of the profile yet.</source>
        <translation>لا توجد نسخ من الملف الشخصي بعد.</translation>
    </message>
    <message>
        <source>Copies of the profile, without passwords; one can be restored when the profile is damaged:</source>
        <translation>نسخ الملف الشخصي، بلا كلمات سر؛ يمكن استعادة إحداها عندما يكون الملف الشخصي تالفًا:</translation>
    </message>
    <message>
        <source>&amp;Export Accounts…</source>
        <translation>&amp;صدّر الحسابات…</translation>
    </message>
    <message>
        <source>Writes accounts to a file that can be imported on another computer.</source>
        <translation>يكتب الحسابات في ملف يمكن استيراده على حاسوب آخر.</translation>
    </message>
    <message>
        <source>&amp;Import Accounts…</source>
        <translation>ا&amp;ستورد الحسابات…</translation>
    </message>
    <message>
        <source>Takes accounts over from such a file, or from Pidgin.</source>
        <translation>ينقل الحسابات من ملف كهذا أو من Pidgin.</translation>
    </message>
    <message>
        <source>The keyring asks you to unlock it. Then the passwords that accounts wait for are read, and those that are in a file are moved.</source>
        <translation>تطلب منك حلقة المفاتيح فتح قفلها. عندئذٍ تُقرأ كلمات السر التي تنتظرها الحسابات، وتُنقل تلك الموجودة في ملف.</translation>
    </message>
</context>
<context>
    <name>KirvImportWindow</name>
    <message>
        <source>Import Accounts</source>
        <translation>استيراد الحسابات</translation>
    </message>
    <message>
        <source>About the file</source>
        <translation>عن الملف</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>ما سيحدث</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>مشكلة</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>المستبعَد</translation>
    </message>
    <message>
        <source>&amp;Pass phrase:</source>
        <translation>&amp;عبارة السر:</translation>
    </message>
    <message>
        <source>Choose Another &amp;File…</source>
        <translation>اختر &amp;ملفًا آخر…</translation>
    </message>
    <message>
        <source>&amp;Without Passwords</source>
        <translation>&amp;بلا كلمات السر</translation>
    </message>
    <message>
        <source>Lists the accounts; their passwords have to be entered here.</source>
        <translation>يسرد الحسابات؛ يجب إدخال كلمات سرها هنا.</translation>
    </message>
    <message>
        <source>Exported accounts, accounts of Pidgin (*.json *.xml)</source>
        <translation>حسابات مصدّرة، حسابات Pidgin (*.json *.xml)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>كل الملفات (*)</translation>
    </message>
    <message>
        <source>The file %1 is being read…</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>يُقرأ الملف ‎%1…</translation>
    </message>
    <message>
        <source>The file %1 contains passwords. Enter the pass phrase with which they are encrypted.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>في الملف ‎%1 كلمات سر. أدخل عبارة السر التي شُفّرت بها.</translation>
    </message>
    <message>
        <source>The accounts in the file %1 cannot be imported.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>لا يمكن استيراد الحسابات التي في الملف ‎%1.</translation>
    </message>
    <message>
        <source>The file %1 contains no accounts that can be imported.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>لا توجد حسابات يمكن استيرادها في الملف ‎%1.</translation>
    </message>
    <message>
        <source>The file %1 contains these accounts. Nothing is changed before you import them, and the import can be undone.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>هذه هي الحسابات التي في الملف ‎%1. لا يُغيَّر شيء قبل أن تستوردها، ويمكن التراجع عن الاستيراد.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;تابع</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Import %n Accounts</source>
        <translation>
            <numerusform>ا&amp;ستورد %n حساب</numerusform>
            <numerusform>ا&amp;ستورد حسابًا واحدًا</numerusform>
            <numerusform>ا&amp;ستورد حسابين</numerusform>
            <numerusform>ا&amp;ستورد %n حسابات</numerusform>
            <numerusform>ا&amp;ستورد %n حسابًا</numerusform>
            <numerusform>ا&amp;ستورد %n حساب</numerusform>
        </translation>
    </message>
    <message>
        <source>New</source>
        <translation>جديد</translation>
    </message>
    <message>
        <source>New, will be left out</source>
        <translation>جديد، سيُستبعد</translation>
    </message>
    <message>
        <source>Exists, will be replaced</source>
        <translation>موجود هنا، سيُستبدل</translation>
    </message>
    <message>
        <source>Exists, will be kept</source>
        <translation>موجود هنا، سيبقى كما هو</translation>
    </message>
    <message>
        <source>Exists as %1, will be replaced</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>موجود هنا باسم %1، سيُستبدل</translation>
    </message>
    <message>
        <source>Exists as %1, will be kept</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>موجود هنا باسم %1، سيبقى كما هو</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = the login of an account, %2 = a sentence about it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The following is not imported:</source>
        <translation>ما لن يُستورد:</translation>
    </message>
    <message>
        <source>Exists, will be replaced; its passwords must be entered again</source>
        <translation>موجود هنا، سيُستبدل؛ ويجب إدخال كلمات سره من جديد</translation>
    </message>
    <message>
        <source>Exists as %1, will be replaced; its passwords must be entered again</source>
        <extracomment>%1 = the login of an account, which is written otherwise in the file</extracomment>
        <translation>موجود هنا باسم %1، سيُستبدل؛ ويجب إدخال كلمات سره من جديد</translation>
    </message>
</context>
<context>
    <name>KirvInstanceMessage</name>
    <message>
        <source>The program that runs with this profile has another version. Quit it, and try again.</source>
        <translation>البرنامج الذي يعمل بهذا الملف الشخصي من إصدار آخر. أنهِه وحاول من جديد.</translation>
    </message>
    <message>
        <source>The message of the other program cannot be read.</source>
        <translation>تعذّرت قراءة رسالة البرنامج الآخر.</translation>
    </message>
    <message>
        <source>The program that runs with this profile does not have that command.</source>
        <translation>البرنامج الذي يعمل بهذا الملف الشخصي لا يعرف هذا الأمر.</translation>
    </message>
</context>
<context>
    <name>KirvIrcConnection</name>
    <message>
        <source>The server sent a line that is longer than lines can be.</source>
        <translation>أرسل الخادم سطرًا أطول من المسموح به.</translation>
    </message>
    <message>
        <source>There is no certificate in the file &quot;%1&quot;.</source>
        <translation>لا توجد شهادة في الملف «‎%1».</translation>
    </message>
    <message>
        <source>There is no private key that can be used in the file &quot;%1&quot;.</source>
        <translation>لا يوجد مفتاح خاص يمكن استعماله في الملف «‎%1».</translation>
    </message>
    <message>
        <source>Other users of this computer can read or change the key file &quot;%1&quot;. Only its owner should.</source>
        <translation>يمكن لمستخدمين آخرين لهذا الحاسوب قراءة ملف المفتاح «‎%1» أو تغييره. يجب ألا يمكن ذلك إلا لمالكه.</translation>
    </message>
    <message>
        <source>It does not offer SASL now, as it did before.</source>
        <translation>لا يتيح الخادم SASL الآن كما كان يتيحه من قبل.</translation>
    </message>
    <message>
        <source>The nick &quot;%1&quot; could not be had; you are &quot;%2&quot; on this server now.</source>
        <translation>تعذّر الحصول على اللقب «%1»؛ لقبك على هذا الخادم الآن «%2».</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>%1 is what a server says first, as &quot;You are banned&quot;, %2 what it says when it closes the connection</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>password of the server</source>
        <translation>كلمة سر الخادم</translation>
    </message>
    <message>
        <source>no password</source>
        <translation>بلا كلمة سر</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is the encryption, as &quot;TLSv1.3&quot;, %2 how the user has proved who he is, as &quot;SASL PLAIN&quot;</extracomment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>not encrypted</source>
        <translation>بلا تشفير</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>بعيد</translation>
    </message>
    <message>
        <source>The server does not answer any more.</source>
        <translation>لم يعد الخادم يردّ.</translation>
    </message>
</context>
<context>
    <name>KirvIrcProtocol</name>
    <message>
        <source>Internet Relay Chat: conversations in channels of a network of servers.</source>
        <translation>بروتوكول Internet Relay Chat: محادثات في قنوات شبكة من الخوادم.</translation>
    </message>
    <message>
        <source>anna, or anna@irc.example.org</source>
        <translation>anna أو anna@irc.example.org</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>متاح</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>بعيد</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>غير متصل</translation>
    </message>
</context>
<context>
    <name>KirvIrcSasl</name>
    <message>
        <source>The password is longer than the server accepts.</source>
        <translation>كلمة السر أطول مما يقبله الخادم.</translation>
    </message>
    <message>
        <source>It has ended SASL before it was done.</source>
        <translation>أنهى الخادم SASL قبل اكتماله.</translation>
    </message>
    <message>
        <source>The client certificate is not known there.</source>
        <translation>شهادة العميل غير معروفة هناك.</translation>
    </message>
</context>
<context>
    <name>KirvIrcSettings</name>
    <message>
        <source>&quot;%1&quot; cannot be a nick.</source>
        <translation>لا يمكن أن يكون «%1» لقبًا.</translation>
    </message>
    <message>
        <source>No server is given.</source>
        <translation>لم يُذكر خادم.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a server.</source>
        <translation>ليس «%1» اسم خادم.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>يجب أن يكون المنفذ رقمًا من 1 إلى 65535.</translation>
    </message>
    <message>
        <source>There is a key of a client certificate, but no client certificate.</source>
        <translation>هناك مفتاح لشهادة عميل، لكن لا توجد شهادة عميل.</translation>
    </message>
    <message>
        <source>A client certificate can be used with encryption only.</source>
        <translation>لا يمكن استعمال شهادة العميل إلا مع التشفير.</translation>
    </message>
    <message>
        <source>The password cannot be sent: it is too long or has characters that do not belong to a line.</source>
        <translation>لا يمكن إرسال كلمة السر: إما أنها طويلة جدًا أو فيها محارف لا يصح ورودها في سطر.</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>الخادم</translation>
    </message>
    <message>
        <source>The name or address of the server. When it is empty, the part of the login after the @ is the server.</source>
        <translation>اسم الخادم أو عنوانه. إذا تُرك فارغًا فالخادم هو جزء اسم الدخول بعد العلامة @.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>المنفذ</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>التشفير</translation>
    </message>
    <message>
        <source>Required (TLS)</source>
        <translation>مطلوب (TLS)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>With encryption the server must also prove who it is. Without, everybody on the way can read along.</source>
        <translation>مع التشفير يجب على الخادم أيضًا أن يثبت هويته. ومن دونه يمكن لأي أحد في الطريق قراءة ما يُرسل.</translation>
    </message>
    <message>
        <source>Trusted certificate</source>
        <translation>الشهادة الموثوق بها</translation>
    </message>
    <message>
        <source>The path of a file with a certificate (PEM) to trust besides those that this computer trusts already.</source>
        <translation>مسار ملف فيه شهادة (PEM) يوثق بها إلى جانب الشهادات التي يثق بها هذا الحاسوب بالفعل.</translation>
    </message>
    <message>
        <source>Use of the password</source>
        <translation>استعمال كلمة السر</translation>
    </message>
    <message>
        <source>Not used</source>
        <translation>لا تُستعمل</translation>
    </message>
    <message>
        <source>Password of the server</source>
        <translation>كلمة سر الخادم</translation>
    </message>
    <message>
        <source>Password of a registered nick (SASL)</source>
        <translation>كلمة سر لقب مسجّل (SASL)</translation>
    </message>
    <message>
        <source>What the account&apos;s password is for. Most networks need none, unless you have registered your nick there.</source>
        <translation>الغرض من كلمة سر الحساب. لا تحتاج أغلب الشبكات إلى كلمة سر، إلا إذا كنت قد سجّلت لقبك فيها.</translation>
    </message>
    <message>
        <source>SASL user</source>
        <translation>مستخدم SASL</translation>
    </message>
    <message>
        <source>The name under which the nick is registered. Empty: the nick itself.</source>
        <translation>الاسم الذي سُجّل اللقب به. فارغ: اللقب نفسه.</translation>
    </message>
    <message>
        <source>Real name</source>
        <translation>الاسم الحقيقي</translation>
    </message>
    <message>
        <source>What others see as your name when they ask for it. Empty: the nick.</source>
        <translation>ما يراه الآخرون اسمًا لك عندما يسألون عنه. فارغ: اللقب.</translation>
    </message>
    <message>
        <source>Alternative nicks</source>
        <translation>ألقاب بديلة</translation>
    </message>
    <message>
        <source>Nicks to try when yours is in use, separated by commas.</source>
        <translation>ألقاب تُجرَّب عندما يكون لقبك مستعملًا، تفصل بينها فواصل.</translation>
    </message>
    <message>
        <source>Client certificate</source>
        <translation>شهادة العميل</translation>
    </message>
    <message>
        <source>The path of a file with a certificate of your own (PEM), to log in with instead of the password (SASL EXTERNAL). Empty: none.</source>
        <translation>مسار ملف فيه شهادة خاصة بك (PEM) لتسجيل الدخول بها بدلًا من كلمة السر (SASL EXTERNAL). فارغ: لا شهادة.</translation>
    </message>
    <message>
        <source>Key of the client certificate</source>
        <translation>مفتاح شهادة العميل</translation>
    </message>
    <message>
        <source>The path of the file with the certificate&apos;s private key (PEM, without a password). Empty: it is in the certificate&apos;s file.</source>
        <translation>مسار الملف الذي فيه المفتاح الخاص للشهادة (PEM، بلا كلمة سر). فارغ: المفتاح في ملف الشهادة.</translation>
    </message>
    <message>
        <source>Server on this computer</source>
        <translation>خادم على هذا الحاسوب</translation>
    </message>
    <message>
        <source>A nickname contains no blanks.</source>
        <translation>لا يمكن أن يحوي اللقب مسافات.</translation>
    </message>
    <message>
        <source>The nickname is missing.</source>
        <translation>لم يُدخَل اللقب.</translation>
    </message>
    <message>
        <source>A nickname starts with a letter.</source>
        <translation>يجب أن يبدأ اللقب بحرف.</translation>
    </message>
    <message>
        <source>A nickname consists of unaccented letters, digits and the characters %1.</source>
        <translation>لا يتكون اللقب إلا من حروف لاتينية بلا علامات، ومن أرقام، ومن المحارف ‎%1‎.</translation>
    </message>
    <message>
        <source>The server after the &quot;@&quot; is missing.</source>
        <translation>لم يُذكر الخادم بعد العلامة «@».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address of a server.</source>
        <translation>ليس «%1» عنوان خادم.</translation>
    </message>
    <message>
        <source>Usually 6697 with encryption and 6667 without. When the server is empty, a port in the login, as in ann@irc.example.org:6667, is used instead.</source>
        <translation>عادةً 6697 مع التشفير و6667 من دونه. وعندما يكون الخادم فارغًا يُستعمل بدلاً من ذلك المنفذ المذكور في اسم الدخول، كما في ann@irc.example.org:6667.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutCatalog</name>
    <message>
        <source>&quot;%1&quot; is a %2, but must be a %3.</source>
        <translation>العنصر «%1» من الصنف %2، ويجب أن يكون من الصنف %3.</translation>
    </message>
    <message>
        <source>There is no %1 named &quot;%2&quot;.</source>
        <translation>لا يوجد عنصر من الصنف %1 اسمه «%2».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no standard button %2.</source>
        <translation>ليس للعنصر «%1» الزر القياسي %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs two tabs: the account and its directory entry.</source>
        <translation>يحتاج العنصر «%1» إلى لسانين: الحساب ومدخلته في الدليل.</translation>
    </message>
    <message>
        <source>The layout file %1 cannot be used; the built-in layout takes its place.
%2</source>
        <translation>لا يمكن استعمال ملف التخطيط ‎%1؛ يحل التخطيط المضمّن محله.
%2</translation>
    </message>
    <message>
        <source>The window is a %1, but must be a %2.</source>
        <translation>النافذة من الصنف %1، ويجب أن تكون من الصنف %2.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutCheck</name>
    <message>
        <source>It declares a document type, which a layout cannot have.</source>
        <translation>يعلن الملف نوع مستند، وهو ما لا يُسمح به في التخطيط.</translation>
    </message>
    <message>
        <source>It is not a window layout of Qt Designer.</source>
        <translation>الملف ليس تخطيط نافذة من Qt Designer.</translation>
    </message>
    <message>
        <source>Its elements are nested too deeply.</source>
        <translation>عناصر الملف متداخلة بعمق زائد.</translation>
    </message>
    <message>
        <source>It has too many widgets.</source>
        <translation>في الملف عناصر واجهة أكثر مما ينبغي.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>السطر %1: %2</translation>
    </message>
    <message>
        <source>It connects widgets with each other, which only the program does.</source>
        <translation>يربط الملف عناصر واجهة بعضها ببعض، ولا يفعل ذلك إلا البرنامج.</translation>
    </message>
    <message>
        <source>It has an element &quot;%1&quot;, which a layout cannot have.</source>
        <translation>في الملف العنصر «%1»، ولا يُسمح به في التخطيط.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of an icon.</source>
        <translation>ليس «‎%1» اسم أيقونة.</translation>
    </message>
    <message>
        <source>It has an attribute &quot;%1&quot;, which a layout cannot have.</source>
        <translation>في الملف السمة «%1»، ولا يُسمح بها في التخطيط.</translation>
    </message>
    <message>
        <source>It has an attribute that is too long.</source>
        <translation>في الملف سمة طويلة جدًا.</translation>
    </message>
    <message>
        <source>It has a row or column that is out of bounds: %1.</source>
        <translation>في الملف صف أو عمود خارج الحدود: %1.</translation>
    </message>
    <message>
        <source>It has a number that is out of bounds: %1 (%2).</source>
        <translation>في الملف عدد خارج الحدود: %1 (%2).</translation>
    </message>
    <message>
        <source>It has a text that can be read in more than one way: &quot;%1&quot;.</source>
        <translation>في الملف نص يمكن أن يُقرأ بأكثر من طريقة: «%1».</translation>
    </message>
    <message>
        <source>It has a text of the format &quot;%1&quot;, which a layout cannot have.</source>
        <translation>في الملف نص بالنسق «%1»، ولا يُسمح به في التخطيط.</translation>
    </message>
    <message>
        <source>It sets &quot;%1&quot; to a text, which a layout cannot do.</source>
        <translation>يضبط الملف «%1» على نص، وهو ما لا يُسمح به في التخطيط.</translation>
    </message>
    <message>
        <source>Its style sheet contains &quot;%1&quot;, which a layout cannot have.</source>
        <translation>تحوي ورقة الأنماط في الملف «%1»، ولا يُسمح بذلك في التخطيط.</translation>
    </message>
    <message>
        <source>Style sheets and rich texts name pictures by their whole path, &quot;%1&quot; does not.</source>
        <translation>تذكر أوراق الأنماط والنصوص المنسقة الصور بمسارها الكامل، وليس «‎%1» كذلك.</translation>
    </message>
    <message>
        <source>It has a rich text that is too large.</source>
        <translation>في الملف نص منسق كبير جدًا.</translation>
    </message>
    <message>
        <source>There is no picture &quot;%1&quot;.</source>
        <translation>لا توجد الصورة «‎%1».</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; is not in the folder of the layout.</source>
        <translation>الصورة «‎%1» ليست في مجلد التخطيط.</translation>
    </message>
    <message>
        <source>It uses the unknown class %1.</source>
        <translation>يطلب الملف عنصر واجهة من الصنف المجهول %1.</translation>
    </message>
</context>
<context>
    <name>KirvLayoutFile</name>
    <message>
        <source>It uses the unknown class %1.</source>
        <translation>يطلب الملف عنصر واجهة من الصنف المجهول %1.</translation>
    </message>
    <message>
        <source>It is not a window layout: %1</source>
        <translation>الملف ليس تخطيط نافذة: %1</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>الملف ليس ملفًا عاديًا.</translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>لا يمكن قراءة الملف: %1</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>الملف فارغ.</translation>
    </message>
    <message>
        <source>It is larger than %1 kB.</source>
        <translation>الملف أكبر من %1 كيلوبايت.</translation>
    </message>
</context>
<context>
    <name>KirvLeftOut</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ولا حسابات أخرى</numerusform>
            <numerusform>وحساب واحد آخر</numerusform>
            <numerusform>وحسابان آخران</numerusform>
            <numerusform>و%n حسابات أخرى</numerusform>
            <numerusform>و%n حسابًا آخر</numerusform>
            <numerusform>و%n حساب آخر</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvLengthLimit</name>
    <message>
        <source>The text is too long here. At most %1 characters are kept.</source>
        <translation>النص طويل جدًا هنا. يُحتفظ بما لا يزيد على %1 من المحارف.</translation>
    </message>
</context>
<context>
    <name>KirvLoginLine</name>
    <message>
        <source>A login cannot contain this.</source>
        <translation>لا يمكن أن يحوي اسم الدخول هذا.</translation>
    </message>
</context>
<context>
    <name>KirvLoginStep</name>
    <message>
        <source>Name look-up</source>
        <translation>البحث عن الاسم</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>التشفير</translation>
    </message>
    <message>
        <source>Log-in</source>
        <translation>تسجيل الدخول</translation>
    </message>
</context>
<context>
    <name>KirvLoginTest</name>
    <message>
        <source>The plug-in gives no connection.</source>
        <translation>لا توفّر الملحقة اتصالًا.</translation>
    </message>
    <message>
        <source>The log-in works.</source>
        <translation>تسجيل الدخول يعمل.</translation>
    </message>
    <message>
        <source>The test was cancelled.</source>
        <translation>أُلغي الاختبار.</translation>
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
        <translation>قيد التنفيذ</translation>
    </message>
    <message>
        <source>done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>فشل</translation>
    </message>
    <message>
        <source>Test of a log-in, %1</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>اختبار تسجيل الدخول، ‎%1</translation>
    </message>
    <message>
        <source>[%1] %2 (%3 ms)</source>
        <extracomment>%1 = &quot;done&quot; or &quot;failed&quot;, %2 = a step of a log-in, %3 = number of milliseconds</extracomment>
        <translation>[%1] %2 (%3 م.ث)</translation>
    </message>
</context>
<context>
    <name>KirvLoginTestDialog</name>
    <message>
        <source>Log-In of %1</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>تسجيل دخول الحساب %1</translation>
    </message>
</context>
<context>
    <name>KirvLoginTestView</name>
    <message>
        <source>Copy Report</source>
        <translation>انسخ التقرير</translation>
    </message>
    <message>
        <source>Steps of the log-in</source>
        <translation>خطوات تسجيل الدخول</translation>
    </message>
    <message>
        <source>Copies the steps and the versions of the program, without the password.</source>
        <translation>ينسخ الخطوات وإصدارات البرنامج، بلا كلمة السر.</translation>
    </message>
    <message>
        <source>Test Log-In</source>
        <translation>اختبر تسجيل الدخول</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>%1 = number of milliseconds</extracomment>
        <translation>%1 م.ث</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 = what became of a step (&quot;done&quot;, &quot;failed&quot;), %2 = the step</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 = a step and what became of it, %2 = how long it took</extracomment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>Cancel Test</source>
        <translation>ألغِ الاختبار</translation>
    </message>
    <message>
        <source>Test Again</source>
        <translation>اختبر من جديد</translation>
    </message>
    <message>
        <source>Logs in once with what is here, and shows each step. Nothing is stored.</source>
        <translation>يسجّل الدخول مرة واحدة بالبيانات الموجودة هنا، ويُظهر كل خطوة. لا يُحفظ شيء.</translation>
    </message>
</context>
<context>
    <name>KirvMainAccountSelector</name>
    <message>
        <source>%1 (its plug-in is not loaded)</source>
        <extracomment>%1 = name of the main account</extracomment>
        <translation>%1 (ملحقته غير محمّلة)</translation>
    </message>
</context>
<context>
    <name>KirvMessageBar</name>
    <message>
        <source>Messages</source>
        <translation>الرسائل</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>مشكلة</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>معلومة</translation>
    </message>
    <message>
        <source>Close this message.</source>
        <translation>أغلق هذه الرسالة.</translation>
    </message>
    <message>
        <source>Close This Message</source>
        <translation>أغلق هذه الرسالة</translation>
    </message>
</context>
<context>
    <name>KirvMoveDialog</name>
    <message>
        <source>Progress</source>
        <translation>التقدّم</translation>
    </message>
</context>
<context>
    <name>KirvMovingCommands</name>
    <message>
        <source>Passwords of the account &quot;%1&quot; are left out: the keyring is locked.</source>
        <extracomment>%1 = name of an account, as XMPP:anna@example.org</extracomment>
        <translation>استُبعدت كلمات سر الحساب «%1»: حلقة المفاتيح مقفلة.</translation>
    </message>
    <message>
        <source>A pass phrase is needed.</source>
        <translation>تلزم عبارة سر.</translation>
    </message>
</context>
<context>
    <name>KirvMovingFile</name>
    <message>
        <source>%1 is not an ordinary file.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>المسار ‎%1 ليس ملفًا عاديًا.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read: %2.</source>
        <extracomment>%1 = path of a file, %2 = the system&apos;s reason</extracomment>
        <translation>لا يمكن قراءة الملف ‎%1: %2.</translation>
    </message>
    <message>
        <source>%1 is a link to another file. Choose another name.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>المسار ‎%1 وصلة إلى ملف آخر. اختر اسمًا آخر.</translation>
    </message>
    <message>
        <source>The file %1 is larger than %L2 MB, so it is not read.</source>
        <extracomment>%1 = path of a file, %L2 = a number</extracomment>
        <translation>الملف ‎%1 أكبر من %L2 ميغابايت، ولذلك لا يُقرأ.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <extracomment>%1 = path of a file, %2 = the system&apos;s reason</extracomment>
        <translation>لا يمكن كتابة الملف ‎%1: %2.</translation>
    </message>
</context>
<context>
    <name>KirvNgircdServer</name>
    <message>
        <source>The files of the server could not be given to it.</source>
        <translation>تعذّر نقل ملكية ملفات الخادم إليه.</translation>
    </message>
</context>
<context>
    <name>KirvPageCommands</name>
    <message numerus="yes">
        <source>&amp;Enable %n Accounts</source>
        <translation>
            <numerusform>&amp;فعّل %n حساب</numerusform>
            <numerusform>&amp;فعّل حسابًا واحدًا</numerusform>
            <numerusform>&amp;فعّل حسابين</numerusform>
            <numerusform>&amp;فعّل %n حسابات</numerusform>
            <numerusform>&amp;فعّل %n حسابًا</numerusform>
            <numerusform>&amp;فعّل %n حساب</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Disable %n Accounts</source>
        <translation>
            <numerusform>&amp;عطّل %n حساب</numerusform>
            <numerusform>&amp;عطّل حسابًا واحدًا</numerusform>
            <numerusform>&amp;عطّل حسابين</numerusform>
            <numerusform>&amp;عطّل %n حسابات</numerusform>
            <numerusform>&amp;عطّل %n حسابًا</numerusform>
            <numerusform>&amp;عطّل %n حساب</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Re&amp;move %n Accounts…</source>
        <translation>
            <numerusform>أ&amp;زل %n حساب…</numerusform>
            <numerusform>أ&amp;زل حسابًا واحدًا…</numerusform>
            <numerusform>أ&amp;زل حسابين…</numerusform>
            <numerusform>أ&amp;زل %n حسابات…</numerusform>
            <numerusform>أ&amp;زل %n حسابًا…</numerusform>
            <numerusform>أ&amp;زل %n حساب…</numerusform>
        </translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>أ&amp;زل…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;حرّر…</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>أعد ال&amp;تسمية</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>&amp;عطّل</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>&amp;فعّل</translation>
    </message>
    <message>
        <source>Make Main &amp;Account</source>
        <translation>اجعله الحساب ال&amp;رئيسي</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>أعد الات&amp;صال</translation>
    </message>
    <message>
        <source>Enter &amp;Password…</source>
        <translation>أدخل &amp;كلمة السر…</translation>
    </message>
    <message>
        <source>Pre&amp;sence</source>
        <translation>الح&amp;ضور</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>انقل لأعلى</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>انقل لأسفل</translation>
    </message>
    <message>
        <source>Disable A&amp;ll…</source>
        <translation>عطّل الك&amp;ل…</translation>
    </message>
    <message>
        <source>Enable Those &amp;Again</source>
        <translation>أعد تفعيل&amp;ها</translation>
    </message>
    <message>
        <source>&amp;Own Order</source>
        <translation>الترتيب ال&amp;خاص</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>ترا&amp;جع</translation>
    </message>
    <message>
        <source>Show &amp;Certificate…</source>
        <translation>اعرض ال&amp;شهادة…</translation>
    </message>
    <message>
        <source>&amp;Test Log-In</source>
        <translation>اخت&amp;بر تسجيل الدخول</translation>
    </message>
    <message>
        <source>L&amp;og</source>
        <translation>ال&amp;سجل</translation>
    </message>
    <message numerus="yes">
        <source>E&amp;xport %n Accounts…</source>
        <translation>
            <numerusform>صدّر %n حساب إلى &amp;ملف…</numerusform>
            <numerusform>صدّر حسابًا واحدًا إلى &amp;ملف…</numerusform>
            <numerusform>صدّر حسابين إلى &amp;ملف…</numerusform>
            <numerusform>صدّر %n حسابات إلى &amp;ملف…</numerusform>
            <numerusform>صدّر %n حسابًا إلى &amp;ملف…</numerusform>
            <numerusform>صدّر %n حساب إلى &amp;ملف…</numerusform>
        </translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>صدّر إلى &amp;ملف…</translation>
    </message>
</context>
<context>
    <name>KirvPassPhrase</name>
    <message numerus="yes">
        <source>The pass phrase needs at least %n characters.</source>
        <translation>
            <numerusform>لا حد أدنى لعدد محارف عبارة السر.</numerusform>
            <numerusform>يجب ألا تقل عبارة السر عن محرف واحد.</numerusform>
            <numerusform>يجب ألا تقل عبارة السر عن محرفين.</numerusform>
            <numerusform>يجب ألا تقل عبارة السر عن %n محارف.</numerusform>
            <numerusform>يجب ألا تقل عبارة السر عن %n محرفًا.</numerusform>
            <numerusform>يجب ألا تقل عبارة السر عن %n محرف.</numerusform>
        </translation>
    </message>
    <message>
        <source>The pass phrase is too long.</source>
        <translation>عبارة السر أطول من اللازم.</translation>
    </message>
</context>
<context>
    <name>KirvPassPhraseInput</name>
    <message>
        <source>The pass phrase cannot be read from file descriptor %1.</source>
        <translation>لا يمكن قراءة عبارة السر من واصف الملف %1.</translation>
    </message>
    <message>
        <source>The pass phrase from file descriptor %1 is too long.</source>
        <translation>عبارة السر المقروءة من واصف الملف %1 طويلة جدًا.</translation>
    </message>
    <message>
        <source>There is no pass phrase to be read from file descriptor %1.</source>
        <translation>لا توجد عبارة سر لقراءتها من واصف الملف %1.</translation>
    </message>
    <message>
        <source>The pass phrase cannot be read from the file &quot;%1&quot;.</source>
        <translation>لا يمكن قراءة عبارة السر من الملف «‎%1».</translation>
    </message>
    <message>
        <source>The pass phrase in the file &quot;%1&quot; is too long.</source>
        <translation>عبارة السر في الملف «‎%1» طويلة جدًا.</translation>
    </message>
    <message>
        <source>There is no pass phrase in the file &quot;%1&quot;.</source>
        <translation>لا توجد عبارة سر في الملف «‎%1».</translation>
    </message>
    <message>
        <source>A pass phrase is needed, and there is no terminal to enter it on. Use --pass-phrase-file or --pass-phrase-fd.</source>
        <translation>تلزم عبارة سر، ولا توجد طرفية لكتابتها. اذكرها بالخيار ‎--pass-phrase-file أو ‎--pass-phrase-fd.</translation>
    </message>
    <message>
        <source>Pass phrase for the file: </source>
        <translation>عبارة سر الملف: </translation>
    </message>
    <message>
        <source>No pass phrase was entered.</source>
        <translation>لم تُكتب عبارة سر.</translation>
    </message>
    <message>
        <source>Repeat the pass phrase: </source>
        <translation>تأكيد عبارة السر: </translation>
    </message>
    <message>
        <source>The two pass phrases are not the same.</source>
        <translation>لم تُكتب عبارة السر نفسها في المرتين.</translation>
    </message>
</context>
<context>
    <name>KirvPasswordDialog</name>
    <message>
        <source>&amp;Remember the password</source>
        <translation>ت&amp;ذكّر كلمة السر</translation>
    </message>
    <message>
        <source>Password Needed</source>
        <translation>كلمة السر مطلوبة</translation>
    </message>
    <message>
        <source>Enter the password of the account %1 (%2).</source>
        <extracomment>%1 = name of an account, %2 = its protocol</extracomment>
        <translation>أدخل كلمة سر الحساب %1 (بروتوكول %2).</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة السر</translation>
    </message>
    <message>
        <source>Keeps the password, so that it is not asked for again.</source>
        <translation>يحفظ كلمة السر، حتى لا تُطلب من جديد.</translation>
    </message>
    <message>
        <source>&amp;Log In</source>
        <translation>سجّل ال&amp;دخول</translation>
    </message>
    <message>
        <source>The server did not accept the password that was used last.</source>
        <translation>لم يقبل الخادم كلمة السر التي استُعملت آخر مرة.</translation>
    </message>
    <message>
        <source>The account has a password; the one that you enter takes its place.</source>
        <translation>للحساب كلمة سر؛ ستحل محلها كلمة السر التي تُدخلها.</translation>
    </message>
    <message>
        <source>No password was entered for this account yet.</source>
        <translation>لم تُدخَل كلمة سر لهذا الحساب بعد.</translation>
    </message>
    <message>
        <source>The password is not remembered, so it is needed when the account logs in.</source>
        <translation>لم يُطلب تذكّر كلمة السر، ولذلك تلزم عندما يسجّل الحساب الدخول.</translation>
    </message>
</context>
<context>
    <name>KirvPidginFile</name>
    <message>
        <source>The account &quot;%1&quot; was left out: the protocol %2 is not supported.</source>
        <extracomment>%1 = login, %2 = name of a protocol</extracomment>
        <translation>استُبعد الحساب «%1»: البروتوكول %2 غير مدعوم.</translation>
    </message>
    <message>
        <source>An account was left out: it has no login.</source>
        <translation>استُبعد حساب: ليس له اسم دخول.</translation>
    </message>
    <message>
        <source>The picture of the account &quot;%1&quot; was left out: it is not in the file.</source>
        <extracomment>%1 = login</extracomment>
        <translation>استُبعدت صورة الحساب «%1»: ليست في الملف.</translation>
    </message>
    <message>
        <source>The resource of the account &quot;%1&quot; was left out: it has the name of the computer in it, or characters that mean something else here.</source>
        <extracomment>%1 = login</extracomment>
        <translation>استُبعد مورد الحساب «%1»: فيه اسم الحاسوب أو محارف لها هنا معنى آخر.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; now requires encryption: what the file says of it is not known.</source>
        <translation>صار الحساب «%1» يتطلب التشفير: ما يذكره الملف عن التشفير غير معروف.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; does not send its password without encryption any more.</source>
        <translation>لم يعد الحساب «%1» يرسل كلمة سره بلا تشفير.</translation>
    </message>
    <message>
        <source>The server of the account &quot;%1&quot; was left out: it is not the name or address of a server.</source>
        <translation>استُبعد خادم الحساب «%1»: ليس اسم خادم ولا عنوانه.</translation>
    </message>
    <message>
        <source>The port of the account &quot;%1&quot; was left out: it is not a number from 1 to 65535.</source>
        <translation>استُبعد منفذ الحساب «%1»: ليس عددًا من 1 إلى 65535.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; has no server. Enter one before it is used.</source>
        <translation>ليس للحساب «%1» خادم. أدخل خادمًا قبل استعماله.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; uses UTF-8 instead of the encoding %2, which is not supported.</source>
        <extracomment>%1 = login, %2 = name of a character encoding</extracomment>
        <translation>يستعمل الحساب «%1» الترميز UTF-8 بدلًا من الترميز %2 غير المدعوم.</translation>
    </message>
    <message>
        <source>The account &quot;%1&quot; now requires encryption: otherwise its password would be sent without it.</source>
        <translation>صار الحساب «%1» يتطلب التشفير: وإلا لأُرسلت كلمة سره بلا تشفير.</translation>
    </message>
    <message>
        <source>Its kind is not supported.</source>
        <translation>نوعه غير مدعوم.</translation>
    </message>
    <message>
        <source>The proxy of the account &quot;%1&quot; was left out. %2 The account is disabled, so that it does not connect without the proxy.</source>
        <extracomment>%1 = login, %2 = a sentence</extracomment>
        <translation>استُبعد وسيط الحساب «%1». %2 الحساب معطّل كي لا يتصل بلا الوسيط.</translation>
    </message>
    <message>
        <source>Settings of the account &quot;%1&quot; were left out, as there are no such settings here: %2.</source>
        <extracomment>%1 = login, %2 = names, separated by commas</extracomment>
        <translation>استُبعدت إعدادات من الحساب «%1»، لأنه لا مثيل لها هنا: %2.</translation>
    </message>
    <message>
        <source>The file is no text.</source>
        <translation>الملف ليس نصًا.</translation>
    </message>
    <message>
        <source>A text in the file is too long.</source>
        <translation>في الملف نص طويل جدًا.</translation>
    </message>
    <message>
        <source>The file is damaged or no XML (line %1: %2).</source>
        <extracomment>%1 = number of a line, %2 = what is wrong there</extracomment>
        <translation>الملف تالف أو ليس XML (السطر %1: %2).</translation>
    </message>
    <message>
        <source>The file is not encoded as UTF-8.</source>
        <translation>ترميز الملف ليس UTF-8.</translation>
    </message>
    <message>
        <source>The file declares a document type or uses entities, which no file of Pidgin does.</source>
        <translation>يعلن الملف نوع مستند أو يستعمل كيانات، ولا يفعل ذلك أي ملف من Pidgin.</translation>
    </message>
    <message>
        <source>The elements of the file are nested too deeply, or have too many attributes.</source>
        <translation>عناصر الملف متداخلة بعمق كبير جدًا، أو لها سمات كثيرة جدًا.</translation>
    </message>
    <message>
        <source>There are elements in the file where a text is expected (line %1).</source>
        <translation>في الملف عناصر حيث يُتوقع نص (السطر %1).</translation>
    </message>
    <message>
        <source>Something follows the accounts in the file.</source>
        <translation>في الملف شيء آخر بعد الحسابات.</translation>
    </message>
    <message>
        <source>An account in the file has too many settings.</source>
        <translation>لأحد الحسابات في الملف إعدادات كثيرة جدًا.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>الملف كبير جدًا.</translation>
    </message>
    <message>
        <source>The file does not hold accounts of Pidgin.</source>
        <translation>ليس في الملف حسابات Pidgin.</translation>
    </message>
    <message>
        <source>The file is of another version of Pidgin, which is not known.</source>
        <translation>الملف من إصدار آخر غير معروف من Pidgin.</translation>
    </message>
    <message numerus="yes">
        <source>The file has more than %n accounts.</source>
        <translation>
            <numerusform>في الملف حسابات.</numerusform>
            <numerusform>في الملف أكثر من حساب واحد.</numerusform>
            <numerusform>في الملف أكثر من حسابين.</numerusform>
            <numerusform>في الملف أكثر من %n حسابات.</numerusform>
            <numerusform>في الملف أكثر من %n حسابًا.</numerusform>
            <numerusform>في الملف أكثر من %n حساب.</numerusform>
        </translation>
    </message>
    <message>
        <source>If Pidgin uses a proxy for all accounts, it is not in this file. Set it for the accounts before they log in.</source>
        <translation>إذا كان Pidgin يستعمل وسيطًا لكل الحسابات فهو ليس في هذا الملف. حدّده للحسابات قبل أن تسجّل الدخول.</translation>
    </message>
</context>
<context>
    <name>KirvPluginCall</name>
    <message>
        <source>an exception of an unknown kind</source>
        <translation>استثناء من نوع غير معروف</translation>
    </message>
    <message>
        <source>The plug-in failed: %1</source>
        <translation>فشلت الملحقة: %1</translation>
    </message>
</context>
<context>
    <name>KirvPluginFile</name>
    <message>
        <source>The file is not a plug-in library.</source>
        <translation>الملف ليس مكتبة ملحقة.</translation>
    </message>
    <message>
        <source>The plug-in is not one for protocols: its interface is &quot;%1&quot;.</source>
        <translation>الملحقة ليست ملحقة بروتوكولات: واجهتها «%1».</translation>
    </message>
    <message>
        <source>The plug-in was built for version %1 of the plug-in interface; this program has version %2.</source>
        <translation>بُنيت الملحقة للإصدارة %1 من واجهة الملحقات؛ وإصدارة هذا البرنامج %2.</translation>
    </message>
    <message>
        <source>The plug-in did not create its protocol and gave no reason.</source>
        <translation>لم تُنشئ الملحقة بروتوكولها ولم تذكر سببًا.</translation>
    </message>
    <message>
        <source>The library cannot be loaded: %1</source>
        <translation>لا يمكن تحميل المكتبة: %1</translation>
    </message>
    <message>
        <source>The plug-in does not have the interface that it states.</source>
        <translation>ليست للملحقة الواجهة التي تعلنها.</translation>
    </message>
    <message>
        <source>The protocol has no name.</source>
        <translation>ليس للبروتوكول اسم.</translation>
    </message>
    <message>
        <source>The name of the protocol has more than %1 characters.</source>
        <translation>في اسم البروتوكول أكثر من %1 محرف.</translation>
    </message>
    <message>
        <source>The protocol &quot;%1&quot; offers no presence.</source>
        <translation>لا يتيح البروتوكول «%1» أي حضور.</translation>
    </message>
</context>
<context>
    <name>KirvPluginLoader</name>
    <message>
        <source>A protocol with the name &quot;%1&quot; is loaded already.</source>
        <translation>حُمّل بالفعل بروتوكول اسمه «%1».</translation>
    </message>
</context>
<context>
    <name>KirvPluginQueue</name>
    <message>
        <source>The plug-in &quot;%1&quot; was left out, because the program ended when it was loaded the last time. It can be loaded on the page of the plug-ins.</source>
        <extracomment>%1 = name of a plug-in</extracomment>
        <translation>استُبعدت الملحقة «%1»، لأن البرنامج انتهى عندما حُمّلت آخر مرة. يمكن تحميلها من صفحة الملحقات.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it crashed when it was tested.</source>
        <translation>استُبعدت الملحقة، لأنها انهارت عند اختبارها.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it ended the process in which it was tested.</source>
        <translation>استُبعدت الملحقة، لأنها أنهت العملية التي اختُبرت فيها.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because it was not ready within %1 s when it was tested.</source>
        <translation>استُبعدت الملحقة، لأنها لم تجهز خلال %1 ثانية عند اختبارها.</translation>
    </message>
    <message>
        <source>The plug-in was left out, because the program ended when it was loaded the last time.</source>
        <translation>استُبعدت الملحقة، لأن البرنامج انتهى عندما حُمّلت آخر مرة.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>لا يمكن قراءة الملف.</translation>
    </message>
</context>
<context>
    <name>KirvPluginTrust</name>
    <message>
        <source>The file cannot be examined.</source>
        <translation>لا يمكن فحص الملف.</translation>
    </message>
    <message>
        <source>The plug-in is not trusted: %1 belongs to another user.</source>
        <extracomment>%1 = path of a file or folder</extracomment>
        <translation>الملحقة غير موثوق بها: ‎%1 ملك لمستخدم آخر.</translation>
    </message>
    <message>
        <source>The plug-in is not trusted: others than you may write to %1.</source>
        <extracomment>%1 = path of a file or folder</extracomment>
        <translation>الملحقة غير موثوق بها: يُسمح لغيرك بالكتابة في ‎%1.</translation>
    </message>
</context>
<context>
    <name>KirvPluginsPage</name>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;حمّل</translation>
    </message>
    <message>
        <source>&amp;Unload</source>
        <translation>أل&amp;غ التحميل</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>الملحقات</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>الملحقة</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>File</source>
        <translation>الملف</translation>
    </message>
    <message>
        <source>About the plug-in</source>
        <translation>عن الملحقة</translation>
    </message>
    <message>
        <source>Loads the plug-in; its accounts come back as they were.</source>
        <translation>يحمّل الملحقة؛ تعود حساباتها كما كانت.</translation>
    </message>
    <message>
        <source>Logs the accounts of the plug-in out. They stay in your profile.</source>
        <translation>يسجّل خروج حسابات الملحقة. تبقى الحسابات في ملفك الشخصي.</translation>
    </message>
    <message>
        <source>Plug-ins are looked for in the folder %1.</source>
        <extracomment>%1 = path of a folder</extracomment>
        <translation>يُبحث عن الملحقات في المجلد ‎%1.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>في الانتظار</translation>
    </message>
    <message>
        <source>Being tested</source>
        <translation>قيد الاختبار</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>قيد التحميل</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>محمّلة</translation>
    </message>
    <message>
        <source>Not loaded</source>
        <translation>غير محمّلة</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>فشلت</translation>
    </message>
    <message>
        <source>There are no plug-ins.</source>
        <translation>لا توجد ملحقات.</translation>
    </message>
    <message>
        <source>&amp;Report…</source>
        <translation>ال&amp;تقرير…</translation>
    </message>
    <message>
        <source>Puts versions, plug-ins and the states of the accounts together for somebody who helps.</source>
        <translation>يجمع الإصدارات والملحقات وحالات الحسابات لمن يساعدك.</translation>
    </message>
    <message>
        <source>When the plug-in %1 is unloaded, its account %2 goes off line.</source>
        <extracomment>%1 = name of a plug-in, %2 = name of an account</extracomment>
        <translation>عند إلغاء تحميل الملحقة %1 يصبح حسابها %2 غير متصل.</translation>
    </message>
    <message numerus="yes">
        <source>When the plug-in %1 is unloaded, its %n connected accounts go off line.</source>
        <extracomment>%1 = name of a plug-in</extracomment>
        <translation>
            <numerusform>عند إلغاء تحميل الملحقة %1 لا ينقطع اتصال أي حساب.</numerusform>
            <numerusform>عند إلغاء تحميل الملحقة %1 يصبح حسابها المتصل غير متصل.</numerusform>
            <numerusform>عند إلغاء تحميل الملحقة %1 يصبح حساباها المتصلان غير متصلين.</numerusform>
            <numerusform>عند إلغاء تحميل الملحقة %1 تصبح حساباتها المتصلة، وعددها %n، غير متصلة.</numerusform>
            <numerusform>عند إلغاء تحميل الملحقة %1 تصبح حساباتها المتصلة، وعددها %n، غير متصلة.</numerusform>
            <numerusform>عند إلغاء تحميل الملحقة %1 تصبح حساباتها المتصلة، وعددها %n، غير متصلة.</numerusform>
        </translation>
    </message>
    <message>
        <source>Unload Plug-in</source>
        <translation>إلغاء تحميل الملحقة</translation>
    </message>
    <message>
        <source>The accounts stay in your profile and come back when the plug-in is loaded again.</source>
        <translation>تبقى الحسابات في ملفك الشخصي وتعود عندما تُحمَّل الملحقة من جديد.</translation>
    </message>
</context>
<context>
    <name>KirvProfileCheck</name>
    <message>
        <source>The profile folder &quot;%1&quot; could not be made.</source>
        <translation>تعذّر إنشاء مجلد الملف الشخصي «‎%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link. The program follows no link inside a profile: replace it by what it leads to.</source>
        <translation>المسار «‎%1» وصلة. لا يتتبع البرنامج الوصلات داخل الملف الشخصي: ضع مكانها ما تشير إليه.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file. Move it away to use the profile.</source>
        <translation>المسار «‎%1» ليس ملفًا عاديًا. انقله إلى مكان آخر لاستعمال الملف الشخصي.</translation>
    </message>
    <message>
        <source>Its database is missing.</source>
        <translation>قاعدة بياناته مفقودة.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not a profile: it holds other files. Nothing in it was changed: choose an empty folder.</source>
        <translation>المجلد «‎%1» ليس ملفًا شخصيًا: فيه ملفات أخرى. لم يُغيَّر فيه شيء: اختر مجلدًا فارغًا.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; was written by a newer version of the program. Use that version to open it; nothing in it was changed.</source>
        <translation>كتبت إصدارة أحدث من البرنامج الملف الشخصي في «‎%1». افتحه بتلك الإصدارة؛ لم يُغيَّر فيه شيء.</translation>
    </message>
    <message>
        <source>The end of its database is missing.</source>
        <translation>نهاية قاعدة بياناته مفقودة.</translation>
    </message>
    <message>
        <source>Tables or columns of its database are missing.</source>
        <translation>جداول أو أعمدة من قاعدة بياناته مفقودة.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is in use by another running instance of the program. Close that one first.</source>
        <translation>الملف الشخصي في «‎%1» تستعمله نسخة عاملة أخرى من البرنامج. أغلقها أولًا.</translation>
    </message>
    <message>
        <source>The profile folder &quot;%1&quot; cannot be written. Check its owner and permissions, and whether the disk is full.</source>
        <translation>لا يمكن الكتابة في مجلد الملف الشخصي «‎%1». تحقق من مالكه وأذوناته، ومن أن القرص غير ممتلئ.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is damaged. %2 Nothing in it was changed.</source>
        <extracomment>%1 = path of a folder, %2 = a sentence about what is wrong with it</extracomment>
        <translation>الملف الشخصي في «‎%1» تالف. %2 لم يُغيَّر فيه شيء.</translation>
    </message>
    <message>
        <source>The file of its database does not hold one any more.</source>
        <translation>لم يعد ملف قاعدة بياناته يحوي قاعدة بيانات.</translation>
    </message>
    <message>
        <source>Parts of its database cannot be read, or contradict each other.</source>
        <translation>لا يمكن قراءة أجزاء من قاعدة بياناته، أو يناقض بعضها بعضًا.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; belongs to another program. Nothing in it was changed.</source>
        <translation>الملف «‎%1» ملك لبرنامج آخر. لم يُغيَّر فيه شيء.</translation>
    </message>
</context>
<context>
    <name>KirvProfileCommand</name>
    <message>
        <source>There is no profile in &quot;%1&quot; yet.</source>
        <translation>لا يوجد ملف شخصي في «‎%1» بعد.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; is not damaged.</source>
        <translation>الملف الشخصي في «‎%1» غير تالف.</translation>
    </message>
    <message>
        <source>The profile is not damaged, so nothing was restored. Name a copy to go back to it.</source>
        <translation>الملف الشخصي غير تالف، ولذلك لم يُستعَد شيء. اذكر نسخة للعودة إليها.</translation>
    </message>
    <message>
        <source>There is no copy of the profile that could be restored.</source>
        <translation>لا توجد نسخة من الملف الشخصي يمكن استعادتها.</translation>
    </message>
    <message>
        <source>There is no copy &quot;%1&quot; that could be restored.</source>
        <translation>لا توجد نسخة باسم «‎%1» يمكن استعادتها.</translation>
    </message>
    <message>
        <source>The profile is not damaged, so there is nothing to recover.</source>
        <translation>الملف الشخصي غير تالف، ولذلك لا يوجد ما يُسترجع.</translation>
    </message>
    <message>
        <source>The option --restore restores the newest copy or the one that is named, and --recover reads what is still readable of the damaged database. To start fresh, move the folder away.</source>
        <translation>يستعيد الخيار ‎--restore النسخة الأحدث أو المذكورة، ويقرأ الخيار ‎--recover ما لا تزال قراءته ممكنة من قاعدة البيانات التالفة. للبدء من جديد انقل المجلد إلى مكان آخر.</translation>
    </message>
    <message>
        <source>Copies of the profile, without passwords:</source>
        <translation>نسخ الملف الشخصي، بلا كلمات سر:</translation>
    </message>
    <message>
        <source>  %1  %2  Accounts: %3</source>
        <extracomment>%1 = name of a file, %2 = date and time, %3 = number of accounts</extracomment>
        <translation>  %1  %2  الحسابات: %3</translation>
    </message>
</context>
<context>
    <name>KirvProfileCopies</name>
    <message>
        <source>No copy of the profile in &quot;%1&quot; could be kept. Check the permissions of the folder &quot;copies&quot; in it, and whether the disk is full.</source>
        <translation>تعذّر حفظ نسخة من الملف الشخصي في «‎%1». تحقق من أذونات المجلد «copies» فيه، ومن أن القرص غير ممتلئ.</translation>
    </message>
</context>
<context>
    <name>KirvProfileOpening</name>
    <message>
        <source>The profile folder &quot;%1&quot; could not be made.</source>
        <translation>تعذّر إنشاء مجلد الملف الشخصي «‎%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be made. Check whether the disk is full.</source>
        <translation>تعذّر إنشاء «‎%1». تحقق من أن القرص غير ممتلئ.</translation>
    </message>
</context>
<context>
    <name>KirvProfileRescue</name>
    <message>
        <source>There is no profile in &quot;%1&quot;.</source>
        <translation>لا يوجد ملف شخصي في «‎%1».</translation>
    </message>
    <message>
        <source>The copy &quot;%1&quot; is damaged, too.</source>
        <translation>النسخة «‎%1» تالفة أيضًا.</translation>
    </message>
    <message>
        <source>Nothing in the damaged profile in &quot;%1&quot; can be read any more.</source>
        <translation>لم يعد من الممكن قراءة أي شيء من الملف الشخصي التالف في «‎%1».</translation>
    </message>
</context>
<context>
    <name>KirvProfileSaver</name>
    <message>
        <source>&amp;Save to Another Folder…</source>
        <translation>احفظ في مجلد آ&amp;خر…</translation>
    </message>
    <message>
        <source>Save to an Empty Folder</source>
        <translation>الحفظ في مجلد فارغ</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>ا&amp;حفظ</translation>
    </message>
    <message>
        <source>Everything that was stored is in &quot;%1&quot; again. Continue to go on with it; the accounts log in again then.</source>
        <translation>كل ما كان محفوظًا موجود من جديد في «‎%1». اختر «تابع» لمواصلة العمل به؛ ستسجّل الحسابات الدخول عندئذ من جديد.</translation>
    </message>
    <message>
        <source>Everything that was stored is in &quot;%1&quot; now. Continue to go on with it; the accounts log in again then. From the next start on, start the program with the option --profile &quot;%1&quot;.</source>
        <translation>كل ما كان محفوظًا موجود الآن في «‎%1». اختر «تابع» لمواصلة العمل به؛ ستسجّل الحسابات الدخول عندئذ من جديد. ابدأ البرنامج من المرة القادمة بالخيار ‎--profile &quot;%1&quot;‎.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;تابع</translation>
    </message>
</context>
<context>
    <name>KirvProviderList</name>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>%1 (not verified; %2, %3)</source>
        <extracomment>%1 = a server, %2 = who says that it can be used, as a web address, %3 = date</extracomment>
        <translation>%1 (غير متحقَّق منه؛ ‎%2‎، ‎%3)</translation>
    </message>
    <message>
        <source>Providers</source>
        <translation>مقدّمو الخدمة</translation>
    </message>
    <message>
        <source>The Down key shows known providers.</source>
        <translation>يُظهر مفتاح السهم لأسفل مقدّمي الخدمة المعروفين.</translation>
    </message>
    <message>
        <source>The list of providers %1 cannot be read.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>لا يمكن قراءة قائمة مقدّمي الخدمة ‎%1.</translation>
    </message>
    <message>
        <source>The list of providers %1 is not used: it is too large.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>لا تُستعمل قائمة مقدّمي الخدمة ‎%1: هي كبيرة جدًا.</translation>
    </message>
    <message>
        <source>About the list of providers %1: %2</source>
        <extracomment>%1 = path of a file, %2 = a sentence</extracomment>
        <translation>قائمة مقدّمي الخدمة ‎%1: %2</translation>
    </message>
    <message>
        <source>It is not used, because it has not the format of such a list.</source>
        <translation>لا تُستعمل، لأن نسقها ليس نسق قائمة كهذه.</translation>
    </message>
    <message>
        <source>One entry is left out, because it is not complete.</source>
        <translation>استُبعدت مدخلة واحدة، لأنها غير مكتملة.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries are left out, because they are not complete.</source>
        <translation>
            <numerusform>لم تُستبعد أي مدخلة.</numerusform>
            <numerusform>استُبعدت مدخلة واحدة، لأنها غير مكتملة.</numerusform>
            <numerusform>استُبعدت مدخلتان، لأنهما غير مكتملتين.</numerusform>
            <numerusform>استُبعدت %n مدخلات، لأنها غير مكتملة.</numerusform>
            <numerusform>استُبعدت %n مدخلة، لأنها غير مكتملة.</numerusform>
            <numerusform>استُبعدت %n مدخلة، لأنها غير مكتملة.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvProxy</name>
    <message>
        <source>Proxy</source>
        <translation>الوسيط</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>That of the system</source>
        <translation>وسيط النظام</translation>
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
        <translation>ما تمرّ عبره كل اتصالات الحساب. عند تحديد وسيط لا يتصل الحساب أبدًا من دونه، ويبحث الوسيط عن اسم الخادم.</translation>
    </message>
    <message>
        <source>Proxy host</source>
        <translation>مضيف الوسيط</translation>
    </message>
    <message>
        <source>The name or address of a SOCKS5 or HTTP proxy.</source>
        <translation>اسم وسيط SOCKS5 أو HTTP أو عنوانه.</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>منفذ الوسيط</translation>
    </message>
    <message>
        <source>Ordinarily 1080 with SOCKS5, and 3128 or 8080 with HTTP.</source>
        <translation>عادةً 1080 مع SOCKS5، و3128 أو 8080 مع HTTP.</translation>
    </message>
    <message>
        <source>Proxy user</source>
        <translation>مستخدم الوسيط</translation>
    </message>
    <message>
        <source>Empty: the proxy needs no log-in.</source>
        <translation>فارغ: لا يحتاج الوسيط إلى تسجيل دخول.</translation>
    </message>
    <message>
        <source>Proxy password</source>
        <translation>كلمة سر الوسيط</translation>
    </message>
    <message>
        <source>The proxy receives it without encryption. Do not use the password of the account.</source>
        <translation>يتلقاها الوسيط بلا تشفير. لا تستعمل كلمة سر الحساب.</translation>
    </message>
    <message>
        <source>The kind of the proxy is not known.</source>
        <translation>نوع الوسيط غير معروف.</translation>
    </message>
    <message>
        <source>The proxy has no host.</source>
        <translation>لم يُذكر مضيف للوسيط.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a proxy.</source>
        <translation>ليس «%1» اسم وسيط.</translation>
    </message>
    <message>
        <source>The port of the proxy must be a number from 1 to 65535.</source>
        <translation>يجب أن يكون منفذ الوسيط رقمًا من 1 إلى 65535.</translation>
    </message>
    <message>
        <source>The user or the password of the proxy cannot be sent: it is too long or has characters that do not belong to a line.</source>
        <translation>لا يمكن إرسال مستخدم الوسيط أو كلمة سره: إما أن النص طويل جدًا أو فيه محارف لا يصح ورودها في سطر.</translation>
    </message>
    <message>
        <source>The user of an HTTP proxy cannot have a colon.</source>
        <translation>لا يمكن أن يحوي مستخدم وسيط HTTP نقطتين رأسيتين.</translation>
    </message>
    <message>
        <source>There is a password of the proxy, but no user.</source>
        <translation>هناك كلمة سر للوسيط، لكن لا يوجد مستخدم.</translation>
    </message>
    <message>
        <source>it does not find the server, or does not allow a connection to it</source>
        <translation>لا يجد الخادم، أو لا يسمح بالاتصال به</translation>
    </message>
</context>
<context>
    <name>KirvRegistrationChooser</name>
    <message>
        <source>Register Account</source>
        <translation>تسجيل حساب</translation>
    </message>
    <message>
        <source>For which &amp;protocol do you want to register a new account?</source>
        <translation>بأي &amp;بروتوكول تريد تسجيل حساب جديد؟</translation>
    </message>
    <message>
        <source>Protocols</source>
        <translation>البروتوكولات</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;تابع</translation>
    </message>
</context>
<context>
    <name>KirvReport</name>
    <message>
        <source>Qt %1 (%2)</source>
        <extracomment>%1 = a version, %2 = a processor</extracomment>
        <translation>مكتبة Qt %1 (معمارية %2)</translation>
    </message>
    <message>
        <source>No library for encryption</source>
        <translation>لا توجد مكتبة للتشفير</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <extracomment>%1 = &quot;Debian GNU/Linux 12&quot;, %2 = &quot;linux 6.1&quot;, %3 = a processor</extracomment>
        <translation>%1، %2، %3</translation>
    </message>
    <message>
        <source>%1: no versions stated</source>
        <extracomment>%1 = name of a protocol, %2 = &quot;QXmpp 1.4.0&quot;, or several such</extracomment>
        <translation>%1: لم تُذكر إصدارات</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>(name)</source>
        <translation>(الاسم)</translation>
    </message>
    <message>
        <source>%1: %2, file %3</source>
        <extracomment>%1 = name of a plug-in, %2 = its state, %3 = name of a file</extracomment>
        <translation>%1: %2، الملف %3</translation>
    </message>
    <message>
        <source>Account %1, %2</source>
        <extracomment>%1 = a number, %2 = name of a protocol</extracomment>
        <translation>الحساب %1، %2</translation>
    </message>
    <message>
        <source>Login: %1</source>
        <extracomment>%1 = a login</extracomment>
        <translation>اسم الدخول: %1</translation>
    </message>
    <message>
        <source>State: %1</source>
        <extracomment>%1 = &quot;Connected&quot; or another state</extracomment>
        <translation>الحالة: %1</translation>
    </message>
    <message>
        <source>Report of %1 (times in UTC)</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>تقرير ‎%1 (الأوقات بتوقيت UTC)</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>الملحقات</translation>
    </message>
    <message numerus="yes">
        <source>%n more accounts are left out.</source>
        <translation>
            <numerusform>لم يُستبعد أي حساب آخر.</numerusform>
            <numerusform>استُبعد حساب واحد آخر.</numerusform>
            <numerusform>استُبعد حسابان آخران.</numerusform>
            <numerusform>استُبعدت %n حسابات أخرى.</numerusform>
            <numerusform>استُبعد %n حسابًا آخر.</numerusform>
            <numerusform>استُبعد %n حساب آخر.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KirvReportWindow</name>
    <message>
        <source>&amp;Include logins and other names</source>
        <translation>أ&amp;درج أسماء الدخول والأسماء الأخرى</translation>
    </message>
    <message>
        <source>Report for Somebody Who Helps</source>
        <translation>تقرير لمن يساعدك</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>التقرير</translation>
    </message>
    <message>
        <source>Passwords are left out. Read the report before you give it to anybody.</source>
        <translation>استُبعدت كلمات السر. اقرأ التقرير قبل أن تعطيه لأي أحد.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>ان&amp;سخ</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>ا&amp;حفظ…</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>حفظ التقرير</translation>
    </message>
    <message>
        <source>report</source>
        <translation>تقرير</translation>
    </message>
    <message>
        <source>The report was saved to %1.</source>
        <extracomment>%1 = path of a file</extracomment>
        <translation>حُفظ التقرير في ‎%1.</translation>
    </message>
    <message>
        <source>The report could not be saved to %1: %2.</source>
        <translation>تعذّر حفظ التقرير في ‎%1: %2.</translation>
    </message>
</context>
<context>
    <name>KirvRescueWindow</name>
    <message>
        <source>Damaged Profile</source>
        <translation>ملف شخصي تالف</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>مشكلة</translation>
    </message>
    <message>
        <source>Choose what to do. The damaged database is kept in any case, under a name with the date.</source>
        <translation>اختر ما ينبغي فعله. تُحفظ قاعدة البيانات التالفة في كل الأحوال، باسم فيه التاريخ.</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>النتيجة</translation>
    </message>
    <message>
        <source>There is no copy of the profile that could be restored.</source>
        <translation>لا توجد نسخة من الملف الشخصي يمكن استعادتها.</translation>
    </message>
    <message>
        <source>Co&amp;pies of the profile:</source>
        <translation>&amp;نسخ الملف الشخصي:</translation>
    </message>
    <message>
        <source>Copies of the profile</source>
        <translation>نسخ الملف الشخصي</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>الحسابات</translation>
    </message>
    <message>
        <source>&amp;Restore the Selected Copy</source>
        <translation>ا&amp;ستعد النسخة المحددة</translation>
    </message>
    <message>
        <source>Accounts and settings are then as they were at that time. Passwords and other secret settings are in no copy and have to be entered again.</source>
        <translation>تكون الحسابات والإعدادات عندئذ كما كانت في ذلك الوقت. لا تحوي النسخ كلمات السر ولا الإعدادات السرية الأخرى، ويجب إدخالها من جديد.</translation>
    </message>
    <message>
        <source>Recover &amp;What Is Readable</source>
        <translation>استرجع ما يمكن &amp;قراءته</translation>
    </message>
    <message>
        <source>The damaged database is read row by row, with the passwords, and what was found is shown.</source>
        <translation>تُقرأ قاعدة البيانات التالفة صفًا صفًا، مع كلمات السر، ويُعرض ما عُثر عليه.</translation>
    </message>
    <message>
        <source>Start &amp;Fresh</source>
        <translation>ا&amp;بدأ من جديد</translation>
    </message>
    <message>
        <source>The profile then has no accounts.</source>
        <translation>لا تكون في الملف الشخصي عندئذ أي حسابات.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;تابع</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>ا&amp;خرج</translation>
    </message>
    <message>
        <source>The profile can be used again.</source>
        <translation>يمكن استعمال الملف الشخصي من جديد.</translation>
    </message>
</context>
<context>
    <name>KirvRevealButton</name>
    <message>
        <source>Hide the text</source>
        <translation>أخفِ النص</translation>
    </message>
    <message>
        <source>Show the text</source>
        <translation>أظهر النص</translation>
    </message>
</context>
<context>
    <name>KirvSecretTexts</name>
    <message>
        <source>in a file only you can read</source>
        <translation>في ملف لا يمكن لغيرك قراءته</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>where a password is kept; %1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>في %1</translation>
    </message>
    <message>
        <source>in %1 (locked: you will be asked to unlock it)</source>
        <extracomment>where a password is kept; %1 = &quot;GNOME Keyring&quot;</extracomment>
        <translation>في %1 (مقفلة: سيُطلب منك فتح قفلها)</translation>
    </message>
    <message>
        <source>Your keyring does not respond: it would be kept there when it responds again</source>
        <translation>حلقة المفاتيح لا تستجيب: ستُحفظ كلمة السر فيها عندما تستجيب من جديد</translation>
    </message>
    <message>
        <source>There is no keyring here: it would be kept in a file only you can read</source>
        <translation>لا توجد حلقة مفاتيح هنا: ستُحفظ كلمة السر في ملف لا يمكن لغيرك قراءته</translation>
    </message>
    <message>
        <source>Reading the password…</source>
        <translation>تُقرأ كلمة السر…</translation>
    </message>
    <message>
        <source>The keyring is locked</source>
        <translation>حلقة المفاتيح مقفلة</translation>
    </message>
    <message>
        <source>The keyring does not respond</source>
        <translation>حلقة المفاتيح لا تستجيب</translation>
    </message>
    <message>
        <source>The keyring is not there</source>
        <translation>حلقة المفاتيح غير موجودة</translation>
    </message>
    <message>
        <source>The keyring cannot be read</source>
        <translation>لا يمكن قراءة حلقة المفاتيح</translation>
    </message>
    <message>
        <source>Or enter the password: it is used until the program ends.</source>
        <translation>أو أدخل كلمة السر: ستُستعمل حتى إنهاء البرنامج.</translation>
    </message>
    <message>
        <source>The password is being read from %1.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;, here and below</extracomment>
        <translation>تُقرأ كلمة السر من %1.</translation>
    </message>
    <message>
        <source>The password is in %1, which is locked. Unlock it.</source>
        <translation>كلمة السر في %1، لكن الحلقة مقفلة. افتح قفلها.</translation>
    </message>
    <message>
        <source>The password is in %1, which was not unlocked. Reconnect asks again.</source>
        <translation>كلمة السر في %1، لكن قفل الحلقة لم يُفتح. الأمر «أعد الاتصال» يسأل من جديد.</translation>
    </message>
    <message>
        <source>The password is in %1, which does not respond. The account connects when it does.</source>
        <translation>كلمة السر في %1، لكن الحلقة لا تستجيب. سيتصل الحساب عندما تستجيب.</translation>
    </message>
    <message>
        <source>The password is in the keyring, which is not there. The account connects when it is started.</source>
        <translation>كلمة السر في حلقة المفاتيح، لكنها غير موجودة. سيتصل الحساب عندما تبدأ.</translation>
    </message>
    <message>
        <source>The password is in %1, which cannot be read. Reconnect tries again.</source>
        <translation>كلمة السر في %1، لكن الحلقة لا يمكن قراءتها. الأمر «أعد الاتصال» يحاول من جديد.</translation>
    </message>
    <message>
        <source>in your keyring</source>
        <extracomment>where a password is kept</extracomment>
        <translation>في حلقة المفاتيح</translation>
    </message>
    <message>
        <source>in your keyring (locked: you will be asked to unlock it)</source>
        <extracomment>where a password is kept</extracomment>
        <translation>في حلقة المفاتيح (مقفلة: سيُطلب منك فتح قفلها)</translation>
    </message>
    <message>
        <source>Passwords that are remembered are kept in a file only you can read.</source>
        <translation>تُحفظ كلمات السر التي طُلب تذكّرها في ملف لا يمكن لغيرك قراءته.</translation>
    </message>
    <message>
        <source>The program is finding out whether there is a keyring.</source>
        <translation>يتحقق البرنامج من وجود حلقة مفاتيح.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It is unlocked.</source>
        <extracomment>%1 = &quot;GNOME Keyring&quot;, here and below</extracomment>
        <translation>تحفظ حلقة المفاتيح %1 كلمات السر. قفلها مفتوح.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It is unlocked.</source>
        <translation>تحفظ حلقة المفاتيح كلمات السر. قفلها مفتوح.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It is locked.</source>
        <translation>تحفظ حلقة المفاتيح %1 كلمات السر. الحلقة مقفلة.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It is locked.</source>
        <translation>تحفظ حلقة المفاتيح كلمات السر. الحلقة مقفلة.</translation>
    </message>
    <message>
        <source>%1 keeps the passwords. It does not respond.</source>
        <translation>تحفظ حلقة المفاتيح %1 كلمات السر. الحلقة لا تستجيب.</translation>
    </message>
    <message>
        <source>Your keyring keeps the passwords. It does not respond.</source>
        <translation>تحفظ حلقة المفاتيح كلمات السر. الحلقة لا تستجيب.</translation>
    </message>
    <message>
        <source>There is no keyring.</source>
        <translation>لا توجد حلقة مفاتيح.</translation>
    </message>
    <message>
        <source>The password is being read from your keyring.</source>
        <translation>تُقرأ كلمة السر من حلقة المفاتيح.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which is locked. Unlock it.</source>
        <translation>كلمة السر في حلقة المفاتيح، لكنها مقفلة. افتح قفلها.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which was not unlocked. Reconnect asks again.</source>
        <translation>كلمة السر في حلقة المفاتيح، لكن قفلها لم يُفتح. الأمر «أعد الاتصال» يسأل من جديد.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which does not respond. The account connects when it does.</source>
        <translation>كلمة السر في حلقة المفاتيح، لكن الحلقة لا تستجيب. سيتصل الحساب عندما تستجيب.</translation>
    </message>
    <message>
        <source>The password is in your keyring, which cannot be read. Reconnect tries again.</source>
        <translation>كلمة السر في حلقة المفاتيح، لكن الحلقة لا يمكن قراءتها. الأمر «أعد الاتصال» يحاول من جديد.</translation>
    </message>
    <message>
        <source>The password is being read. It stays as it is unless you enter another one.</source>
        <translation>تُقرأ كلمة السر. تبقى كما هي ما لم تُدخل غيرها.</translation>
    </message>
    <message>
        <source>The keyring is locked. The password stays as it is unless you enter another one.</source>
        <translation>حلقة المفاتيح مقفلة. تبقى كلمة السر كما هي ما لم تُدخل غيرها.</translation>
    </message>
    <message>
        <source>The keyring does not respond. The password stays as it is unless you enter another one.</source>
        <translation>حلقة المفاتيح لا تستجيب. تبقى كلمة السر كما هي ما لم تُدخل غيرها.</translation>
    </message>
    <message>
        <source>The keyring is not there. The password stays as it is unless you enter another one.</source>
        <translation>حلقة المفاتيح غير موجودة. تبقى كلمة السر كما هي ما لم تُدخل غيرها.</translation>
    </message>
    <message>
        <source>The keyring cannot be read. The password stays as it is unless you enter another one.</source>
        <translation>لا يمكن قراءة حلقة المفاتيح. تبقى كلمة السر كما هي ما لم تُدخل غيرها.</translation>
    </message>
    <message>
        <source>The password is not in the keyring any more.</source>
        <translation>لم تعد كلمة السر في حلقة المفاتيح.</translation>
    </message>
    <message>
        <source>Or edit the account and enter its passwords again.</source>
        <translation>أو حرّر الحساب وأدخل كلمات سره من جديد.</translation>
    </message>
    <message>
        <source>Or edit the account and enter it again.</source>
        <translation>أو حرّر الحساب وأدخلها من جديد.</translation>
    </message>
    <message>
        <source>Some passwords are still in a file only you can read. They are moved when the keyring is unlocked.</source>
        <translation>لا تزال بعض كلمات السر في ملف لا يقرؤه سواك. تُنقل عند فتح قفل حلقة المفاتيح.</translation>
    </message>
    <message>
        <source>There is no keyring here: it is kept in a file only you can read.</source>
        <extracomment>it = a password that was just stored</extracomment>
        <translation>لا توجد حلقة مفاتيح هنا: كلمة السر محفوظة في ملف لا يمكن لغيرك قراءته.</translation>
    </message>
</context>
<context>
    <name>KirvServerAssistant</name>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>Waiting for the server</source>
        <translation>في انتظار الخادم</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>التعليمات</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>التهيئة</translation>
    </message>
    <message>
        <source>Con&amp;figuration:</source>
        <translation>ال&amp;تهيئة:</translation>
    </message>
    <message>
        <source>&amp;Remember the password</source>
        <translation>ت&amp;ذكّر كلمة السر</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>رسالة</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>ا&amp;رجع</translation>
    </message>
    <message>
        <source>Reading the picture for &quot;%1&quot;…</source>
        <extracomment>%1 = a caption</extracomment>
        <translation>تُقرأ صورة «%1»…</translation>
    </message>
    <message>
        <source>There is a picture for &quot;%1&quot;, which cannot be shown: %2</source>
        <extracomment>%1 = a caption, %2 = an address</extracomment>
        <translation>للحقل «%1» صورة لا يمكن عرضها: ‎%2‎</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>أ&amp;غلق</translation>
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
        <translation>ليست صادرة من أجل %1.</translation>
    </message>
    <message>
        <source>It is for %1, and not for %2.</source>
        <extracomment>%1 and %2 = names of servers</extracomment>
        <translation>صادرة من أجل %1، وليس من أجل %2.</translation>
    </message>
    <message>
        <source>It is self-signed: no authority has issued it.</source>
        <translation>موقّعة ذاتيًا: لم تُصدرها أي سلطة شهادات.</translation>
    </message>
    <message>
        <source>It is not from an authority that this computer trusts.</source>
        <translation>ليست من سلطة شهادات يثق بها هذا الحاسوب.</translation>
    </message>
    <message>
        <source>It has expired: it was valid until %1.</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>انتهت صلاحيتها: كانت صالحة حتى ‎%1.</translation>
    </message>
    <message>
        <source>A certificate of its issuer has expired.</source>
        <translation>انتهت صلاحية إحدى شهادات الجهة التي أصدرتها.</translation>
    </message>
    <message>
        <source>It is not valid before %1.</source>
        <extracomment>%1 = date and time</extracomment>
        <translation>ليست صالحة قبل ‎%1.</translation>
    </message>
    <message>
        <source>A certificate of its issuer is not valid yet.</source>
        <translation>إحدى شهادات الجهة التي أصدرتها ليست صالحة بعد.</translation>
    </message>
    <message>
        <source>It was withdrawn.</source>
        <translation>أُلغيت.</translation>
    </message>
    <message>
        <source>For</source>
        <extracomment>the servers that a certificate is for</extracomment>
        <translation>صادرة من أجل</translation>
    </message>
    <message>
        <source>Owner</source>
        <extracomment>whom a certificate is for</extracomment>
        <translation>المالك</translation>
    </message>
    <message>
        <source>Issued by</source>
        <extracomment>as in &quot;Issued by: itself&quot;</extracomment>
        <translation>صادرة عن</translation>
    </message>
    <message>
        <source>itself</source>
        <translation>نفسها</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>صالحة من</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>صالحة حتى</translation>
    </message>
    <message>
        <source>Fingerprint (SHA-256)</source>
        <translation>البصمة (SHA-256)</translation>
    </message>
</context>
<context>
    <name>KirvServerCommands</name>
    <message>
        <source>None of the loaded plug-ins can register a new account.</source>
        <extracomment>%1 = name of a protocol</extracomment>
        <translation>لا يمكن لأي من الملحقات المحمّلة تسجيل حساب جديد.</translation>
    </message>
    <message>
        <source>New accounts cannot be registered with %1.</source>
        <translation>لا يمكن تسجيل حسابات جديدة ببروتوكول %1.</translation>
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
        <translation>قبل الخادم الاستمارة. أضف الحساب باسم الدخول الذي يعطيك إياه الخادم.</translation>
    </message>
    <message>
        <source>The account %1 is registered on the server, but it was not added here. %2</source>
        <extracomment>%1 = login of an account, %2 = the reason, a sentence</extracomment>
        <translation>سُجّل الحساب %1 على الخادم، لكنه لم يُضف هنا. %2</translation>
    </message>
    <message>
        <source>Add Again</source>
        <translation>أضف من جديد</translation>
    </message>
    <message>
        <source>The account %1 has the new password on its server. The password is used until the program ends, but it is not stored. %2</source>
        <extracomment>%1 = name of an account, %2 = the reason, a sentence</extracomment>
        <translation>للحساب %1 كلمة السر الجديدة على خادمه. ستُستعمل كلمة السر حتى إنهاء البرنامج، لكنها لم تُحفظ. %2</translation>
    </message>
    <message>
        <source>Store Again</source>
        <translation>احفظ من جديد</translation>
    </message>
    <message>
        <source>The account %1 is deleted on its server, but it was not removed here. %2</source>
        <extracomment>%1 = name of an account, %2 = the reason, a sentence</extracomment>
        <translation>حُذف الحساب %1 من خادمه، لكنه لم يُزَل هنا. %2</translation>
    </message>
    <message>
        <source>Remove Again</source>
        <translation>أزل من جديد</translation>
    </message>
    <message>
        <source>The password of the account %1 is changed on its server.</source>
        <extracomment>%1 = name of an account</extracomment>
        <translation>غُيّرت كلمة سر الحساب %1 على خادمه.</translation>
    </message>
</context>
<context>
    <name>KirvSettingsManager</name>
    <message>
        <source>Name shown</source>
        <translation>الاسم الظاهر</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة السر</translation>
    </message>
    <message>
        <source>Remember the password</source>
        <translation>تذكّر كلمة السر</translation>
    </message>
    <message>
        <source>Restore the last presence</source>
        <translation>استعد آخر حضور</translation>
    </message>
    <message>
        <source>Restore the last description</source>
        <translation>استعد آخر وصف</translation>
    </message>
</context>
<context>
    <name>KirvSettingsWindow</name>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>اخرج</translation>
    </message>
    <message>
        <source>Kirv – Settings</source>
        <extracomment>window title; %1 = name of the main account</extracomment>
        <translation>إعدادات Kirv</translation>
    </message>
    <message>
        <source>Kirv – Settings – %1</source>
        <translation>إعدادات Kirv – الحساب %1</translation>
    </message>
</context>
<context>
    <name>KirvSocketSteps</name>
    <message>
        <source>%1, port %2</source>
        <extracomment>%1 = name of a server, %2 = number of a port</extracomment>
        <translation>%1، المنفذ %2</translation>
    </message>
    <message>
        <source>%1, which the proxy looks up</source>
        <extracomment>%1 = server and port</extracomment>
        <translation>%1، ويبحث الوسيط عن الاسم</translation>
    </message>
    <message>
        <source>through the proxy %1</source>
        <extracomment>%1 = name of a proxy</extracomment>
        <translation>عبر الوسيط %1</translation>
    </message>
    <message>
        <source>none, as the settings say</source>
        <translation>لا يوجد، بحسب الإعدادات</translation>
    </message>
    <message>
        <source>none: the server offers none</source>
        <translation>لا يوجد: الخادم لا يوفره</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 = &quot;TLS 1.3&quot;, %2 = about a certificate</extracomment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>certificate of %1, valid until %2, fingerprint %3 (SHA-256)</source>
        <extracomment>%1 = name of a server, %2 = a date, %3 = hexadecimal digits</extracomment>
        <translation>شهادة %1، صالحة حتى %2، البصمة %3 (SHA-256)</translation>
    </message>
</context>
<context>
    <name>KirvSortingHint</name>
    <message>
        <source>The list is sorted by a column. Accounts can be moved only in your own order.</source>
        <translation>القائمة مرتّبة حسب أحد الأعمدة. لا يمكن نقل الحسابات إلا في الترتيب الخاص بك.</translation>
    </message>
    <message>
        <source>&amp;Own Order</source>
        <translation>الترتيب ال&amp;خاص</translation>
    </message>
</context>
<context>
    <name>KirvStore</name>
    <message>
        <source>The account &quot;%1&quot; (%2) is not in the profile.</source>
        <translation>الحساب «%1» (بروتوكول %2) ليس في الملف الشخصي.</translation>
    </message>
    <message>
        <source>There is no home folder to keep the profile in: the environment variable HOME is not set. Set it, or name a folder for the profile.</source>
        <translation>لا يوجد مجلد منزل ليُحفظ الملف الشخصي فيه: متغير البيئة HOME غير مضبوط. اضبطه، أو حدّد مجلدًا للملف الشخصي.</translation>
    </message>
    <message>
        <source>The profile in &quot;%1&quot; was deleted, moved or replaced while the program was running, so nothing was stored. Save the accounts to another folder.</source>
        <translation>حُذف الملف الشخصي في «‎%1» أو نُقل أو استُبدل أثناء عمل البرنامج، ولذلك لم يُحفظ شيء. احفظ الحسابات في مجلد آخر.</translation>
    </message>
    <message>
        <source>The copies of the profile in &quot;%1&quot; could not be removed. Check the permissions of the folder &quot;copies&quot; in it.</source>
        <translation>تعذّرت إزالة نسخ الملف الشخصي في «‎%1». تحقق من أذونات المجلد «copies» فيه.</translation>
    </message>
    <message>
        <source>There is a profile in &quot;%1&quot; already. Choose an empty folder.</source>
        <translation>في «‎%1» ملف شخصي بالفعل. اختر مجلدًا فارغًا.</translation>
    </message>
</context>
<context>
    <name>KirvXmppAvatar</name>
    <message>
        <source>The picture of the account cannot be read.</source>
        <translation>لا يمكن قراءة صورة الحساب.</translation>
    </message>
</context>
<context>
    <name>KirvXmppConnection</name>
    <message>
        <source>The login must be an address such as user@domain.</source>
        <translation>يجب أن يكون اسم الدخول عنوانًا مثل user@domain.</translation>
    </message>
    <message>
        <source>the server does not answer any more</source>
        <translation>لم يعد الخادم يردّ</translation>
    </message>
    <message>
        <source>The account is not connected.</source>
        <translation>الحساب غير متصل.</translation>
    </message>
</context>
<context>
    <name>KirvXmppDeletionRequest</name>
    <message>
        <source>Delete Account on Server</source>
        <translation>حذف الحساب من الخادم</translation>
    </message>
    <message>
        <source>Do you want to delete the account %1 on its server? Its contacts and everything the server keeps for it are lost.</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>هل تريد حذف الحساب %1 من خادمه؟ ستضيع جهات اتصاله وكل ما يحفظه الخادم له.</translation>
    </message>
    <message>
        <source>Delete on Server</source>
        <translation>احذف من الخادم</translation>
    </message>
    <message>
        <source>This cannot be undone, and somebody else can take the address %1 afterwards. Is %1 really to be deleted?</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>لا يمكن التراجع عن هذا، ويمكن لشخص آخر أن يأخذ العنوان %1 بعد ذلك. هل تريد حقًا حذف %1؟</translation>
    </message>
    <message>
        <source>Delete for Good</source>
        <translation>احذف نهائيًا</translation>
    </message>
    <message>
        <source>Deleting the account…</source>
        <translation>يُحذف الحساب…</translation>
    </message>
</context>
<context>
    <name>KirvXmppDirectory</name>
    <message>
        <source>The directory entry is too long to be sent.</source>
        <translation>مدخلة الدليل أطول من أن تُرسل.</translation>
    </message>
</context>
<context>
    <name>KirvXmppError</name>
    <message>
        <source>the name is already in use</source>
        <translation>الاسم مستعمل بالفعل</translation>
    </message>
    <message>
        <source>the server does not accept what was sent</source>
        <translation>لا يقبل الخادم ما أُرسل</translation>
    </message>
    <message>
        <source>the server does not allow it</source>
        <translation>لا يسمح الخادم بذلك</translation>
    </message>
    <message>
        <source>the server does not allow it now</source>
        <translation>لا يسمح الخادم بذلك الآن</translation>
    </message>
    <message>
        <source>the server requires encryption</source>
        <translation>يتطلب الخادم التشفير</translation>
    </message>
</context>
<context>
    <name>KirvXmppLoginGuard</name>
    <message>
        <source>It requires more than a log-in needs.</source>
        <translation>يطلب الخادم أكثر مما يحتاج إليه تسجيل الدخول.</translation>
    </message>
    <message>
        <source>It requires more work to check the password than is allowed (%1 rounds, at most %2).</source>
        <translation>يطلب الخادم لفحص كلمة السر عملًا أكثر من المسموح به (%1 دورة، والحد الأقصى %2).</translation>
    </message>
    <message>
        <source>It has not proved that it knows the password.</source>
        <translation>لم يثبت الخادم أنه يعرف كلمة السر.</translation>
    </message>
    <message>
        <source>Its part of the log-in is wrong.</source>
        <translation>جزء الخادم من تسجيل الدخول خاطئ.</translation>
    </message>
</context>
<context>
    <name>KirvXmppPasswordRequest</name>
    <message>
        <source>Change Password on Server</source>
        <translation>تغيير كلمة السر على الخادم</translation>
    </message>
    <message>
        <source>The account %1 gets a new password on its server. All clients need it then.</source>
        <extracomment>%1 = the address of an account</extracomment>
        <translation>ستصبح للحساب %1 كلمة سر جديدة على خادمه. يحتاج إليها كل العملاء عندئذ.</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>كلمة السر الجديدة</translation>
    </message>
    <message>
        <source>The same again</source>
        <translation>تأكيد كلمة السر</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>غيّر كلمة السر</translation>
    </message>
    <message>
        <source>Enter the new password.</source>
        <translation>أدخل كلمة السر الجديدة.</translation>
    </message>
    <message>
        <source>The two passwords are different. Enter the same password twice.</source>
        <translation>كلمتا السر مختلفتان. أدخل كلمة السر نفسها مرتين.</translation>
    </message>
    <message>
        <source>The password holds characters that cannot be sent.</source>
        <translation>في كلمة السر محارف لا يمكن إرسالها.</translation>
    </message>
    <message>
        <source>Changing the password…</source>
        <translation>تُغيَّر كلمة السر…</translation>
    </message>
</context>
<context>
    <name>KirvXmppProtocol</name>
    <message>
        <source>XMPP (Jabber): conversations between addresses of many independent servers.</source>
        <translation>بروتوكول XMPP (Jabber): محادثات بين عناوين على خوادم كثيرة مستقلة.</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>متاح</translation>
    </message>
    <message>
        <source>Free to chat</source>
        <translation>متفرغ للمحادثة</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>بعيد</translation>
    </message>
    <message>
        <source>Extended away</source>
        <translation>بعيد لوقت طويل</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>الرجاء عدم الإزعاج</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>مخفي</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Change Password on Server…</source>
        <translation>غيّر كلمة السر على الخادم…</translation>
    </message>
    <message>
        <source>Gives the account a new password on its server.</source>
        <translation>يعطي الحساب كلمة سر جديدة على خادمه.</translation>
    </message>
    <message>
        <source>Delete Account on Server…</source>
        <translation>احذف الحساب من الخادم…</translation>
    </message>
    <message>
        <source>Deletes the account on its server for good, and then here.</source>
        <translation>يحذف الحساب نهائيًا من خادمه، ثم من هنا.</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistration</name>
    <message>
        <source>registration of accounts</source>
        <translation>تسجيل الحسابات</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistrationForm</name>
    <message>
        <source>User name</source>
        <translation>اسم المستخدم</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة السر</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>اللقب</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>الاسم الكامل</translation>
    </message>
    <message>
        <source>First name</source>
        <translation>الاسم الأول</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>اسم العائلة</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>المدينة</translation>
    </message>
    <message>
        <source>State or region</source>
        <translation>الولاية أو المنطقة</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>الرمز البريدي</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>الهاتف</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>صفحة الويب</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be filled in.</source>
        <translation>يجب ملء «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds characters that cannot be sent.</source>
        <translation>في «%1» محارف لا يمكن إرسالها.</translation>
    </message>
</context>
<context>
    <name>KirvXmppRegistrationRequest</name>
    <message>
        <source>Domain</source>
        <translation>النطاق</translation>
    </message>
    <message>
        <source>The part of the address after the @.</source>
        <translation>جزء العنوان بعد العلامة @.</translation>
    </message>
    <message>
        <source>Register XMPP Account</source>
        <translation>تسجيل حساب XMPP</translation>
    </message>
    <message>
        <source>Choose the server of the new account. The server determines what is to be filled in next.</source>
        <translation>اختر خادم الحساب الجديد. يحدد الخادم ما يجب ملؤه بعد ذلك.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>تابع</translation>
    </message>
    <message>
        <source>Enter the domain of the server.</source>
        <translation>أدخل نطاق الخادم.</translation>
    </message>
    <message>
        <source>The name of a server holds characters that cannot be sent.</source>
        <translation>في اسم الخادم محارف لا يمكن إرسالها.</translation>
    </message>
    <message>
        <source>Requesting the registration form…</source>
        <translation>تُطلب استمارة التسجيل…</translation>
    </message>
    <message>
        <source>This server does not register accounts from within a client.</source>
        <translation>لا يسجّل هذا الخادم الحسابات من داخل عميل.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>سجّل</translation>
    </message>
    <message>
        <source>The server sent another form. Check it and register again.</source>
        <translation>أرسل الخادم استمارة أخرى. تحقق منها وسجّل من جديد.</translation>
    </message>
    <message>
        <source>The server also names this address: %1</source>
        <extracomment>%1 = a web address</extracomment>
        <translation>يذكر الخادم هذا العنوان أيضًا: ‎%1‎</translation>
    </message>
    <message>
        <source>Sending the form…</source>
        <translation>تُرسل الاستمارة…</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted. Somebody between you and the server could read your password.</source>
        <translation>شهادة الخادم غير موثوق بها. يمكن لشخص بينك وبين الخادم أن يقرأ كلمة السر.</translation>
    </message>
    <message>
        <source>Trust for This Account</source>
        <translation>ثق بها لهذا الحساب</translation>
    </message>
</context>
<context>
    <name>KirvXmppRoute</name>
    <message>
        <source>servers refer to one another without end</source>
        <translation>تحيل الخوادم بعضها إلى بعض بلا نهاية</translation>
    </message>
    <message>
        <source>it refers to a server of a private network</source>
        <translation>يحيل إلى خادم في شبكة خاصة</translation>
    </message>
    <message>
        <source>%1 starts with encryption at once. Choose direct TLS, or another port.</source>
        <extracomment>%1 is a server and its port</extracomment>
        <translation>يبدأ الخادم %1 بالتشفير فورًا. اختر TLS المباشر، أو منفذًا آخر.</translation>
    </message>
    <message>
        <source>%1 does not start with encryption at once. Do not choose direct TLS, or choose another port.</source>
        <extracomment>%1 is a server and its port</extracomment>
        <translation>لا يبدأ الخادم %1 بالتشفير فورًا. لا تختر TLS المباشر، أو اختر منفذًا آخر.</translation>
    </message>
    <message>
        <source>servers of %1</source>
        <extracomment>%1 = a domain</extracomment>
        <translation>خوادم النطاق %1</translation>
    </message>
    <message>
        <source>the server refers to %1</source>
        <extracomment>%1 = a server</extracomment>
        <translation>يحيل الخادم إلى %1</translation>
    </message>
</context>
<context>
    <name>KirvXmppServerLink</name>
    <message>
        <source>What the server sent is no XMPP stream.</source>
        <translation>ما أرسله الخادم ليس تدفق XMPP.</translation>
    </message>
    <message>
        <source>The server sent data that is longer than allowed.</source>
        <translation>أرسل الخادم بيانات أطول من المسموح به.</translation>
    </message>
    <message>
        <source>The server sent data that is no valid XML.</source>
        <translation>أرسل الخادم بيانات ليست XML صالحة.</translation>
    </message>
    <message>
        <source>The server sent XML that is not allowed in a stream.</source>
        <translation>أرسل الخادم XML غير مسموح به في التدفق.</translation>
    </message>
    <message>
        <source>the reply of the server is too large</source>
        <translation>ردّ الخادم كبير جدًا</translation>
    </message>
    <message>
        <source>it refers to a server of a private network</source>
        <translation>يحيل إلى خادم في شبكة خاصة</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is the encryption, as &quot;TLSv1.3&quot;, %2 how the user has proved who he is, as &quot;SASL SCRAM-SHA-256&quot;</extracomment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>not encrypted</source>
        <translation>بلا تشفير</translation>
    </message>
    <message>
        <source>The server begins the log-in again and again.</source>
        <translation>يبدأ الخادم تسجيل الدخول مرة بعد مرة.</translation>
    </message>
    <message>
        <source>the server requires encryption</source>
        <translation>يتطلب الخادم التشفير</translation>
    </message>
    <message>
        <source>the server does not serve the domain of the login</source>
        <translation>لا يخدم الخادم نطاق اسم الدخول</translation>
    </message>
    <message>
        <source>it refers to a server without a name</source>
        <translation>يحيل إلى خادم بلا اسم</translation>
    </message>
    <message>
        <source>It has logged in the account &quot;%1&quot;.</source>
        <extracomment>%1 is the address of an account</extracomment>
        <translation>سجّل الخادم دخول الحساب «%1».</translation>
    </message>
    <message>
        <source>the server does not answer any more</source>
        <translation>لم يعد الخادم يردّ</translation>
    </message>
    <message>
        <source>Its part of the log-in is wrong.</source>
        <translation>جزء الخادم من تسجيل الدخول خاطئ.</translation>
    </message>
</context>
<context>
    <name>KirvXmppSettings</name>
    <message>
        <source>Resource</source>
        <translation>المورد</translation>
    </message>
    <message>
        <source>Distinguishes this client from your other ones. Characters by chance take the place of a *. Empty: the server chooses.</source>
        <translation>يميّز هذا العميل عن عملائك الآخرين. تحل محارف عشوائية محل العلامة *. فارغ: يختار الخادم.</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>الأولوية</translation>
    </message>
    <message>
        <source>Messages go to the client with the highest priority, and to none with a negative one. This client does not show messages.</source>
        <translation>تذهب الرسائل إلى العميل ذي الأولوية الأعلى، ولا تذهب إلى عميل أولويته سالبة. هذا العميل لا يعرض رسائل.</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>الخادم</translation>
    </message>
    <message>
        <source>Only needed when it cannot be found by the domain of the login. Service records are not looked up where there is a proxy.</source>
        <translation>لا يلزم إلا إذا تعذّر العثور عليه من نطاق اسم الدخول. لا يُبحث عن سجلات الخدمة عند وجود وسيط.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>المنفذ</translation>
    </message>
    <message>
        <source>Ordinarily %1, and %2 with direct TLS.</source>
        <translation>عادةً %1، و%2 مع TLS المباشر.</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>التشفير</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>مطلوب</translation>
    </message>
    <message>
        <source>If the server offers it</source>
        <translation>إذا أتاحه الخادم</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Required at once (direct TLS)</source>
        <translation>مطلوب فورًا (TLS المباشر)</translation>
    </message>
    <message>
        <source>Without encryption others in the network can read along, your password included.</source>
        <translation>من دون التشفير يمكن لآخرين في الشبكة قراءة ما يُرسل، ومنه كلمة السر.</translation>
    </message>
    <message>
        <source>Trusted certificate</source>
        <translation>الشهادة الموثوق بها</translation>
    </message>
    <message>
        <source>A file with a certificate (PEM) that is trusted besides those of the system.</source>
        <translation>ملف فيه شهادة (PEM) يوثق بها إلى جانب شهادات النظام.</translation>
    </message>
    <message>
        <source>Server of the domain</source>
        <translation>خادم النطاق</translation>
    </message>
    <message>
        <source>Server on this computer</source>
        <translation>خادم على هذا الحاسوب</translation>
    </message>
    <message>
        <source>Server on this computer, unencrypted</source>
        <translation>خادم على هذا الحاسوب، بلا تشفير</translation>
    </message>
    <message>
        <source>An address contains no blanks.</source>
        <translation>لا يمكن أن يحوي العنوان مسافات.</translation>
    </message>
    <message>
        <source>The character &quot;%1&quot; is not allowed in an address.</source>
        <translation>المحرف «%1» غير مسموح به في العنوان.</translation>
    </message>
    <message>
        <source>The domain is missing, as in anna@example.org.</source>
        <translation>لم يُذكر النطاق، كما في anna@example.org.</translation>
    </message>
    <message>
        <source>An address contains one &quot;@&quot; only.</source>
        <translation>يجب ألا يحوي العنوان إلا علامة «@» واحدة.</translation>
    </message>
    <message>
        <source>The name before the &quot;@&quot; is missing.</source>
        <translation>لم يُذكر الاسم قبل العلامة «@».</translation>
    </message>
    <message>
        <source>The domain after the &quot;@&quot; is missing.</source>
        <translation>لم يُذكر النطاق بعد العلامة «@».</translation>
    </message>
    <message>
        <source>The domain after the &quot;@&quot; is not complete.</source>
        <translation>النطاق بعد العلامة «@» غير مكتمل.</translation>
    </message>
    <message>
        <source>The address is too long.</source>
        <translation>العنوان طويل جدًا.</translation>
    </message>
    <message>
        <source>The trusted certificate %1 cannot be read (%2).</source>
        <extracomment>%1 is a file name, %2 the reason</extracomment>
        <translation>لا يمكن قراءة الشهادة الموثوق بها ‎%1 (%2).</translation>
    </message>
    <message>
        <source>The file %1 does not hold a certificate in PEM format.</source>
        <translation>لا يحوي الملف ‎%1 شهادة بنسق PEM.</translation>
    </message>
    <message>
        <source>The trusted certificate %1 is not a file.</source>
        <extracomment>%1 is a file name</extracomment>
        <translation>الشهادة الموثوق بها ‎%1 ليست ملفًا.</translation>
    </message>
</context>
<context>
    <name>KirvXmppVCard</name>
    <message>
        <source>Birthday</source>
        <translation>تاريخ الميلاد</translation>
    </message>
    <message>
        <source>Year, month and day, such as 1999-12-31.</source>
        <translation>السنة والشهر واليوم، مثل ‎1999-12-31.</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>الاسم الكامل</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>اللقب</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>الهاتف</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>المدينة</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>البلد</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>صفحة الويب</translation>
    </message>
    <message>
        <source>Organisation</source>
        <translation>المؤسسة</translation>
    </message>
    <message>
        <source>About</source>
        <translation>نبذة عني</translation>
    </message>
    <message>
        <source>An address that begins with http:// or https://.</source>
        <translation>عنوان يبدأ بالصيغة ‎http://‎ أو ‎https://‎.</translation>
    </message>
</context>
<context>
    <name>translation</name>
    <message>
        <source>Alias</source>
        <comment>account alias in account list</comment>
        <translation>الاسم المستعار</translation>
    </message>
    <message>
        <source>Protocol</source>
        <comment>account protocol in account list</comment>
        <translation>البروتوكول</translation>
    </message>
    <message>
        <source>Removing account</source>
        <comment>message box title</comment>
        <translation>إزالة حساب</translation>
    </message>
    <message>
        <source>Do you want to remove account &apos;%1&apos; (%2) and all related data?</source>
        <comment>%1 = account alias, %2 = account protocol. Confirmation of removing account</comment>
        <translation>هل تريد إزالة الحساب «%1» (بروتوكول %2) وكل البيانات المرتبطة به؟</translation>
    </message>
    <message>
        <source>Disabling account</source>
        <comment>message box title</comment>
        <translation>تعطيل حساب</translation>
    </message>
    <message>
        <source>Do you want to disable account &apos;%1&apos; (%2) in which you are currently logged in.</source>
        <comment>%1 = account id, %2 = account protocol. Confirmation of disabling account</comment>
        <translation>هل تريد تعطيل الحساب «%1» (بروتوكول %2) المسجّل دخوله حاليًا؟</translation>
    </message>
    <message>
        <source>None</source>
        <comment>nc</comment>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Add account</source>
        <comment>adding account error message box title</comment>
        <translation>إضافة حساب</translation>
    </message>
    <message>
        <source>Account &apos;%1&apos; alerady exists!</source>
        <comment>information about existing account while adding account</comment>
        <translation>الحساب «%1» موجود بالفعل!</translation>
    </message>
    <message>
        <source>Deleting directory entry</source>
        <comment>message box title</comment>
        <translation>حذف مدخلة الدليل</translation>
    </message>
    <message>
        <source>Do you want to delete the directory entry of account &apos;%1&apos; (%2) from the server?</source>
        <comment>%1 = account id, %2 = account protocol. Confirmation of deleting the directory entry</comment>
        <translation>هل تريد حذف مدخلة الحساب «%1» (بروتوكول %2) في الدليل من الخادم؟</translation>
    </message>
</context>
</TS>
