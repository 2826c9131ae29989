<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr">
<context>
    <name></name>
    <!-- The program -->
    <message id="app_name">
        <source></source>
        <translation>Ses Kaydedici</translation>
    </message>
    <message id="Record">
        <source></source>
        <translation>Kaydet</translation>
    </message>
    <message id="voice_memo">
        <source></source>
        <translation>Kayıtlar</translation>
    </message>
    <message id="Setting">
        <source></source>
        <translation>Ayarlar</translation>
    </message>
    <message id="Ok">
        <source></source>
        <translation>Tamam</translation>
    </message>
    <message id="OK">
        <source></source>
        <translation>Tamam</translation>
    </message>
    <message id="Record Audio">
        <source></source>
        <translation>Ses Kaydet</translation>
    </message>
    <message id="Quick Create Voice Memo">
        <source></source>
        <translation>Hızlı Kayıt Oluştur</translation>
    </message>
    <message id="Recordings">
        <source></source>
        <translation>Kayıtlar</translation>
    </message>
    <message id="Recorded Voice Memos">
        <source></source>
        <translation>Kaydedilmiş Kayıtlar</translation>
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
        <translation>Ayarlar</translation>
    </message>
    <message id="recording_type">
        <source></source>
        <translation>Kayıt Türü</translation>
    </message>
    <message id="recording_quality">
        <source></source>
        <translation>Kayıt Kalitesi</translation>
    </message>
    <message id="audio_setting">
        <source></source>
        <translation>Ses Ayarları</translation>
    </message>
    <message id="icloud_sync">
        <source></source>
        <translation>Bulut Eşitleme</translation>
    </message>
    <message id="mail">
        <source></source>
        <translation>E-posta</translation>
    </message>
    <message id="data_security">
        <source></source>
        <translation>Veri Güvenliği</translation>
    </message>
    <message id="support">
        <source></source>
        <translation>Destek</translation>
    </message>
    <message id="feature">
        <source></source>
        <translation>Özellikler</translation>
    </message>
    <message id="Extention">
        <source></source>
        <translation>Uzantı</translation>
    </message>
    <message id="Quality">
        <source></source>
        <translation>Kalite</translation>
    </message>
    <message id="rewind">
        <source></source>
        <translation>Geri sar ( %1 sn )</translation>
    </message>
    <message id="forward">
        <source></source>
        <translation>İleri sar ( %1 sn )</translation>
    </message>
    <message id="settings_english">
        <source></source>
        <translation>Low, Medium ve High her dilde İngilizcedir, çünkü kayıtların biçimi bu sözcüklere bağlıdır. Oynatılan bir kaydırıcının yazısı da öyledir.</translation>
    </message>
    <message id="use_icloud">
        <source></source>
        <translation>Kayıtları bulutla eşitle</translation>
    </message>
    <message id="Quick_Mail">
        <source></source>
        <translation>Kayıtları hemen e-postala</translation>
    </message>
    <message id="passcode_lock">
        <source></source>
        <translation>Parola kilidi</translation>
    </message>
    <message id="change_pass">
        <source></source>
        <translation>Parolayı değiştir</translation>
    </message>
    <message id="rate">
        <source></source>
        <translation>Uygulamayı değerlendir</translation>
    </message>
    <message id="more_apps">
        <source></source>
        <translation>Diğer uygulamalar</translation>
    </message>
    <message id="report_bug">
        <source></source>
        <translation>Sorun bildir</translation>
    </message>
    <message id="bug_report">
        <source></source>
        <translation>Sorun Bildirimi: Ses Kaydedici</translation>
    </message>
    <message id="gmail">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="issue_recorder">
        <source></source>
        <translation>Lütfen neyin yanlış gittiğini ve hemen öncesinde ne yaptığınızı açıklayın:&#10;&#10;</translation>
    </message>
    <message id="Select Recording Audio Type">
        <source></source>
        <translation>Kayıt türünü seçin</translation>
    </message>
    <message id="Select Recording Audio Quality">
        <source></source>
        <translation>Kayıt kalitesini seçin</translation>
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
        <translation>İptal</translation>
    </message>
    <!-- Support -->
    <message id="Network Error">
        <source></source>
        <translation>Ağ Hatası</translation>
    </message>
    <message id="Please check your internet connection">
        <source></source>
        <translation>Lütfen internet bağlantınızı denetleyin</translation>
    </message>
    <message id="MessageTitle">
        <source></source>
        <translation>Bu kaydediciyi beğendiniz mi?</translation>
    </message>
    <message id="Message">
        <source></source>
        <translation>Değerlendirmeniz başkalarının onu bulmasına yardım eder. Bir dakika sürer.</translation>
    </message>
    <message id="NoButtonTitle">
        <source></source>
        <translation>Hayır, teşekkürler</translation>
    </message>
    <message id="NowButtonTitle">
        <source></source>
        <translation>Şimdi değerlendir</translation>
    </message>
    <message id="LaterButtonTitle">
        <source></source>
        <translation>Sonra sor</translation>
    </message>
    <message id="rate_no_store">
        <source></source>
        <translation>Bu bilgisayarda yazılım merkezi sayfalarını açan bir program yok.</translation>
    </message>
    <message id="report_no_mail">
        <source></source>
        <translation>Hiçbir e-posta programı bildirimi almadı. Lütfen %1 adresine yazın.</translation>
    </message>
    <message id="report_no_server">
        <source></source>
        <translation>yok</translation>
    </message>
    <message id="report_facts">
        <source></source>
        <translation>&#10;&#10;Sürüm: %1&#10;Sistem: %2&#10;Ses sunucusu: %3&#10;Biçim: %4&#10;</translation>
    </message>
    <message id="settings_done">
        <source></source>
        <translation>Bitti</translation>
    </message>
    <!-- Recording -->
    <message id="lbl_recording">
        <source></source>
        <translation>Kaydediliyor</translation>
    </message>
    <message id="lbl_record_pause">
        <source></source>
        <translation>Duraklatıldı</translation>
    </message>
    <message id="microphone_denied">
        <source></source>
        <translation>Mikrofon erişimi reddedildi</translation>
    </message>
    <message id="access_device_microphone">
        <source></source>
        <translation>Kayıt için bu uygulamanın aygıtınızın mikrofonuna erişmesi gerekir. Lütfen sistem ayarlarından izin verin.</translation>
    </message>
    <message id="alert_title">
        <source></source>
        <translation>Kayıt başarısız</translation>
    </message>
    <message id="alert_title_ok">
        <source></source>
        <translation>Tamam</translation>
    </message>
    <message id="audio_hardware_alert_title">
        <source></source>
        <translation>Mikrofon yok</translation>
    </message>
    <message id="audio_hardware_alert_message">
        <source></source>
        <translation>Kullanılabilir ses girişi yok. Bir mikrofon bağlayıp yeniden deneyin.</translation>
    </message>
    <message id="alert_error">
        <source></source>
        <translation>Hata</translation>
    </message>
    <message id="file_size_msg">
        <source></source>
        <translation>Bu kayıt 25 MB’tan büyük olduğu için e-postayla gönderilemez.</translation>
    </message>
    <message id="Your Mail has been sent successfully">
        <source></source>
        <translation>E-postanız gönderildi</translation>
    </message>
    <message id="share_gone">
        <source></source>
        <translation>“%1” artık yok.</translation>
    </message>
    <message id="share_no_file">
        <source></source>
        <translation>“%1” paylaşılabilecek bir dosya değil.</translation>
    </message>
    <message id="share_open_failed">
        <source></source>
        <translation>“%1” başka bir programda açılamadı.</translation>
    </message>
    <message id="share_folder_failed">
        <source></source>
        <translation>“%1” klasörü gösterilemedi.</translation>
    </message>
    <message id="share_mail_none">
        <source></source>
        <translation>E-posta programı yok.</translation>
    </message>
    <message id="share_mail_failed">
        <source></source>
        <translation>Hiçbir e-posta programı “%1” ekli iletiyi almadı.</translation>
    </message>
    <message id="share_copied">
        <source></source>
        <translation>“%1” panoda.</translation>
    </message>
    <message id="share_copied_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kayıt panoda.</numerusform>
        </translation>
    </message>
    <message id="export_no_dialog">
        <source></source>
        <translation>“%1” için konum sorulamadı: hiçbir şey dışa aktarılmadı.</translation>
    </message>
    <message id="export_running">
        <source></source>
        <translation>“%1” dışa aktarılıyor</translation>
    </message>
    <message id="export_cancelled">
        <source></source>
        <translation>“%1” dışa aktarımı iptal edildi.</translation>
    </message>
    <message id="export_failed">
        <source></source>
        <translation>“%1” dışa aktarılamadı: %2.</translation>
    </message>
    <message id="export_done">
        <source></source>
        <translation>“%1” dışa aktarıldı.</translation>
    </message>
    <message id="export_show">
        <source></source>
        <translation>Göster</translation>
    </message>
    <message id="export_replace_title">
        <source></source>
        <translation>“%1” değiştirilsin mi?</translation>
    </message>
    <message id="export_replace_message">
        <source></source>
        <translation>Bu adda bir dosya zaten var. İçeriği kaybolacak.</translation>
    </message>
    <message id="export_replace">
        <source></source>
        <translation>Değiştir</translation>
    </message>
    <message id="save_title">
        <source></source>
        <translation>Dışa aktar</translation>
    </message>
    <message id="save_home">
        <source></source>
        <translation>Ev</translation>
    </message>
    <message id="save_up">
        <source></source>
        <translation>Üst klasör</translation>
    </message>
    <message id="save_folders">
        <source></source>
        <translation>Klasörler</translation>
    </message>
    <message id="save_name">
        <source></source>
        <translation>Dosya adı</translation>
    </message>
    <message id="save_accept">
        <source></source>
        <translation>Dışa aktar</translation>
    </message>
    <message id="share_show">
        <source></source>
        <translation>Klasörde göster</translation>
    </message>
    <message id="shortcut_copy">
        <source></source>
        <translation>Seçili kaydı kopyala</translation>
    </message>
    <message id="shortcut_export">
        <source></source>
        <translation>Seçili kaydı dışa aktar</translation>
    </message>
    <message id="cloud_unavail">
        <source></source>
        <translation>Bulut kullanılamıyor</translation>
    </message>
    <message id="signin_icloud_account">
        <source></source>
        <translation>Kayıtları eşitlemek için lütfen bulut hesabınızda oturum açın.</translation>
    </message>
    <message id="alert_okay">
        <source></source>
        <translation>Tamam</translation>
    </message>
    <message id="picke_subject">
        <source></source>
        <translation>Ses Kaydı</translation>
    </message>
    <message id="error_microphone_disconnected">
        <source></source>
        <translation>Mikrofonun bağlantısı kesildi.</translation>
    </message>
    <message id="error_microphone_missing">
        <source></source>
        <translation>Kayıt yapılacak mikrofon yok.</translation>
    </message>
    <message id="error_output_missing">
        <source></source>
        <translation>Sesin çalınacağı bir aygıt yok.</translation>
    </message>
    <message id="error_recording_cut_short">
        <source></source>
        <translation>Bu kaydın kalanı okunamıyor.</translation>
    </message>
    <message id="error_sound_server_missing">
        <source></source>
        <translation>Çalışan bir ses sunucusu yok.</translation>
    </message>
    <message id="error_sound_server_refused">
        <source></source>
        <translation>Ses sunucusu erişimi reddetti.</translation>
    </message>
    <message id="error_sound_server_silent">
        <source></source>
        <translation>Ses sunucusu yanıt vermiyor.</translation>
    </message>
    <message id="error_sound_server_stopped">
        <source></source>
        <translation>Ses sunucusuyla bağlantı koptu.</translation>
    </message>
    <message id="idle_reason">
        <source></source>
        <translation>Ses kaydı sürüyor olabilir</translation>
    </message>
    <message id="sleep_reason">
        <source></source>
        <translation>Önce bir ses kaydı diske yazılıyor</translation>
    </message>
    <message id="session_end_reason">
        <source></source>
        <translation>Kayıt henüz saklanmadı</translation>
    </message>
    <!-- Library -->
    <message id="voice_record">
        <source></source>
        <translation>Kayıtlar</translation>
    </message>
    <message id="Name">
        <source></source>
        <translation>Ad</translation>
    </message>
    <message id="Date">
        <source></source>
        <translation>Tarih</translation>
    </message>
    <message id="Size">
        <source></source>
        <translation>Boyut</translation>
    </message>
    <message id="Local Recording&apos;s">
        <source></source>
        <translation>Yerel Kayıtlar</translation>
    </message>
    <message id="iCloud Sync Recording&apos;s">
        <source></source>
        <translation>Buluttaki Kayıtlar</translation>
    </message>
    <message id="iCloud not available">
        <source></source>
        <translation>Bulut kullanılamıyor</translation>
    </message>
    <message id="Please sign in iCloud">
        <source></source>
        <translation>Lütfen ayarlardan bulutunuzu kurun.</translation>
    </message>
    <!-- Actions of a recording -->
    <message id="Rename">
        <source></source>
        <translation>Yeniden adlandır</translation>
    </message>
    <message id="open_in">
        <source></source>
        <translation>Birlikte aç</translation>
    </message>
    <message id="Trimming">
        <source></source>
        <translation>Kırp</translation>
    </message>
    <message id="upload_drive">
        <source></source>
        <translation>Sürücüye yükle</translation>
    </message>
    <message id="trim_m4a">
        <source></source>
        <translation>M4A olarak kırp</translation>
    </message>
    <message id="alert_dismiss">
        <source></source>
        <translation>İptal</translation>
    </message>
    <message id="menu_close">
        <source></source>
        <translation>Kapat</translation>
    </message>
    <message id="a11y_more">
        <source></source>
        <translation>%1 için eylemler</translation>
    </message>
    <message id="action_gone">
        <source></source>
        <translation>“%1” artık yok.</translation>
    </message>
    <message id="rename_audio">
        <source></source>
        <translation>Kaydı yeniden adlandır</translation>
    </message>
    <message id="filename_msg">
        <source></source>
        <translation>Yeni ad</translation>
    </message>
    <message id="error_rename">
        <source></source>
        <translation>Yeniden adlandırılmadı</translation>
    </message>
    <message id="file_notContain">
        <source></source>
        <translation>Bir ad şunu içeremez:</translation>
    </message>
    <message id="rename">
        <source></source>
        <translation>Yeniden adlandırılmadı</translation>
    </message>
    <message id="audio_file_name">
        <source></source>
        <translation>Kayıt için bir ad yazın.</translation>
    </message>
    <message id="file_exist">
        <source></source>
        <translation>Yeniden adlandırılmadı</translation>
    </message>
    <message id="audio_file_exist">
        <source></source>
        <translation>Bu adda bir kayıt zaten var.</translation>
    </message>
    <message id="rename_failed">
        <source></source>
        <translation>“%1” adını koruyor: %2</translation>
    </message>
    <message id="delete_audio">
        <source></source>
        <translation>Kaydı sil</translation>
    </message>
    <message id="delete_msg">
        <source></source>
        <translation>“%1” silinsin mi?</translation>
    </message>
    <message id="delete_trashed">
        <source></source>
        <translation>“%1” çöpte.</translation>
    </message>
    <message id="delete_undo">
        <source></source>
        <translation>Geri al</translation>
    </message>
    <message id="delete_undone_beside">
        <source></source>
        <translation>“%1” adı kullanılıyor: kayıt “%2” olarak geri geldi.</translation>
    </message>
    <message id="delete_undo_failed">
        <source></source>
        <translation>“%1” geri getirilemedi: %2</translation>
    </message>
    <message id="delete_forever_msg">
        <source></source>
        <translation>“%1” çöpe taşınamıyor. Kalıcı olarak silinsin mi?</translation>
    </message>
    <message id="delete_forever">
        <source></source>
        <translation>Kalıcı olarak sil</translation>
    </message>
    <message id="delete_failed">
        <source></source>
        <translation>“%1” silinemedi: %2</translation>
    </message>
    <message id="trim_no_aac">
        <source></source>
        <translation>aac dosyası kırpılamaz</translation>
    </message>
    <message id="trim_no_mp3">
        <source></source>
        <translation>mp3 dosyası kırpılamaz</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>Tamam</translation>
    </message>
    <message id="key_delete">
        <source></source>
        <translation>Sil</translation>
    </message>
    <message id="key_menu">
        <source></source>
        <translation>Menü</translation>
    </message>
    <message id="shortcut_rename">
        <source></source>
        <translation>Seçili kaydı yeniden adlandır</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>Seçili kaydı sil</translation>
    </message>
    <message id="shortcut_menu">
        <source></source>
        <translation>Seçili kayıt için tüm eylemler</translation>
    </message>
    <!-- Shell -->
    <message id="record_hint">
        <source></source>
        <translation>Kaydetmek için kırmızı düğmeye dokunun</translation>
    </message>
    <message id="record_saving">
        <source></source>
        <translation>Saklanıyor…</translation>
    </message>
    <message id="record_starting">
        <source></source>
        <translation>Saklanıyor, sonra kaydedilecek…</translation>
    </message>
    <message id="microphone_stopped">
        <source></source>
        <translation>Mikrofondan ses gelmiyor. Ses gelir gelmez kayıt sürecek.</translation>
    </message>
    <message id="microphone_back">
        <source></source>
        <translation>Mikrofon geri geldi. Kayıtta %1 sn eksik.</translation>
    </message>
    <message id="microphone_changed">
        <source></source>
        <translation>Şimdi “%1” ile kaydediliyor.</translation>
    </message>
    <message id="microphone_absent">
        <source></source>
        <translation>“%1” bağlı değil. “%2” ile kaydediliyor.</translation>
    </message>
    <message id="microphone_unknown">
        <source></source>
        <translation>Mikrofon</translation>
    </message>
    <message id="microphone_default">
        <source></source>
        <translation>Sistem varsayılanı</translation>
    </message>
    <message id="microphone_title">
        <source></source>
        <translation>Mikrofon</translation>
    </message>
    <message id="record_slept">
        <source></source>
        <translation>Bilgisayar uykudaydı: süren kayıtta %1 eksik.</translation>
    </message>
    <message id="rescue_saved">
        <source></source>
        <translation>Bir kayıt kurtarıldı: %1</translation>
    </message>
    <message id="rescue_saved_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kayıt kurtarıldı.</numerusform>
        </translation>
    </message>
    <message id="rescue_waits">
        <source></source>
        <translation>Kayıt şu anda saklanamıyor. Korunuyor ve olabildiğince çabuk saklanacak.</translation>
    </message>
    <message id="record_ended_title">
        <source></source>
        <translation>Kayıt sona erdi</translation>
    </message>
    <message id="record_ended">
        <source></source>
        <translation>%1 O ana kadar kaydedilenler korunuyor.</translation>
    </message>
    <message id="library_empty_title">
        <source></source>
        <translation>Henüz kayıt yok</translation>
    </message>
    <message id="library_empty">
        <source></source>
        <translation>Kaydettiğiniz her şey burada tutulur. Başlamak için “Kaydet” sekmesine gidip kırmızı düğmeye dokunun.</translation>
    </message>
    <message id="a11y_tabs">
        <source></source>
        <translation>Sekmeler</translation>
    </message>
    <message id="a11y_record">
        <source></source>
        <translation>Kaydet</translation>
    </message>
    <message id="a11y_pause">
        <source></source>
        <translation>Duraklat</translation>
    </message>
    <message id="a11y_resume">
        <source></source>
        <translation>Sürdür</translation>
    </message>
    <message id="a11y_stop">
        <source></source>
        <translation>Durdur ve sakla</translation>
    </message>
    <message id="a11y_level">
        <source></source>
        <translation>Ses düzeyi</translation>
    </message>
    <message id="a11y_sort">
        <source></source>
        <translation>%1 ölçütüne göre sırala</translation>
    </message>
    <message id="a11y_sort_ascending">
        <source></source>
        <translation>%1 ölçütüne göre sıralı, artan</translation>
    </message>
    <message id="a11y_sort_descending">
        <source></source>
        <translation>%1 ölçütüne göre sıralı, azalan</translation>
    </message>
    <message id="library_search">
        <source></source>
        <translation>Kayıtlarda ara</translation>
    </message>
    <message id="library_search_none">
        <source></source>
        <translation>Adında bu geçen kayıt yok</translation>
    </message>
    <message id="library_trimmed">
        <source></source>
        <translation>%1 olarak saklandı</translation>
    </message>
    <message id="import_running">
        <source></source>
        <translation>%1 içe aktarılıyor</translation>
    </message>
    <message id="import_running_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n dosya içe aktarılıyor</numerusform>
        </translation>
    </message>
    <message id="import_done">
        <source></source>
        <translation>%1 içe aktarıldı</translation>
    </message>
    <message id="import_done_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n dosya içe aktarıldı</numerusform>
        </translation>
    </message>
    <message id="import_failed">
        <source></source>
        <translation>%1 içe aktarılamadı: %2</translation>
    </message>
    <message id="import_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n dosya içe aktarıldı, %1 dosya aktarılamadı</numerusform>
        </translation>
    </message>
    <message id="import_details">
        <source></source>
        <translation>Ayrıntılar</translation>
    </message>
    <message id="import_details_title">
        <source></source>
        <translation>İçe aktarılamadı</translation>
    </message>
    <message id="import_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>ve %n tane daha</numerusform>
        </translation>
    </message>
    <message id="import_cancelled">
        <source></source>
        <translation>İçe aktarma iptal edildi</translation>
    </message>
    <message id="import_drop">
        <source></source>
        <translation>İçe aktarmak için ses dosyalarını buraya bırakın</translation>
    </message>
    <message id="import_taken">
        <source></source>
        <translation>bu adda bir kayıt zaten var</translation>
    </message>
    <message id="import_folder">
        <source></source>
        <translation>bu bir klasör</translation>
    </message>
    <message id="import_no_file">
        <source></source>
        <translation>bu bir ses dosyası değil</translation>
    </message>
    <message id="import_gone">
        <source></source>
        <translation>artık yok</translation>
    </message>
    <message id="import_full">
        <source></source>
        <translation>disk dolu</translation>
    </message>
    <message id="import_busy">
        <source></source>
        <translation>başka bir program yazıyor</translation>
    </message>
    <message id="import_remote">
        <source></source>
        <translation>bu bilgisayarda değil</translation>
    </message>
    <message id="library_play">
        <source></source>
        <translation>Çal</translation>
    </message>
    <message id="player_times">
        <source></source>
        <translation>%1 / %2</translation>
    </message>
    <message id="player_stop">
        <source></source>
        <translation>Durdur</translation>
    </message>
    <message id="a11y_speed">
        <source></source>
        <translation>Hız</translation>
    </message>
    <message id="a11y_fold_player">
        <source></source>
        <translation>Daha küçük oynatıcı göster</translation>
    </message>
    <message id="a11y_unfold_player">
        <source></source>
        <translation>Oynatıcının tamamını göster</translation>
    </message>
    <message id="player_nothing">
        <source></source>
        <translation>Çalmak için bir kayıt seçin</translation>
    </message>
    <message id="player_nothing_hint">
        <source></source>
        <translation>Burada, dalga biçimiyle, istediğiniz hızda çalar.</translation>
    </message>
    <message id="player_unplayable">
        <source></source>
        <translation>Bu dosya çalınamıyor</translation>
    </message>
    <message id="a11y_play">
        <source></source>
        <translation>Çal</translation>
    </message>
    <message id="a11y_stop_playing">
        <source></source>
        <translation>Çalmayı durdur</translation>
    </message>
    <message id="a11y_skip_back">
        <source></source>
        <translation>Geri atla, %1</translation>
    </message>
    <message id="a11y_skip_forward">
        <source></source>
        <translation>İleri atla, %1</translation>
    </message>
    <message id="a11y_slow">
        <source></source>
        <translation>Yarım hız</translation>
    </message>
    <message id="a11y_normal">
        <source></source>
        <translation>Normal hız</translation>
    </message>
    <message id="a11y_fast">
        <source></source>
        <translation>Çift hız</translation>
    </message>
    <message id="a11y_to_earpiece">
        <source></source>
        <translation>Sesi ahizeye gönder</translation>
    </message>
    <message id="a11y_to_speaker">
        <source></source>
        <translation>Sesi hoparlöre gönder</translation>
    </message>
    <message id="a11y_position">
        <source></source>
        <translation>Konum</translation>
    </message>
    <message id="a11y_position_value">
        <source></source>
        <translation>%1 / %2</translation>
    </message>
    <message id="a11y_close_player">
        <source></source>
        <translation>Oynatıcıyı kapat</translation>
    </message>
    <message id="a11y_clear_search">
        <source></source>
        <translation>Aramayı temizle</translation>
    </message>
    <message id="a11y_row_playing">
        <source></source>
        <translation>çalıyor</translation>
    </message>
    <message id="a11y_row_paused">
        <source></source>
        <translation>duraklatıldı</translation>
    </message>
    <message id="trimmer_title">
        <source></source>
        <translation>Kırp</translation>
    </message>
    <message id="trimmer_done">
        <source></source>
        <translation>Bitti</translation>
    </message>
    <message id="trimmer_trim">
        <source></source>
        <translation>Kırp</translation>
    </message>
    <message id="trimmer_edit">
        <source></source>
        <translation>Yeniden düzenle</translation>
    </message>
    <message id="trimmer_reset">
        <source></source>
        <translation>Sıfırla</translation>
    </message>
    <message id="trimmer_rerecord">
        <source></source>
        <translation>Yeniden kaydet</translation>
    </message>
    <message id="trimmer_play">
        <source></source>
        <translation>Seçimi çal</translation>
    </message>
    <message id="trimmer_loading">
        <source></source>
        <translation>Dalga biçimi okunuyor…</translation>
    </message>
    <message id="trimmer_unreadable">
        <source></source>
        <translation>Bu kayıt okunamıyor.</translation>
    </message>
    <message id="trimmer_range">
        <source></source>
        <translation>%1 – %2 · %3 sn</translation>
    </message>
    <message id="a11y_zoom">
        <source></source>
        <translation>Yakınlaştırma</translation>
    </message>
    <message id="a11y_zoom_in">
        <source></source>
        <translation>Yakınlaştır</translation>
    </message>
    <message id="a11y_zoom_out">
        <source></source>
        <translation>Uzaklaştır</translation>
    </message>
    <message id="a11y_overview">
        <source></source>
        <translation>Kaydın tümü ve gösterilen bölümü</translation>
    </message>
    <message id="trimmer_zoom">
        <source></source>
        <translation>%1×</translation>
    </message>
    <message id="trimmer_total">
        <source></source>
        <translation>toplam %1</translation>
    </message>
    <message id="trimmer_exporting">
        <source></source>
        <translation>Seçim saklanıyor</translation>
    </message>
    <message id="trimmer_stop_recording">
        <source></source>
        <translation>Kaydı durdur</translation>
    </message>
    <message id="a11y_trim_start">
        <source></source>
        <translation>Seçimin başı</translation>
    </message>
    <message id="a11y_trim_end">
        <source></source>
        <translation>Seçimin sonu</translation>
    </message>
    <message id="trimming_audio">
        <source></source>
        <translation>Sesi kırp</translation>
    </message>
    <message id="trim_audio">
        <source></source>
        <translation>Sesi kırp</translation>
    </message>
    <message id="save_trim_audio">
        <source></source>
        <translation>Kırpılmış kayıtla devam etmek istiyor musunuz?</translation>
    </message>
    <message id="trim_progress">
        <source></source>
        <translation>Ses kırpılıyor</translation>
    </message>
    <message id="trim_play_trimmed">
        <source></source>
        <translation>Dinle</translation>
    </message>
    <message id="trim_save">
        <source></source>
        <translation>Sakla</translation>
    </message>
    <message id="trim_close">
        <source></source>
        <translation>Kapat</translation>
    </message>
    <message id="Processing">
        <source></source>
        <translation>İşleniyor</translation>
    </message>
    <message id="Yes">
        <source></source>
        <translation>Evet</translation>
    </message>
    <message id="No">
        <source></source>
        <translation>Hayır</translation>
    </message>
    <message id="session_return">
        <source></source>
        <translation>Dön</translation>
    </message>
    <message id="session_running">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="session_failed">
        <source></source>
        <translation>Kayıt başlamadı</translation>
    </message>
    <message id="session_dismiss">
        <source></source>
        <translation>Kapat</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>Klavye Kısayolları</translation>
    </message>
    <message id="user_guide">
        <source></source>
        <translation>Kullanım Kılavuzu</translation>
    </message>
    <message id="shortcuts_close">
        <source></source>
        <translation>Kapat</translation>
    </message>
    <message id="shortcut_record">
        <source></source>
        <translation>Kaydet, duraklat, sürdür</translation>
    </message>
    <message id="shortcut_stop">
        <source></source>
        <translation>Durdur ve sakla</translation>
    </message>
    <message id="shortcut_tabs">
        <source></source>
        <translation>Kaydet, Kayıtlar, Ayarlar</translation>
    </message>
    <message id="shortcut_find">
        <source></source>
        <translation>Kayıtlarda ara</translation>
    </message>
    <message id="shortcut_open">
        <source></source>
        <translation>Seçili kaydı aç</translation>
    </message>
    <message id="shortcut_ends">
        <source></source>
        <translation>İlk, son, bir sayfa ileri</translation>
    </message>
    <message id="shortcut_play">
        <source></source>
        <translation>Çal, duraklat</translation>
    </message>
    <message id="shortcut_skip">
        <source></source>
        <translation>Geri, ileri atla</translation>
    </message>
    <message id="shortcut_speed">
        <source></source>
        <translation>Daha yavaş, daha hızlı</translation>
    </message>
    <message id="shortcut_trim">
        <source></source>
        <translation>Seçili kaydı kırp</translation>
    </message>
    <message id="shortcut_zoom">
        <source></source>
        <translation>Kırparken: yakınlaştır, uzaklaştır</translation>
    </message>
    <message id="shortcut_close">
        <source></source>
        <translation>Oynatıcıyı veya paneli kapat</translation>
    </message>
    <message id="shortcut_list">
        <source></source>
        <translation>Bu liste</translation>
    </message>
    <message id="shortcut_quit">
        <source></source>
        <translation>Çık</translation>
    </message>
    <message id="key_space">
        <source></source>
        <translation>Boşluk</translation>
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
        <translation>Home, End, Page Up, Page Down</translation>
    </message>
    <message id="key_ctrl">
        <source></source>
        <translation>Ctrl+%1</translation>
    </message>
    <message id="record_saved">
        <source></source>
        <translation>%1 olarak saklandı</translation>
    </message>
    <message id="record_kept">
        <source></source>
        <translation>Kayıt kesildi. %1 olarak saklandı</translation>
    </message>
    <message id="record_last">
        <source></source>
        <translation>Son: %1 · %2</translation>
    </message>
    <message id="record_silent">
        <source></source>
        <translation>On saniyedir hiçbir şey duyulmuyor. Mikrofon açık mı?</translation>
    </message>
    <message id="record_peak">
        <source></source>
        <translation>Çok yüksek</translation>
    </message>
    <message id="record_stop">
        <source></source>
        <translation>Durdur</translation>
    </message>
    <message id="record_level_value">
        <source></source>
        <translation>%1 dB</translation>
    </message>
    <message id="a11y_format">
        <source></source>
        <translation>Biçim: %1</translation>
    </message>
    <message id="a11y_microphone">
        <source></source>
        <translation>Mikrofon: %1</translation>
    </message>
    <message id="a11y_play_last">
        <source></source>
        <translation>Son kaydı çal, %1</translation>
    </message>
    <!-- The passcode lock -->
    <message id="password">
        <source></source>
        <translation>Parolanızı girin</translation>
    </message>
    <message id="old_pass">
        <source></source>
        <translation>Eski parolanızı girin</translation>
    </message>
    <message id="new_pass">
        <source></source>
        <translation>Yeni bir parola girin</translation>
    </message>
    <message id="Re_pass">
        <source></source>
        <translation>Yeni parolayı yeniden girin</translation>
    </message>
    <message id="Delete">
        <source></source>
        <translation>Sil</translation>
    </message>
    <message id="passcode_digits">
        <source></source>
        <translation>4 rakamdan %1 girildi</translation>
    </message>
    <message id="passcode_cover">
        <source></source>
        <translation>Kilitli</translation>
    </message>
    <message id="passcode_missing">
        <source></source>
        <translation>Saklanmış parola yok, bu yüzden bu kilidi hiçbiri açamaz. Nasıl kapatılacağı tavi kılavuz sayfasında yazar.</translation>
    </message>
    <message id="passcode_not_stored">
        <source></source>
        <translation>Parolanız henüz saklanmadı</translation>
    </message>
    <message id="passcode_switch_not_stored">
        <source></source>
        <translation>Parola kilidi olduğu gibi kaldı</translation>
    </message>
    <message id="passcode_settings_refused">
        <source></source>
        <translation>Ayarlar yazılamıyor. Diskin dolu olup olmadığına ve klasörüne yazma izniniz olup olmadığına bakın.</translation>
    </message>
    <!-- The store of the passcode -->
    <message id="error_keychain_waiting">
        <source></source>
        <translation>Parola henüz okunamıyor. Masaüstü, anahtarlığının parolasını soruyor olabilir.</translation>
    </message>
    <message id="error_keychain_locked">
        <source></source>
        <translation>Parolayı tutan masaüstü anahtarlığı kilitli. Kilidini açıp yeniden deneyin.</translation>
    </message>
    <message id="error_keychain_gone">
        <source></source>
        <translation>Parolayı tutan masaüstü anahtarlığı yanıt vermiyor. Onu başlatın ya da yeniden oturum açın.</translation>
    </message>
    <message id="error_keychain_damaged">
        <source></source>
        <translation>Parolayı tutan dosya bozuk ve olduğu gibi bırakıldı: %1</translation>
    </message>
    <message id="error_keychain_foreign">
        <source></source>
        <translation>Parolayı tutan dosya okunamıyor ya da size ait değil: %1</translation>
    </message>
    <message id="error_keychain_key">
        <source></source>
        <translation>Parolayı tutan dosyanın anahtarı yok: %1</translation>
    </message>
    <message id="error_keychain_store">
        <source></source>
        <translation>Parola kilidi bir şeyi saklayamadı ve program bitene kadar tutuyor. %1</translation>
    </message>
    <!-- The passcode on a terminal -->
    <message id="command_passcode">
        <source></source>
        <translation>Parola: </translation>
    </message>
    <message id="command_passcode_wrong">
        <source></source>
        <translation>parola bu değil</translation>
    </message>
    <!-- The cloud: what stands in the way -->
    <message id="error_cloud_silent">
        <source></source>
        <translation>Sunucu yanıt vermiyor.</translation>
    </message>
    <message id="error_cloud_broken">
        <source></source>
        <translation>Sunucu yanıt vermiyor: %1</translation>
    </message>
    <message id="error_cloud_certificate">
        <source></source>
        <translation>Sunucu güvenilir değil: %1 Hiçbir şey gönderilmedi.</translation>
    </message>
    <message id="error_cloud_moved">
        <source></source>
        <translation>Klasör artık başka bir adreste: %1</translation>
    </message>
    <message id="error_cloud_no_dav">
        <source></source>
        <translation>Bu adreste WebDAV klasörü yok.</translation>
    </message>
    <message id="error_cloud_refused">
        <source></source>
        <translation>Sunucu kullanıcıyı veya parolayı reddediyor.</translation>
    </message>
    <message id="error_cloud_no_folder">
        <source></source>
        <translation>Klasör sunucuda yok.</translation>
    </message>
    <message id="error_cloud_full">
        <source></source>
        <translation>Sunucu dolu.</translation>
    </message>
    <message id="error_cloud_busy">
        <source></source>
        <translation>Sunucu çok meşgul.</translation>
    </message>
    <message id="error_cloud_status">
        <source></source>
        <translation>Sunucu %1 durumuyla yanıt veriyor.</translation>
    </message>
    <message id="error_cloud_part">
        <source></source>
        <translation>Sunucu yalnızca bir bölümünü gönderdi.</translation>
    </message>
    <message id="error_cloud_not_kept">
        <source></source>
        <translation>Sunucu bir dosyayı tutmadı.</translation>
    </message>
    <message id="error_cloud_too_long">
        <source></source>
        <translation>Sunucudaki klasörde çok fazla dosya var.</translation>
    </message>
    <message id="error_cloud_journal">
        <source></source>
        <translation>Bulutun günlüğü yazılamıyor.</translation>
    </message>
    <message id="error_cloud_other_folder">
        <source></source>
        <translation>Sunucudaki klasör artık aynı klasör değil.</translation>
    </message>
    <message id="error_cloud_interrupted">
        <source></source>
        <translation>Kesildi.</translation>
    </message>
    <message id="error_cloud_unreadable">
        <source></source>
        <translation>%1 okunamıyor.</translation>
    </message>
    <message id="error_cloud_growing">
        <source></source>
        <translation>%1 hâlâ yazılıyor.</translation>
    </message>
    <message id="error_cloud_length">
        <source></source>
        <translation>Sunucu %1 boyutunu bildirmiyor.</translation>
    </message>
    <message id="error_cloud_conflict">
        <source></source>
        <translation>%1 iki aygıtta değiştirildi: ikisi de korunuyor.</translation>
    </message>
    <message id="error_cloud_missing">
        <source></source>
        <translation>%1 yeniden aranıyor.</translation>
    </message>
    <message id="error_cloud_in_clear">
        <source></source>
        <translation>Adres https:// ile başlamalı.</translation>
    </message>
    <message id="error_cloud_unknown">
        <source></source>
        <translation>%1 bulutta değil.</translation>
    </message>
    <message id="error_cloud_unsent">
        <source></source>
        <translation>%1 henüz bulutta değil.</translation>
    </message>
    <message id="error_cloud_taken">
        <source></source>
        <translation>Bulutta bu adda bir dosya var.</translation>
    </message>
    <message id="error_cloud_untold">
        <source></source>
        <translation>Şu anda sunucuya bildirilemiyor.</translation>
    </message>
    <message id="error_cloud_foreign">
        <source></source>
        <translation>Dosyayı başka bir program tutuyor.</translation>
    </message>
    <message id="error_cloud_read_only">
        <source></source>
        <translation>Sunucu oraya yazılmasına izin vermiyor.</translation>
    </message>
    <message id="error_cloud_password">
        <source></source>
        <translation>Parola alınamıyor: %1</translation>
    </message>
    <message id="error_cloud_password_kept">
        <source></source>
        <translation>Parola saklanamıyor: %1</translation>
    </message>
    <message id="error_cloud_elsewhere">
        <source></source>
        <translation>Bulutla şu anda başka bir süreç ilgileniyor.</translation>
    </message>
    <message id="error_cloud_vanished" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n dosya sunucudan bir anda kayboldu.</numerusform>
        </translation>
    </message>
    <message id="error_cloud_no_server">
        <source></source>
        <translation>Bulut bir sunucu değil.</translation>
    </message>
    <message id="command_cloud_vanished">
        <source></source>
        <translation>--remove-vanished onları burada da kaldırır, --keep-vanished yeniden gönderir.</translation>
    </message>
    <!-- The cloud: account page and rows -->
    <message id="cloud_title">
        <source></source>
        <translation>Bulut</translation>
    </message>
    <message id="cloud_details">
        <source></source>
        <translation>Bulut hesabı</translation>
    </message>
    <message id="cloud_back">
        <source></source>
        <translation>Geri</translation>
    </message>
    <message id="cloud_account">
        <source></source>
        <translation>Hesap</translation>
    </message>
    <message id="cloud_ask">
        <source></source>
        <translation>Bulutunuz nerede?</translation>
    </message>
    <message id="cloud_ask_hint">
        <source></source>
        <translation>Sakladığınız her kayıt oraya kopyalanır. Bu aygıtta hiçbir şey taşınmaz veya kaldırılmaz.</translation>
    </message>
    <message id="cloud_hint">
        <source></source>
        <translation>Bağlantı kesilince tüm kayıtlar burada ve bulutta oldukları yerde kalır.</translation>
    </message>
    <message id="cloud_folder">
        <source></source>
        <translation>Başka bir programın eşitlediği klasör</translation>
    </message>
    <message id="cloud_choose_title">
        <source></source>
        <translation>Bulut klasörünü seçin</translation>
    </message>
    <message id="cloud_server">
        <source></source>
        <translation>WebDAV sunucusu</translation>
    </message>
    <message id="cloud_address">
        <source></source>
        <translation>Adres, örn. https://example.org/dav/</translation>
    </message>
    <message id="cloud_user">
        <source></source>
        <translation>Kullanıcı adı</translation>
    </message>
    <message id="cloud_password">
        <source></source>
        <translation>Parola</translation>
    </message>
    <message id="cloud_connect">
        <source></source>
        <translation>Bağlan</translation>
    </message>
    <message id="cloud_connecting">
        <source></source>
        <translation>Bağlantı sınanıyor…</translation>
    </message>
    <message id="cloud_place">
        <source></source>
        <translation>Yer</translation>
    </message>
    <message id="cloud_place_of">
        <source></source>
        <translation>%1, %2 olarak</translation>
    </message>
    <message id="cloud_state">
        <source></source>
        <translation>Durum</translation>
    </message>
    <message id="cloud_last_sync">
        <source></source>
        <translation>Son eşitleme</translation>
    </message>
    <message id="cloud_never">
        <source></source>
        <translation>Henüz yok</translation>
    </message>
    <message id="cloud_state_off">
        <source></source>
        <translation>Kapalı. Eşitlemek için ayarlardaki anahtarı açın.</translation>
    </message>
    <message id="cloud_state_folder">
        <source></source>
        <translation>Bağlı. Bu klasörü başka bir program eşitliyor.</translation>
    </message>
    <message id="cloud_state_working">
        <source></source>
        <translation>Eşitleniyor…</translation>
    </message>
    <message id="cloud_state_in_step">
        <source></source>
        <translation>Her şey bulutta.</translation>
    </message>
    <message id="cloud_state_troubled">
        <source></source>
        <translation>Eşit değil. Kendiliğinden yeniden denenecek.</translation>
    </message>
    <message id="cloud_state_asking">
        <source></source>
        <translation>Sunucuda olmayan dosyalar: %1. Siz söylemeden burada hiçbir şey kaldırılmaz.</translation>
    </message>
    <message id="cloud_sync">
        <source></source>
        <translation>Şimdi eşitle</translation>
    </message>
    <message id="cloud_decide">
        <source></source>
        <translation>Karar ver…</translation>
    </message>
    <message id="cloud_disconnect">
        <source></source>
        <translation>Bağlantıyı kes</translation>
    </message>
    <message id="cloud_disconnect_title">
        <source></source>
        <translation>Bulutun bağlantısı kesilsin mi?</translation>
    </message>
    <message id="cloud_disconnect_text">
        <source></source>
        <translation>%1 artık kullanılmaz ve parolası unutulur. Tüm kayıtlar burada ve orada kalır.</translation>
    </message>
    <message id="cloud_clear_title">
        <source></source>
        <translation>Korumasız gönderilsin mi?</translation>
    </message>
    <message id="cloud_clear_text">
        <source></source>
        <translation>Adres http:// ile başlıyor. Yol üzerindeki herkes kayıtlarınızı ve parolanızı okuyabilir.</translation>
    </message>
    <message id="cloud_clear_yes">
        <source></source>
        <translation>Yine de gönder</translation>
    </message>
    <message id="cloud_vanished_title">
        <source></source>
        <translation>Bulutta eksik dosyalar</translation>
    </message>
    <message id="cloud_vanished_text">
        <source></source>
        <translation>Artık sunucuda olmayan dosyalar: %1. Burada da çöpe mi taşınsın, yoksa yeniden mi gönderilsin?</translation>
    </message>
    <message id="cloud_vanished_later">
        <source></source>
        <translation>Sonra karar ver</translation>
    </message>
    <message id="cloud_vanished_keep">
        <source></source>
        <translation>Yeniden gönder</translation>
    </message>
    <message id="cloud_vanished_remove">
        <source></source>
        <translation>Çöpe taşı</translation>
    </message>
    <message id="save_choose">
        <source></source>
        <translation>Seç</translation>
    </message>
    <message id="cloud_row_waiting">
        <source></source>
        <translation>Gönderilmeyi bekliyor</translation>
    </message>
    <message id="cloud_row_sending">
        <source></source>
        <translation>Gönderiliyor, %1 %</translation>
    </message>
    <message id="cloud_row_there">
        <source></source>
        <translation>Bulutta</translation>
    </message>
    <message id="cloud_row_only">
        <source></source>
        <translation>Yalnızca bulutta. İndirmek için dokunun</translation>
    </message>
    <message id="cloud_row_arriving">
        <source></source>
        <translation>Yolda. Yeniden istemek için dokunun</translation>
    </message>
    <message id="cloud_row_conflict">
        <source></source>
        <translation>Başka sürüm. İkisi de korunuyor</translation>
    </message>
    <message id="cloud_refreshing">
        <source></source>
        <translation>Buluttaki kayıtlar yenileniyor</translation>
    </message>
    <message id="shortcut_refresh">
        <source></source>
        <translation>Buluttaki kayıtları yenile</translation>
    </message>
    <!-- The companion -->
    <message id="companion_absent">
        <source></source>
        <translation>Çalışmıyor</translation>
    </message>
    <message id="companion_silent">
        <source></source>
        <translation>Yanıt vermiyor</translation>
    </message>
    <message id="companion_locked">
        <source></source>
        <translation>Kilitli</translation>
    </message>
    <message id="companion_idle">
        <source></source>
        <translation>Kayda hazır</translation>
    </message>
    <message id="companion_recording">
        <source></source>
        <translation>Kaydediliyor, %1</translation>
    </message>
    <message id="companion_paused">
        <source></source>
        <translation>Duraklatıldı, %1</translation>
    </message>
    <message id="companion_record">
        <source></source>
        <translation>Kaydet</translation>
    </message>
    <message id="companion_pause">
        <source></source>
        <translation>Duraklat</translation>
    </message>
    <message id="companion_resume">
        <source></source>
        <translation>Sürdür</translation>
    </message>
    <message id="companion_record_or_pause">
        <source></source>
        <translation>Kaydet veya duraklat</translation>
    </message>
    <message id="companion_stop">
        <source></source>
        <translation>Durdur ve sakla</translation>
    </message>
    <message id="companion_show">
        <source></source>
        <translation>Kayıtları göster</translation>
    </message>
    <message id="companion_quit">
        <source></source>
        <translation>Simgeyi kaldır</translation>
    </message>
    <message id="companion_not_running">
        <source></source>
        <translation>Kaydedici çalışmıyor.</translation>
    </message>
    <message id="companion_no_channel">
        <source></source>
        <translation>Kaydedici bu kanalda yanıt vermiyor. Aynı --companion-channel ile başlatın.</translation>
    </message>
    <message id="companion_twice">
        <source></source>
        <translation>Simge zaten var.</translation>
    </message>
    <message id="companion_no_bus">
        <source></source>
        <translation>Oturum veri yolu yok, onsuz simge de olmaz.</translation>
    </message>
</context>
</TS>
