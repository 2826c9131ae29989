<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name></name>
    <!-- The program -->
    <message id="app_name">
        <source></source>
        <translation>مسجل الصوت</translation>
    </message>
    <message id="Record">
        <source></source>
        <translation>تسجيل</translation>
    </message>
    <message id="voice_memo">
        <source></source>
        <translation>التسجيلات</translation>
    </message>
    <message id="Setting">
        <source></source>
        <translation>الإعدادات</translation>
    </message>
    <message id="Ok">
        <source></source>
        <translation>موافق</translation>
    </message>
    <message id="OK">
        <source></source>
        <translation>موافق</translation>
    </message>
    <message id="Record Audio">
        <source></source>
        <translation>تسجيل الصوت</translation>
    </message>
    <message id="Quick Create Voice Memo">
        <source></source>
        <translation>إنشاء تسجيل سريع</translation>
    </message>
    <message id="Recordings">
        <source></source>
        <translation>التسجيلات</translation>
    </message>
    <message id="Recorded Voice Memos">
        <source></source>
        <translation>التسجيلات المحفوظة</translation>
    </message>
    <message id="Low">
        <source></source>
        <translation>Low</translation>
    </message>
    <message id="Medium">
        <source></source>
        <translation>Medium</translation>
    </message>
    <message id="High">
        <source></source>
        <translation>High</translation>
    </message>
    <message id="user_abc">
        <source></source>
        <translation>user_abc</translation>
    </message>
    <!-- Settings -->
    <message id="Settings">
        <source></source>
        <translation>الإعدادات</translation>
    </message>
    <message id="recording_type">
        <source></source>
        <translation>نوع التسجيل</translation>
    </message>
    <message id="recording_quality">
        <source></source>
        <translation>جودة التسجيل</translation>
    </message>
    <message id="audio_setting">
        <source></source>
        <translation>إعدادات الصوت</translation>
    </message>
    <message id="icloud_sync">
        <source></source>
        <translation>السحابة</translation>
    </message>
    <message id="mail">
        <source></source>
        <translation>البريد</translation>
    </message>
    <message id="data_security">
        <source></source>
        <translation>أمان البيانات</translation>
    </message>
    <message id="support">
        <source></source>
        <translation>الدعم</translation>
    </message>
    <message id="feature">
        <source></source>
        <translation>الميزات</translation>
    </message>
    <message id="Extention">
        <source></source>
        <translation>الامتداد</translation>
    </message>
    <message id="Quality">
        <source></source>
        <translation>الجودة</translation>
    </message>
    <message id="rewind">
        <source></source>
        <translation>ترجيع ( %1 ث )</translation>
    </message>
    <message id="forward">
        <source></source>
        <translation>تقديم ( %1 ث )</translation>
    </message>
    <message id="settings_english">
        <source></source>
        <translation>تبقى Low وMedium وHigh بالإنجليزية في كل اللغات، لأن صيغة التسجيل تتحدد بهذه الكلمات. وكذلك ما يظهر بعد تحريك المنزلق.</translation>
    </message>
    <message id="use_icloud">
        <source></source>
        <translation>مزامنة التسجيلات مع السحابة</translation>
    </message>
    <message id="Quick_Mail">
        <source></source>
        <translation>إرسال التسجيلات بالبريد فورًا</translation>
    </message>
    <message id="passcode_lock">
        <source></source>
        <translation>القفل برمز المرور</translation>
    </message>
    <message id="change_pass">
        <source></source>
        <translation>تغيير رمز المرور</translation>
    </message>
    <message id="rate">
        <source></source>
        <translation>تقييم التطبيق</translation>
    </message>
    <message id="more_apps">
        <source></source>
        <translation>تطبيقات أخرى</translation>
    </message>
    <message id="report_bug">
        <source></source>
        <translation>الإبلاغ عن مشكلة</translation>
    </message>
    <message id="bug_report">
        <source></source>
        <translation>بلاغ عن مشكلة: مسجل الصوت</translation>
    </message>
    <message id="gmail">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="issue_recorder">
        <source></source>
        <translation>يُرجى وصف ما حدث من خطأ وما فعلته قبله مباشرة:&#10;&#10;</translation>
    </message>
    <message id="Select Recording Audio Type">
        <source></source>
        <translation>اختر نوع التسجيل</translation>
    </message>
    <message id="Select Recording Audio Quality">
        <source></source>
        <translation>اختر جودة التسجيل</translation>
    </message>
    <message id="M4a">
        <source></source>
        <translation>M4a</translation>
    </message>
    <message id="Wave">
        <source></source>
        <translation>Wave</translation>
    </message>
    <message id="Aac">
        <source></source>
        <translation>Aac</translation>
    </message>
    <message id="Mp4">
        <source></source>
        <translation>Mp4</translation>
    </message>
    <message id="Caf">
        <source></source>
        <translation>Caf</translation>
    </message>
    <message id="Cancel">
        <source></source>
        <translation>إلغاء</translation>
    </message>
    <!-- Support -->
    <message id="Network Error">
        <source></source>
        <translation>خطأ في الشبكة</translation>
    </message>
    <message id="Please check your internet connection">
        <source></source>
        <translation>يُرجى التحقق من اتصالك بالإنترنت</translation>
    </message>
    <message id="MessageTitle">
        <source></source>
        <translation>هل يعجبك هذا المسجل؟</translation>
    </message>
    <message id="Message">
        <source></source>
        <translation>التقييم يساعد الآخرين على العثور عليه، ولا يستغرق سوى دقيقة.</translation>
    </message>
    <message id="NoButtonTitle">
        <source></source>
        <translation>لا، شكرًا</translation>
    </message>
    <message id="NowButtonTitle">
        <source></source>
        <translation>قيّم الآن</translation>
    </message>
    <message id="LaterButtonTitle">
        <source></source>
        <translation>ذكّرني لاحقًا</translation>
    </message>
    <message id="rate_no_store">
        <source></source>
        <translation>لا يوجد على هذا الحاسوب برنامج يفتح صفحات متجر البرمجيات.</translation>
    </message>
    <message id="report_no_mail">
        <source></source>
        <translation>لم يقبل أي برنامج بريد البلاغ. يُرجى الكتابة إلى ⁨%1⁩.</translation>
    </message>
    <message id="report_no_server">
        <source></source>
        <translation>لا يوجد</translation>
    </message>
    <message id="report_facts">
        <source></source>
        <translation>&#10;&#10;الإصدار: %1&#10;النظام: %2&#10;خادم الصوت: %3&#10;الصيغة: %4&#10;</translation>
    </message>
    <message id="settings_done">
        <source></source>
        <translation>تم</translation>
    </message>
    <!-- Recording -->
    <message id="lbl_recording">
        <source></source>
        <translation>جارٍ التسجيل</translation>
    </message>
    <message id="lbl_record_pause">
        <source></source>
        <translation>متوقف مؤقتًا</translation>
    </message>
    <message id="microphone_denied">
        <source></source>
        <translation>رُفض الوصول إلى الميكروفون</translation>
    </message>
    <message id="access_device_microphone">
        <source></source>
        <translation>يحتاج هذا التطبيق إلى ميكروفون جهازك للتسجيل. يُرجى السماح له بذلك في إعدادات النظام.</translation>
    </message>
    <message id="alert_title">
        <source></source>
        <translation>فشل التسجيل</translation>
    </message>
    <message id="alert_title_ok">
        <source></source>
        <translation>موافق</translation>
    </message>
    <message id="audio_hardware_alert_title">
        <source></source>
        <translation>لا يوجد ميكروفون</translation>
    </message>
    <message id="audio_hardware_alert_message">
        <source></source>
        <translation>لا يتوفر أي مدخل صوت. صِل ميكروفونًا ثم حاول مجددًا.</translation>
    </message>
    <message id="alert_error">
        <source></source>
        <translation>خطأ</translation>
    </message>
    <message id="file_size_msg">
        <source></source>
        <translation>حجم هذا التسجيل أكبر من 25 م.ب ولا يمكن إرساله بالبريد.</translation>
    </message>
    <message id="Your Mail has been sent successfully">
        <source></source>
        <translation>أُرسل بريدك</translation>
    </message>
    <message id="share_gone">
        <source></source>
        <translation>لم يعد «⁨%1⁩» موجودًا.</translation>
    </message>
    <message id="share_no_file">
        <source></source>
        <translation>«⁨%1⁩» ليس ملفًا يمكن مشاركته.</translation>
    </message>
    <message id="share_open_failed">
        <source></source>
        <translation>تعذر فتح «⁨%1⁩» في برنامج آخر.</translation>
    </message>
    <message id="share_folder_failed">
        <source></source>
        <translation>تعذر عرض مجلد «⁨%1⁩».</translation>
    </message>
    <message id="share_mail_none">
        <source></source>
        <translation>لا يوجد برنامج بريد.</translation>
    </message>
    <message id="share_mail_failed">
        <source></source>
        <translation>لم يقبل أي برنامج بريد الرسالة مع «⁨%1⁩».</translation>
    </message>
    <message id="share_copied">
        <source></source>
        <translation>«⁨%1⁩» في الحافظة.</translation>
    </message>
    <message id="share_copied_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>لا تسجيلات في الحافظة (%n).</numerusform>
            <numerusform>تسجيل واحد في الحافظة (%n).</numerusform>
            <numerusform>تسجيلان في الحافظة (%n).</numerusform>
            <numerusform>%n تسجيلات في الحافظة.</numerusform>
            <numerusform>%n تسجيلًا في الحافظة.</numerusform>
            <numerusform>%n تسجيل في الحافظة.</numerusform>
        </translation>
    </message>
    <message id="export_no_dialog">
        <source></source>
        <translation>تعذر السؤال عن مكان حفظ «⁨%1⁩»: لم يُصدَّر شيء.</translation>
    </message>
    <message id="export_running">
        <source></source>
        <translation>جارٍ تصدير «⁨%1⁩»</translation>
    </message>
    <message id="export_cancelled">
        <source></source>
        <translation>أُلغي تصدير «⁨%1⁩».</translation>
    </message>
    <message id="export_failed">
        <source></source>
        <translation>تعذر تصدير «⁨%1⁩»: ⁨%2⁩.</translation>
    </message>
    <message id="export_done">
        <source></source>
        <translation>صُدِّر «⁨%1⁩».</translation>
    </message>
    <message id="export_show">
        <source></source>
        <translation>إظهار</translation>
    </message>
    <message id="export_replace_title">
        <source></source>
        <translation>استبدال «⁨%1⁩»؟</translation>
    </message>
    <message id="export_replace_message">
        <source></source>
        <translation>يوجد ملف بهذا الاسم. سيُفقد محتواه.</translation>
    </message>
    <message id="export_replace">
        <source></source>
        <translation>استبدال</translation>
    </message>
    <message id="save_title">
        <source></source>
        <translation>تصدير</translation>
    </message>
    <message id="save_home">
        <source></source>
        <translation>المنزل</translation>
    </message>
    <message id="save_up">
        <source></source>
        <translation>المجلد الأعلى</translation>
    </message>
    <message id="save_folders">
        <source></source>
        <translation>المجلدات</translation>
    </message>
    <message id="save_name">
        <source></source>
        <translation>اسم الملف</translation>
    </message>
    <message id="save_accept">
        <source></source>
        <translation>تصدير</translation>
    </message>
    <message id="share_show">
        <source></source>
        <translation>إظهار في المجلد</translation>
    </message>
    <message id="shortcut_copy">
        <source></source>
        <translation>نسخ التسجيل المحدد</translation>
    </message>
    <message id="shortcut_export">
        <source></source>
        <translation>تصدير التسجيل المحدد</translation>
    </message>
    <message id="cloud_unavail">
        <source></source>
        <translation>السحابة غير متاحة</translation>
    </message>
    <message id="signin_icloud_account">
        <source></source>
        <translation>يُرجى تسجيل الدخول إلى حسابك السحابي لمزامنة التسجيلات.</translation>
    </message>
    <message id="alert_okay">
        <source></source>
        <translation>موافق</translation>
    </message>
    <message id="picke_subject">
        <source></source>
        <translation>تسجيل صوتي</translation>
    </message>
    <message id="error_microphone_disconnected">
        <source></source>
        <translation>فُصل الميكروفون.</translation>
    </message>
    <message id="error_microphone_missing">
        <source></source>
        <translation>لا يوجد ميكروفون للتسجيل منه.</translation>
    </message>
    <message id="error_output_missing">
        <source></source>
        <translation>لا يوجد جهاز لتشغيل الصوت.</translation>
    </message>
    <message id="error_recording_cut_short">
        <source></source>
        <translation>لا يمكن قراءة بقية هذا التسجيل.</translation>
    </message>
    <message id="error_sound_server_missing">
        <source></source>
        <translation>لا يعمل أي خادم صوت.</translation>
    </message>
    <message id="error_sound_server_refused">
        <source></source>
        <translation>رفض خادم الصوت الوصول.</translation>
    </message>
    <message id="error_sound_server_silent">
        <source></source>
        <translation>خادم الصوت لا يستجيب.</translation>
    </message>
    <message id="error_sound_server_stopped">
        <source></source>
        <translation>انقطع الاتصال بخادم الصوت.</translation>
    </message>
    <message id="idle_reason">
        <source></source>
        <translation>قد يكون هناك تسجيل صوتي جارٍ</translation>
    </message>
    <message id="sleep_reason">
        <source></source>
        <translation>يُكتب تسجيل صوتي على القرص أولًا</translation>
    </message>
    <message id="session_end_reason">
        <source></source>
        <translation>لم يُحفظ التسجيل بعد</translation>
    </message>
    <!-- Library -->
    <message id="voice_record">
        <source></source>
        <translation>التسجيلات</translation>
    </message>
    <message id="Name">
        <source></source>
        <translation>الاسم</translation>
    </message>
    <message id="Date">
        <source></source>
        <translation>التاريخ</translation>
    </message>
    <message id="Size">
        <source></source>
        <translation>الحجم</translation>
    </message>
    <message id="Local Recording&apos;s">
        <source></source>
        <translation>التسجيلات المحلية</translation>
    </message>
    <message id="iCloud Sync Recording&apos;s">
        <source></source>
        <translation>تسجيلات السحابة</translation>
    </message>
    <message id="iCloud not available">
        <source></source>
        <translation>السحابة غير متاحة</translation>
    </message>
    <message id="Please sign in iCloud">
        <source></source>
        <translation>يُرجى إعداد سحابتك في الإعدادات.</translation>
    </message>
    <!-- Actions of a recording -->
    <message id="Rename">
        <source></source>
        <translation>إعادة التسمية</translation>
    </message>
    <message id="open_in">
        <source></source>
        <translation>فتح باستخدام</translation>
    </message>
    <message id="Trimming">
        <source></source>
        <translation>قص</translation>
    </message>
    <message id="upload_drive">
        <source></source>
        <translation>الرفع إلى محرك أقراص</translation>
    </message>
    <message id="trim_m4a">
        <source></source>
        <translation>قص إلى M4A</translation>
    </message>
    <message id="alert_dismiss">
        <source></source>
        <translation>إلغاء</translation>
    </message>
    <message id="menu_close">
        <source></source>
        <translation>إغلاق</translation>
    </message>
    <message id="a11y_more">
        <source></source>
        <translation>إجراءات ⁨%1⁩</translation>
    </message>
    <message id="action_gone">
        <source></source>
        <translation>لم يعد «⁨%1⁩» موجودًا.</translation>
    </message>
    <message id="rename_audio">
        <source></source>
        <translation>إعادة تسمية التسجيل</translation>
    </message>
    <message id="filename_msg">
        <source></source>
        <translation>الاسم الجديد</translation>
    </message>
    <message id="error_rename">
        <source></source>
        <translation>لم تتغير التسمية</translation>
    </message>
    <message id="file_notContain">
        <source></source>
        <translation>لا يمكن أن يحتوي الاسم على</translation>
    </message>
    <message id="rename">
        <source></source>
        <translation>لم تتغير التسمية</translation>
    </message>
    <message id="audio_file_name">
        <source></source>
        <translation>اكتب اسمًا للتسجيل.</translation>
    </message>
    <message id="file_exist">
        <source></source>
        <translation>لم تتغير التسمية</translation>
    </message>
    <message id="audio_file_exist">
        <source></source>
        <translation>يوجد تسجيل بهذا الاسم.</translation>
    </message>
    <message id="rename_failed">
        <source></source>
        <translation>يحتفظ «⁨%1⁩» باسمه: ⁨%2⁩</translation>
    </message>
    <message id="delete_audio">
        <source></source>
        <translation>حذف التسجيل</translation>
    </message>
    <message id="delete_msg">
        <source></source>
        <translation>حذف «⁨%1⁩»؟</translation>
    </message>
    <message id="delete_trashed">
        <source></source>
        <translation>«⁨%1⁩» في المهملات.</translation>
    </message>
    <message id="delete_undo">
        <source></source>
        <translation>تراجع</translation>
    </message>
    <message id="delete_undone_beside">
        <source></source>
        <translation>الاسم «⁨%1⁩» مستخدم: عاد التسجيل باسم «⁨%2⁩».</translation>
    </message>
    <message id="delete_undo_failed">
        <source></source>
        <translation>تعذرت استعادة «⁨%1⁩»: ⁨%2⁩</translation>
    </message>
    <message id="delete_forever_msg">
        <source></source>
        <translation>لا يمكن نقل «⁨%1⁩» إلى المهملات. هل تريد حذفه نهائيًا؟</translation>
    </message>
    <message id="delete_forever">
        <source></source>
        <translation>حذف نهائي</translation>
    </message>
    <message id="delete_failed">
        <source></source>
        <translation>تعذر حذف «⁨%1⁩»: ⁨%2⁩</translation>
    </message>
    <message id="trim_no_aac">
        <source></source>
        <translation>لا يمكن قص ملف aac</translation>
    </message>
    <message id="trim_no_mp3">
        <source></source>
        <translation>لا يمكن قص ملف mp3</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>موافق</translation>
    </message>
    <message id="key_delete">
        <source></source>
        <translation>Del</translation>
    </message>
    <message id="key_menu">
        <source></source>
        <translation>القائمة</translation>
    </message>
    <message id="shortcut_rename">
        <source></source>
        <translation>إعادة تسمية التسجيل المحدد</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>حذف التسجيل المحدد</translation>
    </message>
    <message id="shortcut_menu">
        <source></source>
        <translation>كل إجراءات التسجيل المحدد</translation>
    </message>
    <!-- Shell -->
    <message id="record_hint">
        <source></source>
        <translation>اضغط الزر الأحمر للتسجيل</translation>
    </message>
    <message id="record_saving">
        <source></source>
        <translation>جارٍ الحفظ…</translation>
    </message>
    <message id="record_starting">
        <source></source>
        <translation>جارٍ الحفظ، ثم التسجيل…</translation>
    </message>
    <message id="microphone_stopped">
        <source></source>
        <translation>لا يصل صوت من الميكروفون. يستمر التسجيل حالما يصل.</translation>
    </message>
    <message id="microphone_back">
        <source></source>
        <translation>عاد الميكروفون. ينقص التسجيل ⁨%1⁩ ث.</translation>
    </message>
    <message id="microphone_changed">
        <source></source>
        <translation>التسجيل الآن من «⁨%1⁩».</translation>
    </message>
    <message id="microphone_absent">
        <source></source>
        <translation>«⁨%1⁩» غير متصل. التسجيل من «⁨%2⁩».</translation>
    </message>
    <message id="microphone_unknown">
        <source></source>
        <translation>الميكروفون</translation>
    </message>
    <message id="microphone_default">
        <source></source>
        <translation>افتراضي النظام</translation>
    </message>
    <message id="microphone_title">
        <source></source>
        <translation>الميكروفون</translation>
    </message>
    <message id="record_slept">
        <source></source>
        <translation>كان الحاسوب نائمًا: ينقص التسجيل ⁨%1⁩، وهو مستمر.</translation>
    </message>
    <message id="rescue_saved">
        <source></source>
        <translation>استُعيد تسجيل: ⁨%1⁩</translation>
    </message>
    <message id="rescue_saved_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>لم يُستعد أي تسجيل (%n).</numerusform>
            <numerusform>استُعيد تسجيل واحد (%n).</numerusform>
            <numerusform>استُعيد تسجيلان (%n).</numerusform>
            <numerusform>استُعيدت %n تسجيلات.</numerusform>
            <numerusform>استُعيد %n تسجيلًا.</numerusform>
            <numerusform>استُعيد %n تسجيل.</numerusform>
        </translation>
    </message>
    <message id="rescue_waits">
        <source></source>
        <translation>لا يمكن حفظ التسجيل الآن. يُحتفظ به ويُحفظ في أقرب وقت ممكن.</translation>
    </message>
    <message id="record_ended_title">
        <source></source>
        <translation>انتهى التسجيل</translation>
    </message>
    <message id="record_ended">
        <source></source>
        <translation>⁨%1⁩ احتُفظ بما سُجل حتى ذلك الحين.</translation>
    </message>
    <message id="library_empty_title">
        <source></source>
        <translation>لا توجد تسجيلات بعد</translation>
    </message>
    <message id="library_empty">
        <source></source>
        <translation>يُحفظ هنا كل ما تسجله. انتقل إلى «تسجيل» واضغط الزر الأحمر لتبدأ.</translation>
    </message>
    <message id="a11y_tabs">
        <source></source>
        <translation>الألسنة</translation>
    </message>
    <message id="a11y_record">
        <source></source>
        <translation>تسجيل</translation>
    </message>
    <message id="a11y_pause">
        <source></source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message id="a11y_resume">
        <source></source>
        <translation>استئناف</translation>
    </message>
    <message id="a11y_stop">
        <source></source>
        <translation>إيقاف وحفظ</translation>
    </message>
    <message id="a11y_level">
        <source></source>
        <translation>مستوى الصوت</translation>
    </message>
    <message id="a11y_sort">
        <source></source>
        <translation>ترتيب حسب ⁨%1⁩</translation>
    </message>
    <message id="a11y_sort_ascending">
        <source></source>
        <translation>مرتب حسب ⁨%1⁩، تصاعديًا</translation>
    </message>
    <message id="a11y_sort_descending">
        <source></source>
        <translation>مرتب حسب ⁨%1⁩، تنازليًا</translation>
    </message>
    <message id="library_search">
        <source></source>
        <translation>بحث في التسجيلات</translation>
    </message>
    <message id="library_search_none">
        <source></source>
        <translation>لا يوجد تسجيل يحمل هذا في اسمه</translation>
    </message>
    <message id="library_trimmed">
        <source></source>
        <translation>حُفظ باسم ⁨%1⁩</translation>
    </message>
    <message id="import_running">
        <source></source>
        <translation>جارٍ استيراد ⁨%1⁩</translation>
    </message>
    <message id="import_running_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>لا ملفات للاستيراد (%n)</numerusform>
            <numerusform>جارٍ استيراد ملف واحد (%n)</numerusform>
            <numerusform>جارٍ استيراد ملفين (%n)</numerusform>
            <numerusform>جارٍ استيراد %n ملفات</numerusform>
            <numerusform>جارٍ استيراد %n ملفًا</numerusform>
            <numerusform>جارٍ استيراد %n ملف</numerusform>
        </translation>
    </message>
    <message id="import_done">
        <source></source>
        <translation>استُورد ⁨%1⁩</translation>
    </message>
    <message id="import_done_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>لم يُستورد أي ملف (%n)</numerusform>
            <numerusform>استُورد ملف واحد (%n)</numerusform>
            <numerusform>استُورد ملفان (%n)</numerusform>
            <numerusform>استُوردت %n ملفات</numerusform>
            <numerusform>استُورد %n ملفًا</numerusform>
            <numerusform>استُورد %n ملف</numerusform>
        </translation>
    </message>
    <message id="import_failed">
        <source></source>
        <translation>لم يُستورد ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message id="import_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>لم يُستورد أي ملف (%n)، وفشل ⁨%1⁩</numerusform>
            <numerusform>استُورد ملف واحد (%n)، وفشل ⁨%1⁩</numerusform>
            <numerusform>استُورد ملفان (%n)، وفشل ⁨%1⁩</numerusform>
            <numerusform>استُوردت %n ملفات، وفشل ⁨%1⁩</numerusform>
            <numerusform>استُورد %n ملفًا، وفشل ⁨%1⁩</numerusform>
            <numerusform>استُورد %n ملف، وفشل ⁨%1⁩</numerusform>
        </translation>
    </message>
    <message id="import_details">
        <source></source>
        <translation>التفاصيل</translation>
    </message>
    <message id="import_details_title">
        <source></source>
        <translation>لم يُستورد</translation>
    </message>
    <message id="import_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>ولا غيرها (%n)</numerusform>
            <numerusform>وواحد آخر (%n)</numerusform>
            <numerusform>واثنان آخران (%n)</numerusform>
            <numerusform>و%n أخرى</numerusform>
            <numerusform>و%n أخرى</numerusform>
            <numerusform>و%n أخرى</numerusform>
        </translation>
    </message>
    <message id="import_cancelled">
        <source></source>
        <translation>أُلغي الاستيراد</translation>
    </message>
    <message id="import_drop">
        <source></source>
        <translation>أفلت ملفات الصوت هنا لاستيرادها</translation>
    </message>
    <message id="import_taken">
        <source></source>
        <translation>يوجد تسجيل بهذا الاسم</translation>
    </message>
    <message id="import_folder">
        <source></source>
        <translation>إنه مجلد</translation>
    </message>
    <message id="import_no_file">
        <source></source>
        <translation>ليس ملف صوت</translation>
    </message>
    <message id="import_gone">
        <source></source>
        <translation>لم يعد موجودًا</translation>
    </message>
    <message id="import_full">
        <source></source>
        <translation>القرص ممتلئ</translation>
    </message>
    <message id="import_busy">
        <source></source>
        <translation>برنامج آخر يكتبه الآن</translation>
    </message>
    <message id="import_remote">
        <source></source>
        <translation>ليس على هذا الجهاز</translation>
    </message>
    <message id="library_play">
        <source></source>
        <translation>تشغيل</translation>
    </message>
    <message id="player_times">
        <source></source>
        <translation>%1 / %2</translation>
    </message>
    <message id="player_stop">
        <source></source>
        <translation>إيقاف</translation>
    </message>
    <message id="a11y_speed">
        <source></source>
        <translation>السرعة</translation>
    </message>
    <message id="a11y_fold_player">
        <source></source>
        <translation>عرض مشغل أصغر</translation>
    </message>
    <message id="a11y_unfold_player">
        <source></source>
        <translation>عرض المشغل كاملًا</translation>
    </message>
    <message id="player_nothing">
        <source></source>
        <translation>اختر تسجيلًا لتشغيله</translation>
    </message>
    <message id="player_nothing_hint">
        <source></source>
        <translation>يُشغَّل هنا مع شكل موجته وبالسرعة التي تريدها.</translation>
    </message>
    <message id="player_unplayable">
        <source></source>
        <translation>لا يمكن تشغيل هذا الملف</translation>
    </message>
    <message id="a11y_play">
        <source></source>
        <translation>تشغيل</translation>
    </message>
    <message id="a11y_stop_playing">
        <source></source>
        <translation>إيقاف التشغيل</translation>
    </message>
    <message id="a11y_skip_back">
        <source></source>
        <translation>ترجيع، ⁨%1⁩</translation>
    </message>
    <message id="a11y_skip_forward">
        <source></source>
        <translation>تقديم، ⁨%1⁩</translation>
    </message>
    <message id="a11y_slow">
        <source></source>
        <translation>نصف السرعة</translation>
    </message>
    <message id="a11y_normal">
        <source></source>
        <translation>السرعة العادية</translation>
    </message>
    <message id="a11y_fast">
        <source></source>
        <translation>ضعف السرعة</translation>
    </message>
    <message id="a11y_to_earpiece">
        <source></source>
        <translation>إرسال الصوت إلى سماعة الأذن</translation>
    </message>
    <message id="a11y_to_speaker">
        <source></source>
        <translation>إرسال الصوت إلى مكبر الصوت</translation>
    </message>
    <message id="a11y_position">
        <source></source>
        <translation>الموضع</translation>
    </message>
    <message id="a11y_position_value">
        <source></source>
        <translation>⁨%1⁩ من ⁨%2⁩</translation>
    </message>
    <message id="a11y_close_player">
        <source></source>
        <translation>إغلاق المشغل</translation>
    </message>
    <message id="a11y_clear_search">
        <source></source>
        <translation>مسح البحث</translation>
    </message>
    <message id="a11y_row_playing">
        <source></source>
        <translation>قيد التشغيل</translation>
    </message>
    <message id="a11y_row_paused">
        <source></source>
        <translation>متوقف مؤقتًا</translation>
    </message>
    <message id="trimmer_title">
        <source></source>
        <translation>قص</translation>
    </message>
    <message id="trimmer_done">
        <source></source>
        <translation>تم</translation>
    </message>
    <message id="trimmer_trim">
        <source></source>
        <translation>قص</translation>
    </message>
    <message id="trimmer_edit">
        <source></source>
        <translation>تحرير مجددًا</translation>
    </message>
    <message id="trimmer_reset">
        <source></source>
        <translation>إعادة ضبط</translation>
    </message>
    <message id="trimmer_rerecord">
        <source></source>
        <translation>إعادة التسجيل</translation>
    </message>
    <message id="trimmer_play">
        <source></source>
        <translation>تشغيل التحديد</translation>
    </message>
    <message id="trimmer_loading">
        <source></source>
        <translation>جارٍ قراءة شكل الموجة…</translation>
    </message>
    <message id="trimmer_unreadable">
        <source></source>
        <translation>لا يمكن قراءة هذا التسجيل.</translation>
    </message>
    <message id="trimmer_range">
        <source></source>
        <translation>‎%1 – %2 · %3 ث</translation>
    </message>
    <message id="a11y_zoom">
        <source></source>
        <translation>التكبير</translation>
    </message>
    <message id="a11y_zoom_in">
        <source></source>
        <translation>تكبير</translation>
    </message>
    <message id="a11y_zoom_out">
        <source></source>
        <translation>تصغير</translation>
    </message>
    <message id="a11y_overview">
        <source></source>
        <translation>التسجيل كله والجزء المعروض منه</translation>
    </message>
    <message id="trimmer_zoom">
        <source></source>
        <translation>%1×</translation>
    </message>
    <message id="trimmer_total">
        <source></source>
        <translation>⁨%1⁩ إجمالًا</translation>
    </message>
    <message id="trimmer_exporting">
        <source></source>
        <translation>جارٍ حفظ التحديد</translation>
    </message>
    <message id="trimmer_stop_recording">
        <source></source>
        <translation>إيقاف التسجيل</translation>
    </message>
    <message id="a11y_trim_start">
        <source></source>
        <translation>بداية التحديد</translation>
    </message>
    <message id="a11y_trim_end">
        <source></source>
        <translation>نهاية التحديد</translation>
    </message>
    <message id="trimming_audio">
        <source></source>
        <translation>قص الصوت</translation>
    </message>
    <message id="trim_audio">
        <source></source>
        <translation>قص الصوت</translation>
    </message>
    <message id="save_trim_audio">
        <source></source>
        <translation>هل تريد المتابعة بالتسجيل المقصوص؟</translation>
    </message>
    <message id="trim_progress">
        <source></source>
        <translation>جارٍ قص الصوت</translation>
    </message>
    <message id="trim_play_trimmed">
        <source></source>
        <translation>استماع</translation>
    </message>
    <message id="trim_save">
        <source></source>
        <translation>حفظ</translation>
    </message>
    <message id="trim_close">
        <source></source>
        <translation>إغلاق</translation>
    </message>
    <message id="Processing">
        <source></source>
        <translation>جارٍ المعالجة</translation>
    </message>
    <message id="Yes">
        <source></source>
        <translation>نعم</translation>
    </message>
    <message id="No">
        <source></source>
        <translation>لا</translation>
    </message>
    <message id="session_return">
        <source></source>
        <translation>رجوع</translation>
    </message>
    <message id="session_running">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="session_failed">
        <source></source>
        <translation>لم يبدأ التسجيل</translation>
    </message>
    <message id="session_dismiss">
        <source></source>
        <translation>تجاهل</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message id="user_guide">
        <source></source>
        <translation>دليل المستخدم</translation>
    </message>
    <message id="shortcuts_close">
        <source></source>
        <translation>إغلاق</translation>
    </message>
    <message id="shortcut_record">
        <source></source>
        <translation>تسجيل، إيقاف مؤقت، استئناف</translation>
    </message>
    <message id="shortcut_stop">
        <source></source>
        <translation>إيقاف وحفظ</translation>
    </message>
    <message id="shortcut_tabs">
        <source></source>
        <translation>تسجيل، التسجيلات، الإعدادات</translation>
    </message>
    <message id="shortcut_find">
        <source></source>
        <translation>بحث في التسجيلات</translation>
    </message>
    <message id="shortcut_open">
        <source></source>
        <translation>فتح التسجيل المحدد</translation>
    </message>
    <message id="shortcut_ends">
        <source></source>
        <translation>الأول، الأخير، صفحة تالية</translation>
    </message>
    <message id="shortcut_play">
        <source></source>
        <translation>تشغيل، إيقاف مؤقت</translation>
    </message>
    <message id="shortcut_skip">
        <source></source>
        <translation>ترجيع، تقديم</translation>
    </message>
    <message id="shortcut_speed">
        <source></source>
        <translation>أبطأ، أسرع</translation>
    </message>
    <message id="shortcut_trim">
        <source></source>
        <translation>قص التسجيل المحدد</translation>
    </message>
    <message id="shortcut_zoom">
        <source></source>
        <translation>عند القص: تكبير، تصغير</translation>
    </message>
    <message id="shortcut_close">
        <source></source>
        <translation>إغلاق المشغل أو اللوحة</translation>
    </message>
    <message id="shortcut_list">
        <source></source>
        <translation>هذه القائمة</translation>
    </message>
    <message id="shortcut_quit">
        <source></source>
        <translation>إنهاء</translation>
    </message>
    <message id="key_space">
        <source></source>
        <translation>المسافة</translation>
    </message>
    <message id="key_enter">
        <source></source>
        <translation>Enter</translation>
    </message>
    <message id="key_escape">
        <source></source>
        <translation>Esc</translation>
    </message>
    <message id="key_ends">
        <source></source>
        <translation>Home، End، Page Up، Page Down</translation>
    </message>
    <message id="key_ctrl">
        <source></source>
        <translation>Ctrl+%1</translation>
    </message>
    <message id="record_saved">
        <source></source>
        <translation>حُفظ باسم ⁨%1⁩</translation>
    </message>
    <message id="record_kept">
        <source></source>
        <translation>انقطع التسجيل. وهو محفوظ باسم ⁨%1⁩</translation>
    </message>
    <message id="record_last">
        <source></source>
        <translation>الأخير: ⁨%1⁩ · ⁨%2⁩</translation>
    </message>
    <message id="record_silent">
        <source></source>
        <translation>لم يُسمع شيء منذ عشر ثوانٍ. هل الميكروفون مفتوح؟</translation>
    </message>
    <message id="record_peak">
        <source></source>
        <translation>مرتفع جدًا</translation>
    </message>
    <message id="record_stop">
        <source></source>
        <translation>إيقاف</translation>
    </message>
    <message id="record_level_value">
        <source></source>
        <translation>%1 dB</translation>
    </message>
    <message id="a11y_format">
        <source></source>
        <translation>الصيغة: ⁨%1⁩</translation>
    </message>
    <message id="a11y_microphone">
        <source></source>
        <translation>الميكروفون: ⁨%1⁩</translation>
    </message>
    <message id="a11y_play_last">
        <source></source>
        <translation>تشغيل آخر تسجيل، ⁨%1⁩</translation>
    </message>
    <!-- The passcode lock -->
    <message id="password">
        <source></source>
        <translation>أدخل رمز المرور</translation>
    </message>
    <message id="old_pass">
        <source></source>
        <translation>أدخل رمز المرور القديم</translation>
    </message>
    <message id="new_pass">
        <source></source>
        <translation>أدخل رمز مرور جديدًا</translation>
    </message>
    <message id="Re_pass">
        <source></source>
        <translation>أعد إدخال رمز المرور الجديد</translation>
    </message>
    <message id="Delete">
        <source></source>
        <translation>حذف</translation>
    </message>
    <message id="passcode_digits">
        <source></source>
        <translation>أُدخل ⁨%1⁩ من 4 أرقام</translation>
    </message>
    <message id="passcode_cover">
        <source></source>
        <translation>مقفل</translation>
    </message>
    <message id="passcode_missing">
        <source></source>
        <translation>لا يوجد رمز مرور محفوظ، لذا لا يفتح هذا القفل شيء. صفحة دليل tavi تشرح كيفية إيقافه.</translation>
    </message>
    <message id="passcode_not_stored">
        <source></source>
        <translation>لم يُحفظ رمز مرورك بعد</translation>
    </message>
    <message id="passcode_switch_not_stored">
        <source></source>
        <translation>بقي القفل برمز المرور كما كان</translation>
    </message>
    <message id="passcode_settings_refused">
        <source></source>
        <translation>لا يمكن كتابة الإعدادات. تحقق من امتلاء القرص ومن إذن الكتابة في مجلدها.</translation>
    </message>
    <!-- The store of the passcode -->
    <message id="error_keychain_waiting">
        <source></source>
        <translation>لا يمكن قراءة رمز المرور بعد. ربما يطلب سطح المكتب كلمة سر حلقة المفاتيح.</translation>
    </message>
    <message id="error_keychain_locked">
        <source></source>
        <translation>حلقة مفاتيح سطح المكتب التي تحفظ رمز المرور مقفلة. افتحها ثم حاول مجددًا.</translation>
    </message>
    <message id="error_keychain_gone">
        <source></source>
        <translation>حلقة مفاتيح سطح المكتب التي تحفظ رمز المرور لا تستجيب. شغّلها أو سجّل الدخول مجددًا.</translation>
    </message>
    <message id="error_keychain_damaged">
        <source></source>
        <translation>الملف الذي يحفظ رمز المرور تالف وتُرك كما هو: ⁨%1⁩</translation>
    </message>
    <message id="error_keychain_foreign">
        <source></source>
        <translation>الملف الذي يحفظ رمز المرور لا يُقرأ أو ليس لك: ⁨%1⁩</translation>
    </message>
    <message id="error_keychain_key">
        <source></source>
        <translation>مفتاح الملف الذي يحفظ رمز المرور مفقود: ⁨%1⁩</translation>
    </message>
    <message id="error_keychain_store">
        <source></source>
        <translation>تعذر على القفل برمز المرور حفظ شيء ما، وسيُبقيه حتى انتهاء البرنامج. ⁨%1⁩</translation>
    </message>
    <!-- The passcode on a terminal -->
    <message id="command_passcode">
        <source></source>
        <translation>رمز المرور: </translation>
    </message>
    <message id="command_passcode_wrong">
        <source></source>
        <translation>ليس هذا رمز المرور</translation>
    </message>
    <!-- The cloud: what stands in the way -->
    <message id="error_cloud_silent">
        <source></source>
        <translation>الخادم لا يستجيب.</translation>
    </message>
    <message id="error_cloud_broken">
        <source></source>
        <translation>الخادم لا يستجيب: ⁨%1⁩</translation>
    </message>
    <message id="error_cloud_certificate">
        <source></source>
        <translation>الخادم غير موثوق: ⁨%1⁩ لم يُرسل شيء.</translation>
    </message>
    <message id="error_cloud_moved">
        <source></source>
        <translation>المجلد الآن على عنوان آخر: ⁨%1⁩</translation>
    </message>
    <message id="error_cloud_no_dav">
        <source></source>
        <translation>لا يوجد مجلد WebDAV على هذا العنوان.</translation>
    </message>
    <message id="error_cloud_refused">
        <source></source>
        <translation>يرفض الخادم المستخدم أو كلمة السر.</translation>
    </message>
    <message id="error_cloud_no_folder">
        <source></source>
        <translation>المجلد ليس على الخادم.</translation>
    </message>
    <message id="error_cloud_full">
        <source></source>
        <translation>الخادم ممتلئ.</translation>
    </message>
    <message id="error_cloud_busy">
        <source></source>
        <translation>الخادم مشغول جدًا.</translation>
    </message>
    <message id="error_cloud_status">
        <source></source>
        <translation>أجاب الخادم بالحالة ⁨%1⁩.</translation>
    </message>
    <message id="error_cloud_part">
        <source></source>
        <translation>لم يرسل الخادم سوى جزء.</translation>
    </message>
    <message id="error_cloud_not_kept">
        <source></source>
        <translation>لم يحتفظ الخادم بملف.</translation>
    </message>
    <message id="error_cloud_too_long">
        <source></source>
        <translation>في مجلد الخادم ملفات أكثر من اللازم.</translation>
    </message>
    <message id="error_cloud_journal">
        <source></source>
        <translation>لا يمكن كتابة سجل السحابة.</translation>
    </message>
    <message id="error_cloud_other_folder">
        <source></source>
        <translation>مجلد الخادم لم يعد المجلد نفسه.</translation>
    </message>
    <message id="error_cloud_interrupted">
        <source></source>
        <translation>حدثت مقاطعة.</translation>
    </message>
    <message id="error_cloud_unreadable">
        <source></source>
        <translation>لا يمكن قراءة ⁨%1⁩.</translation>
    </message>
    <message id="error_cloud_growing">
        <source></source>
        <translation>لا تزال كتابة ⁨%1⁩ جارية.</translation>
    </message>
    <message id="error_cloud_length">
        <source></source>
        <translation>لا يذكر الخادم حجم ⁨%1⁩.</translation>
    </message>
    <message id="error_cloud_conflict">
        <source></source>
        <translation>تغير ⁨%1⁩ على جهازين: احتُفظ بالنسختين.</translation>
    </message>
    <message id="error_cloud_missing">
        <source></source>
        <translation>يُبحث عن ⁨%1⁩ مجددًا.</translation>
    </message>
    <message id="error_cloud_in_clear">
        <source></source>
        <translation>يجب أن يبدأ العنوان بـ https://.</translation>
    </message>
    <message id="error_cloud_unknown">
        <source></source>
        <translation>⁨%1⁩ ليس في السحابة.</translation>
    </message>
    <message id="error_cloud_unsent">
        <source></source>
        <translation>⁨%1⁩ ليس في السحابة بعد.</translation>
    </message>
    <message id="error_cloud_taken">
        <source></source>
        <translation>يوجد ملف بهذا الاسم في السحابة.</translation>
    </message>
    <message id="error_cloud_untold">
        <source></source>
        <translation>لا يمكن إبلاغ الخادم الآن.</translation>
    </message>
    <message id="error_cloud_foreign">
        <source></source>
        <translation>الملف لدى برنامج آخر.</translation>
    </message>
    <message id="error_cloud_read_only">
        <source></source>
        <translation>لا يسمح الخادم بالكتابة هناك.</translation>
    </message>
    <message id="error_cloud_password">
        <source></source>
        <translation>تعذر الحصول على كلمة السر: ⁨%1⁩</translation>
    </message>
    <message id="error_cloud_password_kept">
        <source></source>
        <translation>تعذر حفظ كلمة السر: ⁨%1⁩</translation>
    </message>
    <message id="error_cloud_elsewhere">
        <source></source>
        <translation>عملية أخرى تتولى السحابة الآن.</translation>
    </message>
    <message id="error_cloud_vanished" numerus="yes">
        <source></source>
        <translation>
            <numerusform>لم يختفِ أي ملف من الخادم (%n).</numerusform>
            <numerusform>اختفى ملف واحد (%n) من الخادم دفعة واحدة.</numerusform>
            <numerusform>اختفى ملفان (%n) من الخادم دفعة واحدة.</numerusform>
            <numerusform>اختفت %n ملفات من الخادم دفعة واحدة.</numerusform>
            <numerusform>اختفى %n ملفًا من الخادم دفعة واحدة.</numerusform>
            <numerusform>اختفى %n ملف من الخادم دفعة واحدة.</numerusform>
        </translation>
    </message>
    <message id="error_cloud_no_server">
        <source></source>
        <translation>السحابة ليست خادمًا.</translation>
    </message>
    <message id="command_cloud_vanished">
        <source></source>
        <translation>استخدم --remove-vanished لحذفها هنا أيضًا، أو --keep-vanished لإرسالها مجددًا.</translation>
    </message>
    <!-- The cloud: account page and rows -->
    <message id="cloud_title">
        <source></source>
        <translation>السحابة</translation>
    </message>
    <message id="cloud_details">
        <source></source>
        <translation>حساب السحابة</translation>
    </message>
    <message id="cloud_back">
        <source></source>
        <translation>رجوع</translation>
    </message>
    <message id="cloud_account">
        <source></source>
        <translation>الحساب</translation>
    </message>
    <message id="cloud_ask">
        <source></source>
        <translation>أين سحابتك؟</translation>
    </message>
    <message id="cloud_ask_hint">
        <source></source>
        <translation>يُنسخ إليها كل تسجيل تحفظه. لا يُنقل شيء من هذا الجهاز ولا يُحذف.</translation>
    </message>
    <message id="cloud_hint">
        <source></source>
        <translation>عند قطع الاتصال تبقى كل التسجيلات في مكانها، هنا وفي السحابة.</translation>
    </message>
    <message id="cloud_folder">
        <source></source>
        <translation>مجلد يزامنه برنامج آخر</translation>
    </message>
    <message id="cloud_choose_title">
        <source></source>
        <translation>اختيار مجلد السحابة</translation>
    </message>
    <message id="cloud_server">
        <source></source>
        <translation>خادم WebDAV</translation>
    </message>
    <message id="cloud_address">
        <source></source>
        <translation>العنوان، مثل https://example.org/dav/</translation>
    </message>
    <message id="cloud_user">
        <source></source>
        <translation>اسم المستخدم</translation>
    </message>
    <message id="cloud_password">
        <source></source>
        <translation>كلمة السر</translation>
    </message>
    <message id="cloud_connect">
        <source></source>
        <translation>اتصال</translation>
    </message>
    <message id="cloud_connecting">
        <source></source>
        <translation>جارٍ اختبار الاتصال…</translation>
    </message>
    <message id="cloud_place">
        <source></source>
        <translation>المكان</translation>
    </message>
    <message id="cloud_place_of">
        <source></source>
        <translation>⁨%1⁩، باسم ⁨%2⁩</translation>
    </message>
    <message id="cloud_state">
        <source></source>
        <translation>الحالة</translation>
    </message>
    <message id="cloud_last_sync">
        <source></source>
        <translation>آخر مزامنة</translation>
    </message>
    <message id="cloud_never">
        <source></source>
        <translation>ليس بعد</translation>
    </message>
    <message id="cloud_state_off">
        <source></source>
        <translation>متوقفة. شغّل المفتاح في الإعدادات للمزامنة.</translation>
    </message>
    <message id="cloud_state_folder">
        <source></source>
        <translation>متصلة. يزامن برنامج آخر هذا المجلد.</translation>
    </message>
    <message id="cloud_state_working">
        <source></source>
        <translation>جارٍ المزامنة…</translation>
    </message>
    <message id="cloud_state_in_step">
        <source></source>
        <translation>كل شيء في السحابة.</translation>
    </message>
    <message id="cloud_state_troubled">
        <source></source>
        <translation>غير متزامنة. ستُعاد المحاولة تلقائيًا.</translation>
    </message>
    <message id="cloud_state_asking">
        <source></source>
        <translation>ملفات مفقودة من الخادم: ⁨%1⁩. لن يُحذف شيء هنا قبل موافقتك.</translation>
    </message>
    <message id="cloud_sync">
        <source></source>
        <translation>مزامنة الآن</translation>
    </message>
    <message id="cloud_decide">
        <source></source>
        <translation>اتخاذ قرار…</translation>
    </message>
    <message id="cloud_disconnect">
        <source></source>
        <translation>قطع الاتصال</translation>
    </message>
    <message id="cloud_disconnect_title">
        <source></source>
        <translation>قطع الاتصال بالسحابة؟</translation>
    </message>
    <message id="cloud_disconnect_text">
        <source></source>
        <translation>لن يُستخدم ⁨%1⁩ بعد الآن، وستُنسى كلمة سره. تبقى كل التسجيلات هنا وهناك.</translation>
    </message>
    <message id="cloud_clear_title">
        <source></source>
        <translation>الإرسال دون حماية؟</translation>
    </message>
    <message id="cloud_clear_text">
        <source></source>
        <translation>يبدأ العنوان بـ http://. يمكن لأي شخص على الطريق قراءة تسجيلاتك وكلمة سرك.</translation>
    </message>
    <message id="cloud_clear_yes">
        <source></source>
        <translation>إرسال على أي حال</translation>
    </message>
    <message id="cloud_vanished_title">
        <source></source>
        <translation>ملفات مفقودة في السحابة</translation>
    </message>
    <message id="cloud_vanished_text">
        <source></source>
        <translation>ملفات لم تعد على الخادم: ⁨%1⁩. هل تُنقل إلى المهملات هنا أيضًا أم تُرسل مجددًا؟</translation>
    </message>
    <message id="cloud_vanished_later">
        <source></source>
        <translation>القرار لاحقًا</translation>
    </message>
    <message id="cloud_vanished_keep">
        <source></source>
        <translation>إرسال مجددًا</translation>
    </message>
    <message id="cloud_vanished_remove">
        <source></source>
        <translation>نقل إلى المهملات</translation>
    </message>
    <message id="save_choose">
        <source></source>
        <translation>اختيار</translation>
    </message>
    <message id="cloud_row_waiting">
        <source></source>
        <translation>بانتظار الإرسال</translation>
    </message>
    <message id="cloud_row_sending">
        <source></source>
        <translation>جارٍ الإرسال، ⁨%1⁩ %</translation>
    </message>
    <message id="cloud_row_there">
        <source></source>
        <translation>في السحابة</translation>
    </message>
    <message id="cloud_row_only">
        <source></source>
        <translation>في السحابة فقط. اضغط لجلبه</translation>
    </message>
    <message id="cloud_row_arriving">
        <source></source>
        <translation>في الطريق. اضغط للطلب مجددًا</translation>
    </message>
    <message id="cloud_row_conflict">
        <source></source>
        <translation>نسخة أخرى. احتُفظ بكلتيهما</translation>
    </message>
    <message id="cloud_refreshing">
        <source></source>
        <translation>جارٍ تحديث تسجيلات السحابة</translation>
    </message>
    <message id="shortcut_refresh">
        <source></source>
        <translation>تحديث تسجيلات السحابة</translation>
    </message>
    <!-- The companion -->
    <message id="companion_absent">
        <source></source>
        <translation>لا يعمل</translation>
    </message>
    <message id="companion_silent">
        <source></source>
        <translation>لا يستجيب</translation>
    </message>
    <message id="companion_locked">
        <source></source>
        <translation>مقفل</translation>
    </message>
    <message id="companion_idle">
        <source></source>
        <translation>جاهز للتسجيل</translation>
    </message>
    <message id="companion_recording">
        <source></source>
        <translation>جارٍ التسجيل، ⁨%1⁩</translation>
    </message>
    <message id="companion_paused">
        <source></source>
        <translation>متوقف مؤقتًا، ⁨%1⁩</translation>
    </message>
    <message id="companion_record">
        <source></source>
        <translation>تسجيل</translation>
    </message>
    <message id="companion_pause">
        <source></source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message id="companion_resume">
        <source></source>
        <translation>متابعة</translation>
    </message>
    <message id="companion_record_or_pause">
        <source></source>
        <translation>تسجيل أو إيقاف مؤقت</translation>
    </message>
    <message id="companion_stop">
        <source></source>
        <translation>إيقاف وحفظ</translation>
    </message>
    <message id="companion_show">
        <source></source>
        <translation>عرض التسجيلات</translation>
    </message>
    <message id="companion_quit">
        <source></source>
        <translation>إزالة الأيقونة</translation>
    </message>
    <message id="companion_not_running">
        <source></source>
        <translation>المسجل لا يعمل.</translation>
    </message>
    <message id="companion_no_channel">
        <source></source>
        <translation>لا يستجيب المسجل على هذه القناة. شغّله بالخيار --companion-channel نفسه.</translation>
    </message>
    <message id="companion_twice">
        <source></source>
        <translation>الأيقونة موجودة بالفعل.</translation>
    </message>
    <message id="companion_no_bus">
        <source></source>
        <translation>لا يوجد ناقل جلسة، ولا أيقونة بدونه.</translation>
    </message>
</context>
</TS>
