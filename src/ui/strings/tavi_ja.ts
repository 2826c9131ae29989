<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <!-- The program -->
    <message id="app_name">
        <source></source>
        <translation>ボイスレコーダー</translation>
    </message>
    <message id="Record">
        <source></source>
        <translation>録音</translation>
    </message>
    <message id="voice_memo">
        <source></source>
        <translation>録音一覧</translation>
    </message>
    <message id="Setting">
        <source></source>
        <translation>設定</translation>
    </message>
    <message id="Ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="OK">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="Record Audio">
        <source></source>
        <translation>録音する</translation>
    </message>
    <message id="Quick Create Voice Memo">
        <source></source>
        <translation>すぐに録音を作成</translation>
    </message>
    <message id="Recordings">
        <source></source>
        <translation>録音一覧</translation>
    </message>
    <message id="Recorded Voice Memos">
        <source></source>
        <translation>保存した録音</translation>
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
        <translation>設定</translation>
    </message>
    <message id="recording_type">
        <source></source>
        <translation>録音の種類</translation>
    </message>
    <message id="recording_quality">
        <source></source>
        <translation>録音の品質</translation>
    </message>
    <message id="audio_setting">
        <source></source>
        <translation>音声の設定</translation>
    </message>
    <message id="icloud_sync">
        <source></source>
        <translation>クラウド同期</translation>
    </message>
    <message id="mail">
        <source></source>
        <translation>メール</translation>
    </message>
    <message id="data_security">
        <source></source>
        <translation>データ保護</translation>
    </message>
    <message id="support">
        <source></source>
        <translation>サポート</translation>
    </message>
    <message id="feature">
        <source></source>
        <translation>機能</translation>
    </message>
    <message id="Extention">
        <source></source>
        <translation>拡張子</translation>
    </message>
    <message id="Quality">
        <source></source>
        <translation>品質</translation>
    </message>
    <message id="rewind">
        <source></source>
        <translation>巻き戻し ( %1 秒 )</translation>
    </message>
    <message id="forward">
        <source></source>
        <translation>早送り ( %1 秒 )</translation>
    </message>
    <message id="settings_english">
        <source></source>
        <translation>Low、Medium、High はどの言語でも英語のままです。録音の形式がこの語で決まるためです。動かしたスライダーの表示も英語になります。</translation>
    </message>
    <message id="use_icloud">
        <source></source>
        <translation>録音をクラウドと同期</translation>
    </message>
    <message id="Quick_Mail">
        <source></source>
        <translation>録音をすぐにメール送信</translation>
    </message>
    <message id="passcode_lock">
        <source></source>
        <translation>パスコードロック</translation>
    </message>
    <message id="change_pass">
        <source></source>
        <translation>パスコードを変更</translation>
    </message>
    <message id="rate">
        <source></source>
        <translation>アプリを評価</translation>
    </message>
    <message id="more_apps">
        <source></source>
        <translation>その他のアプリ</translation>
    </message>
    <message id="report_bug">
        <source></source>
        <translation>問題を報告</translation>
    </message>
    <message id="bug_report">
        <source></source>
        <translation>問題の報告: ボイスレコーダー</translation>
    </message>
    <message id="gmail">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="issue_recorder">
        <source></source>
        <translation>発生した問題と、その直前の操作を記入してください:&#10;&#10;</translation>
    </message>
    <message id="Select Recording Audio Type">
        <source></source>
        <translation>録音の種類を選択</translation>
    </message>
    <message id="Select Recording Audio Quality">
        <source></source>
        <translation>録音の品質を選択</translation>
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
        <translation>キャンセル</translation>
    </message>
    <!-- Support -->
    <message id="Network Error">
        <source></source>
        <translation>ネットワークエラー</translation>
    </message>
    <message id="Please check your internet connection">
        <source></source>
        <translation>インターネット接続を確認してください</translation>
    </message>
    <message id="MessageTitle">
        <source></source>
        <translation>このレコーダーはいかがですか？</translation>
    </message>
    <message id="Message">
        <source></source>
        <translation>評価していただくと、他の方が見つけやすくなります。1分で終わります。</translation>
    </message>
    <message id="NoButtonTitle">
        <source></source>
        <translation>いいえ、結構です</translation>
    </message>
    <message id="NowButtonTitle">
        <source></source>
        <translation>今すぐ評価</translation>
    </message>
    <message id="LaterButtonTitle">
        <source></source>
        <translation>後で</translation>
    </message>
    <message id="rate_no_store">
        <source></source>
        <translation>このコンピューターには、ソフトウェアセンターのページを開くプログラムがありません。</translation>
    </message>
    <message id="report_no_mail">
        <source></source>
        <translation>報告を受け取れるメールソフトがありません。%1 までお送りください。</translation>
    </message>
    <message id="report_no_server">
        <source></source>
        <translation>なし</translation>
    </message>
    <message id="report_facts">
        <source></source>
        <translation>&#10;&#10;バージョン: %1&#10;システム: %2&#10;サウンドサーバー: %3&#10;形式: %4&#10;</translation>
    </message>
    <message id="settings_done">
        <source></source>
        <translation>完了</translation>
    </message>
    <!-- Recording -->
    <message id="lbl_recording">
        <source></source>
        <translation>録音中</translation>
    </message>
    <message id="lbl_record_pause">
        <source></source>
        <translation>一時停止中</translation>
    </message>
    <message id="microphone_denied">
        <source></source>
        <translation>マイクへのアクセスが拒否されました</translation>
    </message>
    <message id="access_device_microphone">
        <source></source>
        <translation>録音には端末のマイクが必要です。システム設定でマイクへのアクセスを許可してください。</translation>
    </message>
    <message id="alert_title">
        <source></source>
        <translation>録音できませんでした</translation>
    </message>
    <message id="alert_title_ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="audio_hardware_alert_title">
        <source></source>
        <translation>マイクがありません</translation>
    </message>
    <message id="audio_hardware_alert_message">
        <source></source>
        <translation>音声入力がありません。マイクを接続してから、もう一度お試しください。</translation>
    </message>
    <message id="alert_error">
        <source></source>
        <translation>エラー</translation>
    </message>
    <message id="file_size_msg">
        <source></source>
        <translation>この録音は 25 MB を超えているため、メールで送信できません。</translation>
    </message>
    <message id="Your Mail has been sent successfully">
        <source></source>
        <translation>メールを送信しました</translation>
    </message>
    <message id="share_gone">
        <source></source>
        <translation>「%1」はもうありません。</translation>
    </message>
    <message id="share_no_file">
        <source></source>
        <translation>「%1」は共有できるファイルではありません。</translation>
    </message>
    <message id="share_open_failed">
        <source></source>
        <translation>「%1」を他のプログラムで開けませんでした。</translation>
    </message>
    <message id="share_folder_failed">
        <source></source>
        <translation>「%1」のフォルダーを表示できませんでした。</translation>
    </message>
    <message id="share_mail_none">
        <source></source>
        <translation>メールソフトがありません。</translation>
    </message>
    <message id="share_mail_failed">
        <source></source>
        <translation>「%1」を添付できるメールソフトがありません。</translation>
    </message>
    <message id="share_copied">
        <source></source>
        <translation>「%1」をクリップボードにコピーしました。</translation>
    </message>
    <message id="share_copied_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 件の録音をクリップボードにコピーしました。</numerusform>
        </translation>
    </message>
    <message id="export_no_dialog">
        <source></source>
        <translation>「%1」の保存先を確認できなかったため、エクスポートしませんでした。</translation>
    </message>
    <message id="export_running">
        <source></source>
        <translation>「%1」をエクスポート中</translation>
    </message>
    <message id="export_cancelled">
        <source></source>
        <translation>「%1」のエクスポートをキャンセルしました。</translation>
    </message>
    <message id="export_failed">
        <source></source>
        <translation>「%1」をエクスポートできませんでした: %2。</translation>
    </message>
    <message id="export_done">
        <source></source>
        <translation>「%1」をエクスポートしました。</translation>
    </message>
    <message id="export_show">
        <source></source>
        <translation>表示</translation>
    </message>
    <message id="export_replace_title">
        <source></source>
        <translation>「%1」を置き換えますか？</translation>
    </message>
    <message id="export_replace_message">
        <source></source>
        <translation>同じ名前のファイルがすでにあります。その内容は失われます。</translation>
    </message>
    <message id="export_replace">
        <source></source>
        <translation>置き換え</translation>
    </message>
    <message id="save_title">
        <source></source>
        <translation>エクスポート</translation>
    </message>
    <message id="save_home">
        <source></source>
        <translation>ホーム</translation>
    </message>
    <message id="save_up">
        <source></source>
        <translation>上のフォルダー</translation>
    </message>
    <message id="save_folders">
        <source></source>
        <translation>フォルダー</translation>
    </message>
    <message id="save_name">
        <source></source>
        <translation>ファイル名</translation>
    </message>
    <message id="save_accept">
        <source></source>
        <translation>エクスポート</translation>
    </message>
    <message id="share_show">
        <source></source>
        <translation>フォルダーに表示</translation>
    </message>
    <message id="shortcut_copy">
        <source></source>
        <translation>選択した録音をコピー</translation>
    </message>
    <message id="shortcut_export">
        <source></source>
        <translation>選択した録音をエクスポート</translation>
    </message>
    <message id="cloud_unavail">
        <source></source>
        <translation>クラウドを利用できません</translation>
    </message>
    <message id="signin_icloud_account">
        <source></source>
        <translation>録音を同期するには、クラウドアカウントにサインインしてください。</translation>
    </message>
    <message id="alert_okay">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="picke_subject">
        <source></source>
        <translation>音声の録音</translation>
    </message>
    <message id="error_microphone_disconnected">
        <source></source>
        <translation>マイクが取り外されました。</translation>
    </message>
    <message id="error_microphone_missing">
        <source></source>
        <translation>録音に使えるマイクがありません。</translation>
    </message>
    <message id="error_output_missing">
        <source></source>
        <translation>音声を再生する機器がありません。</translation>
    </message>
    <message id="error_recording_cut_short">
        <source></source>
        <translation>この録音の残りを読み取れません。</translation>
    </message>
    <message id="error_sound_server_missing">
        <source></source>
        <translation>サウンドサーバーが動作していません。</translation>
    </message>
    <message id="error_sound_server_refused">
        <source></source>
        <translation>サウンドサーバーがアクセスを拒否しました。</translation>
    </message>
    <message id="error_sound_server_silent">
        <source></source>
        <translation>サウンドサーバーが応答しません。</translation>
    </message>
    <message id="error_sound_server_stopped">
        <source></source>
        <translation>サウンドサーバーとの接続が切れました。</translation>
    </message>
    <message id="idle_reason">
        <source></source>
        <translation>録音中の可能性があります</translation>
    </message>
    <message id="sleep_reason">
        <source></source>
        <translation>先に録音をディスクに書き込みます</translation>
    </message>
    <message id="session_end_reason">
        <source></source>
        <translation>録音はまだ保存されていません</translation>
    </message>
    <!-- Library -->
    <message id="voice_record">
        <source></source>
        <translation>録音一覧</translation>
    </message>
    <message id="Name">
        <source></source>
        <translation>名前</translation>
    </message>
    <message id="Date">
        <source></source>
        <translation>日付</translation>
    </message>
    <message id="Size">
        <source></source>
        <translation>サイズ</translation>
    </message>
    <message id="Local Recording&apos;s">
        <source></source>
        <translation>ローカルの録音</translation>
    </message>
    <message id="iCloud Sync Recording&apos;s">
        <source></source>
        <translation>クラウドの録音</translation>
    </message>
    <message id="iCloud not available">
        <source></source>
        <translation>クラウドを利用できません</translation>
    </message>
    <message id="Please sign in iCloud">
        <source></source>
        <translation>設定でクラウドを設定してください。</translation>
    </message>
    <!-- Actions of a recording -->
    <message id="Rename">
        <source></source>
        <translation>名前を変更</translation>
    </message>
    <message id="open_in">
        <source></source>
        <translation>他のアプリで開く</translation>
    </message>
    <message id="Trimming">
        <source></source>
        <translation>トリミング</translation>
    </message>
    <message id="upload_drive">
        <source></source>
        <translation>ドライブにアップロード</translation>
    </message>
    <message id="trim_m4a">
        <source></source>
        <translation>M4A にトリミング</translation>
    </message>
    <message id="alert_dismiss">
        <source></source>
        <translation>キャンセル</translation>
    </message>
    <message id="menu_close">
        <source></source>
        <translation>閉じる</translation>
    </message>
    <message id="a11y_more">
        <source></source>
        <translation>%1 の操作</translation>
    </message>
    <message id="action_gone">
        <source></source>
        <translation>「%1」はもうありません。</translation>
    </message>
    <message id="rename_audio">
        <source></source>
        <translation>録音の名前を変更</translation>
    </message>
    <message id="filename_msg">
        <source></source>
        <translation>新しい名前</translation>
    </message>
    <message id="error_rename">
        <source></source>
        <translation>名前は変更されませんでした</translation>
    </message>
    <message id="file_notContain">
        <source></source>
        <translation>名前に使えない文字:</translation>
    </message>
    <message id="rename">
        <source></source>
        <translation>名前は変更されませんでした</translation>
    </message>
    <message id="audio_file_name">
        <source></source>
        <translation>録音の名前を入力してください。</translation>
    </message>
    <message id="file_exist">
        <source></source>
        <translation>名前は変更されませんでした</translation>
    </message>
    <message id="audio_file_exist">
        <source></source>
        <translation>同じ名前の録音がすでにあります。</translation>
    </message>
    <message id="rename_failed">
        <source></source>
        <translation>「%1」の名前はそのままです: %2</translation>
    </message>
    <message id="delete_audio">
        <source></source>
        <translation>録音を削除</translation>
    </message>
    <message id="delete_msg">
        <source></source>
        <translation>「%1」を削除しますか？</translation>
    </message>
    <message id="delete_trashed">
        <source></source>
        <translation>「%1」をゴミ箱に移動しました。</translation>
    </message>
    <message id="delete_undo">
        <source></source>
        <translation>元に戻す</translation>
    </message>
    <message id="delete_undone_beside">
        <source></source>
        <translation>「%1」は使われているため、「%2」として元に戻しました。</translation>
    </message>
    <message id="delete_undo_failed">
        <source></source>
        <translation>「%1」を元に戻せませんでした: %2</translation>
    </message>
    <message id="delete_forever_msg">
        <source></source>
        <translation>「%1」はゴミ箱に移動できません。完全に削除しますか？</translation>
    </message>
    <message id="delete_forever">
        <source></source>
        <translation>完全に削除</translation>
    </message>
    <message id="delete_failed">
        <source></source>
        <translation>「%1」を削除できませんでした: %2</translation>
    </message>
    <message id="trim_no_aac">
        <source></source>
        <translation>aac ファイルはトリミングできません</translation>
    </message>
    <message id="trim_no_mp3">
        <source></source>
        <translation>mp3 ファイルはトリミングできません</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="key_delete">
        <source></source>
        <translation>Del</translation>
    </message>
    <message id="key_menu">
        <source></source>
        <translation>メニュー</translation>
    </message>
    <message id="shortcut_rename">
        <source></source>
        <translation>選択した録音の名前を変更</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>選択した録音を削除</translation>
    </message>
    <message id="shortcut_menu">
        <source></source>
        <translation>選択した録音のすべての操作</translation>
    </message>
    <!-- Shell -->
    <message id="record_hint">
        <source></source>
        <translation>赤いボタンをタップして録音</translation>
    </message>
    <message id="record_saving">
        <source></source>
        <translation>保存中…</translation>
    </message>
    <message id="record_starting">
        <source></source>
        <translation>保存後に録音します…</translation>
    </message>
    <message id="microphone_stopped">
        <source></source>
        <translation>マイクから音が届きません。届き次第、録音を続けます。</translation>
    </message>
    <message id="microphone_back">
        <source></source>
        <translation>マイクが復帰しました。録音の %1 秒分が欠けています。</translation>
    </message>
    <message id="microphone_changed">
        <source></source>
        <translation>「%1」から録音しています。</translation>
    </message>
    <message id="microphone_absent">
        <source></source>
        <translation>「%1」が接続されていません。「%2」から録音します。</translation>
    </message>
    <message id="microphone_unknown">
        <source></source>
        <translation>マイク</translation>
    </message>
    <message id="microphone_default">
        <source></source>
        <translation>システムの既定</translation>
    </message>
    <message id="microphone_title">
        <source></source>
        <translation>マイク</translation>
    </message>
    <message id="record_slept">
        <source></source>
        <translation>コンピューターがスリープしたため、録音の %1 が欠けています。録音は続いています。</translation>
    </message>
    <message id="rescue_saved">
        <source></source>
        <translation>録音を復元しました: %1</translation>
    </message>
    <message id="rescue_saved_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 件の録音を復元しました。</numerusform>
        </translation>
    </message>
    <message id="rescue_waits">
        <source></source>
        <translation>今は録音を保存できません。録音は保持され、可能になり次第保存されます。</translation>
    </message>
    <message id="record_ended_title">
        <source></source>
        <translation>録音が終了しました</translation>
    </message>
    <message id="record_ended">
        <source></source>
        <translation>%1 それまでの録音は保持されています。</translation>
    </message>
    <message id="library_empty_title">
        <source></source>
        <translation>まだ録音がありません</translation>
    </message>
    <message id="library_empty">
        <source></source>
        <translation>録音はここに保存されます。「録音」に移動し、赤いボタンをタップして始めましょう。</translation>
    </message>
    <message id="a11y_tabs">
        <source></source>
        <translation>タブ</translation>
    </message>
    <message id="a11y_record">
        <source></source>
        <translation>録音</translation>
    </message>
    <message id="a11y_pause">
        <source></source>
        <translation>一時停止</translation>
    </message>
    <message id="a11y_resume">
        <source></source>
        <translation>再開</translation>
    </message>
    <message id="a11y_stop">
        <source></source>
        <translation>停止して保存</translation>
    </message>
    <message id="a11y_level">
        <source></source>
        <translation>音量レベル</translation>
    </message>
    <message id="a11y_sort">
        <source></source>
        <translation>%1で並べ替え</translation>
    </message>
    <message id="a11y_sort_ascending">
        <source></source>
        <translation>%1で並べ替え済み (昇順)</translation>
    </message>
    <message id="a11y_sort_descending">
        <source></source>
        <translation>%1で並べ替え済み (降順)</translation>
    </message>
    <message id="library_search">
        <source></source>
        <translation>録音を検索</translation>
    </message>
    <message id="library_search_none">
        <source></source>
        <translation>名前が一致する録音はありません</translation>
    </message>
    <message id="library_trimmed">
        <source></source>
        <translation>%1 として保存しました</translation>
    </message>
    <message id="import_running">
        <source></source>
        <translation>%1 をインポート中</translation>
    </message>
    <message id="import_running_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 個のファイルをインポート中</numerusform>
        </translation>
    </message>
    <message id="import_done">
        <source></source>
        <translation>%1 をインポートしました</translation>
    </message>
    <message id="import_done_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 個のファイルをインポートしました</numerusform>
        </translation>
    </message>
    <message id="import_failed">
        <source></source>
        <translation>%1 をインポートできませんでした: %2</translation>
    </message>
    <message id="import_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 個のファイルをインポートしました (失敗 %1 個)</numerusform>
        </translation>
    </message>
    <message id="import_details">
        <source></source>
        <translation>詳細</translation>
    </message>
    <message id="import_details_title">
        <source></source>
        <translation>インポートできなかったファイル</translation>
    </message>
    <message id="import_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>他 %n 件</numerusform>
        </translation>
    </message>
    <message id="import_cancelled">
        <source></source>
        <translation>インポートをキャンセルしました</translation>
    </message>
    <message id="import_drop">
        <source></source>
        <translation>ここに音声ファイルをドロップしてインポート</translation>
    </message>
    <message id="import_taken">
        <source></source>
        <translation>同じ名前の録音がすでにあります</translation>
    </message>
    <message id="import_folder">
        <source></source>
        <translation>フォルダーです</translation>
    </message>
    <message id="import_no_file">
        <source></source>
        <translation>音声ファイルではありません</translation>
    </message>
    <message id="import_gone">
        <source></source>
        <translation>もうありません</translation>
    </message>
    <message id="import_full">
        <source></source>
        <translation>ディスクがいっぱいです</translation>
    </message>
    <message id="import_busy">
        <source></source>
        <translation>他のプログラムが書き込み中です</translation>
    </message>
    <message id="import_remote">
        <source></source>
        <translation>このコンピューターにありません</translation>
    </message>
    <message id="library_play">
        <source></source>
        <translation>再生</translation>
    </message>
    <message id="player_times">
        <source></source>
        <translation>%1 / %2</translation>
    </message>
    <message id="player_stop">
        <source></source>
        <translation>停止</translation>
    </message>
    <message id="a11y_speed">
        <source></source>
        <translation>速度</translation>
    </message>
    <message id="a11y_fold_player">
        <source></source>
        <translation>プレーヤーを小さく表示</translation>
    </message>
    <message id="a11y_unfold_player">
        <source></source>
        <translation>プレーヤー全体を表示</translation>
    </message>
    <message id="player_nothing">
        <source></source>
        <translation>再生する録音を選んでください</translation>
    </message>
    <message id="player_nothing_hint">
        <source></source>
        <translation>波形とともに、お好みの速度でここで再生されます。</translation>
    </message>
    <message id="player_unplayable">
        <source></source>
        <translation>このファイルは再生できません</translation>
    </message>
    <message id="a11y_play">
        <source></source>
        <translation>再生</translation>
    </message>
    <message id="a11y_stop_playing">
        <source></source>
        <translation>再生を停止</translation>
    </message>
    <message id="a11y_skip_back">
        <source></source>
        <translation>戻る、%1</translation>
    </message>
    <message id="a11y_skip_forward">
        <source></source>
        <translation>進む、%1</translation>
    </message>
    <message id="a11y_slow">
        <source></source>
        <translation>半分の速度</translation>
    </message>
    <message id="a11y_normal">
        <source></source>
        <translation>標準の速度</translation>
    </message>
    <message id="a11y_fast">
        <source></source>
        <translation>2 倍の速度</translation>
    </message>
    <message id="a11y_to_earpiece">
        <source></source>
        <translation>受話口から音を出す</translation>
    </message>
    <message id="a11y_to_speaker">
        <source></source>
        <translation>スピーカーから音を出す</translation>
    </message>
    <message id="a11y_position">
        <source></source>
        <translation>位置</translation>
    </message>
    <message id="a11y_position_value">
        <source></source>
        <translation>%1 / %2</translation>
    </message>
    <message id="a11y_close_player">
        <source></source>
        <translation>プレーヤーを閉じる</translation>
    </message>
    <message id="a11y_clear_search">
        <source></source>
        <translation>検索をクリア</translation>
    </message>
    <message id="a11y_row_playing">
        <source></source>
        <translation>再生中</translation>
    </message>
    <message id="a11y_row_paused">
        <source></source>
        <translation>一時停止中</translation>
    </message>
    <message id="trimmer_title">
        <source></source>
        <translation>トリミング</translation>
    </message>
    <message id="trimmer_done">
        <source></source>
        <translation>完了</translation>
    </message>
    <message id="trimmer_trim">
        <source></source>
        <translation>トリミング</translation>
    </message>
    <message id="trimmer_edit">
        <source></source>
        <translation>もう一度編集</translation>
    </message>
    <message id="trimmer_reset">
        <source></source>
        <translation>リセット</translation>
    </message>
    <message id="trimmer_rerecord">
        <source></source>
        <translation>録音し直す</translation>
    </message>
    <message id="trimmer_play">
        <source></source>
        <translation>選択範囲を再生</translation>
    </message>
    <message id="trimmer_loading">
        <source></source>
        <translation>波形を読み込み中…</translation>
    </message>
    <message id="trimmer_unreadable">
        <source></source>
        <translation>この録音を読み取れません。</translation>
    </message>
    <message id="trimmer_range">
        <source></source>
        <translation>%1 – %2 · %3 秒</translation>
    </message>
    <message id="a11y_zoom">
        <source></source>
        <translation>ズーム</translation>
    </message>
    <message id="a11y_zoom_in">
        <source></source>
        <translation>拡大</translation>
    </message>
    <message id="a11y_zoom_out">
        <source></source>
        <translation>縮小</translation>
    </message>
    <message id="a11y_overview">
        <source></source>
        <translation>録音全体と表示中の範囲</translation>
    </message>
    <message id="trimmer_zoom">
        <source></source>
        <translation>%1×</translation>
    </message>
    <message id="trimmer_total">
        <source></source>
        <translation>全体 %1</translation>
    </message>
    <message id="trimmer_exporting">
        <source></source>
        <translation>選択範囲を保存中</translation>
    </message>
    <message id="trimmer_stop_recording">
        <source></source>
        <translation>録音を停止</translation>
    </message>
    <message id="a11y_trim_start">
        <source></source>
        <translation>選択範囲の始点</translation>
    </message>
    <message id="a11y_trim_end">
        <source></source>
        <translation>選択範囲の終点</translation>
    </message>
    <message id="trimming_audio">
        <source></source>
        <translation>音声をトリミング</translation>
    </message>
    <message id="trim_audio">
        <source></source>
        <translation>音声をトリミング</translation>
    </message>
    <message id="save_trim_audio">
        <source></source>
        <translation>トリミングした録音で続けますか？</translation>
    </message>
    <message id="trim_progress">
        <source></source>
        <translation>音声をトリミング中</translation>
    </message>
    <message id="trim_play_trimmed">
        <source></source>
        <translation>試聴</translation>
    </message>
    <message id="trim_save">
        <source></source>
        <translation>保存</translation>
    </message>
    <message id="trim_close">
        <source></source>
        <translation>閉じる</translation>
    </message>
    <message id="Processing">
        <source></source>
        <translation>処理中</translation>
    </message>
    <message id="Yes">
        <source></source>
        <translation>はい</translation>
    </message>
    <message id="No">
        <source></source>
        <translation>いいえ</translation>
    </message>
    <message id="session_return">
        <source></source>
        <translation>戻る</translation>
    </message>
    <message id="session_running">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="session_failed">
        <source></source>
        <translation>録音を開始できませんでした</translation>
    </message>
    <message id="session_dismiss">
        <source></source>
        <translation>閉じる</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>キーボードショートカット</translation>
    </message>
    <message id="user_guide">
        <source></source>
        <translation>ユーザーガイド</translation>
    </message>
    <message id="shortcuts_close">
        <source></source>
        <translation>閉じる</translation>
    </message>
    <message id="shortcut_record">
        <source></source>
        <translation>録音、一時停止、再開</translation>
    </message>
    <message id="shortcut_stop">
        <source></source>
        <translation>停止して保存</translation>
    </message>
    <message id="shortcut_tabs">
        <source></source>
        <translation>録音、録音一覧、設定</translation>
    </message>
    <message id="shortcut_find">
        <source></source>
        <translation>録音を検索</translation>
    </message>
    <message id="shortcut_open">
        <source></source>
        <translation>選択した録音を開く</translation>
    </message>
    <message id="shortcut_ends">
        <source></source>
        <translation>先頭、末尾、次のページ</translation>
    </message>
    <message id="shortcut_play">
        <source></source>
        <translation>再生、一時停止</translation>
    </message>
    <message id="shortcut_skip">
        <source></source>
        <translation>戻る、進む</translation>
    </message>
    <message id="shortcut_speed">
        <source></source>
        <translation>遅く、速く</translation>
    </message>
    <message id="shortcut_trim">
        <source></source>
        <translation>選択した録音をトリミング</translation>
    </message>
    <message id="shortcut_zoom">
        <source></source>
        <translation>トリミング中: 拡大、縮小</translation>
    </message>
    <message id="shortcut_close">
        <source></source>
        <translation>プレーヤーやパネルを閉じる</translation>
    </message>
    <message id="shortcut_list">
        <source></source>
        <translation>この一覧</translation>
    </message>
    <message id="shortcut_quit">
        <source></source>
        <translation>終了</translation>
    </message>
    <message id="key_space">
        <source></source>
        <translation>スペース</translation>
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
        <translation>Home、End、Page Up、Page Down</translation>
    </message>
    <message id="key_ctrl">
        <source></source>
        <translation>Ctrl+%1</translation>
    </message>
    <message id="record_saved">
        <source></source>
        <translation>%1 として保存しました</translation>
    </message>
    <message id="record_kept">
        <source></source>
        <translation>録音が中断されました。%1 として保持されています</translation>
    </message>
    <message id="record_last">
        <source></source>
        <translation>前回: %1 · %2</translation>
    </message>
    <message id="record_silent">
        <source></source>
        <translation>10 秒間、音が聞こえません。マイクはオンになっていますか？</translation>
    </message>
    <message id="record_peak">
        <source></source>
        <translation>音が大きすぎます</translation>
    </message>
    <message id="record_stop">
        <source></source>
        <translation>停止</translation>
    </message>
    <message id="record_level_value">
        <source></source>
        <translation>%1 dB</translation>
    </message>
    <message id="a11y_format">
        <source></source>
        <translation>形式: %1</translation>
    </message>
    <message id="a11y_microphone">
        <source></source>
        <translation>マイク: %1</translation>
    </message>
    <message id="a11y_play_last">
        <source></source>
        <translation>前回の録音 %1 を再生</translation>
    </message>
    <!-- The passcode lock -->
    <message id="password">
        <source></source>
        <translation>パスコードを入力</translation>
    </message>
    <message id="old_pass">
        <source></source>
        <translation>現在のパスコードを入力</translation>
    </message>
    <message id="new_pass">
        <source></source>
        <translation>新しいパスコードを入力</translation>
    </message>
    <message id="Re_pass">
        <source></source>
        <translation>新しいパスコードを再入力</translation>
    </message>
    <message id="Delete">
        <source></source>
        <translation>削除</translation>
    </message>
    <message id="passcode_digits">
        <source></source>
        <translation>4 桁中 %1 桁を入力済み</translation>
    </message>
    <message id="passcode_cover">
        <source></source>
        <translation>ロック中</translation>
    </message>
    <message id="passcode_missing">
        <source></source>
        <translation>パスコードが保存されていないため、このロックは解除できません。オフにする方法は tavi のマニュアルページにあります。</translation>
    </message>
    <message id="passcode_not_stored">
        <source></source>
        <translation>パスコードはまだ保存されていません</translation>
    </message>
    <message id="passcode_switch_not_stored">
        <source></source>
        <translation>パスコードロックは元のままです</translation>
    </message>
    <message id="passcode_settings_refused">
        <source></source>
        <translation>設定を書き込めません。ディスクの空き容量と、フォルダーへの書き込み権限を確認してください。</translation>
    </message>
    <!-- The store of the passcode -->
    <message id="error_keychain_waiting">
        <source></source>
        <translation>パスコードをまだ読み取れません。デスクトップがキーリングのパスワードを求めている可能性があります。</translation>
    </message>
    <message id="error_keychain_locked">
        <source></source>
        <translation>パスコードを保管しているデスクトップのキーリングがロックされています。解除してから、もう一度お試しください。</translation>
    </message>
    <message id="error_keychain_gone">
        <source></source>
        <translation>パスコードを保管しているデスクトップのキーリングが応答しません。起動するか、ログインし直してください。</translation>
    </message>
    <message id="error_keychain_damaged">
        <source></source>
        <translation>パスコードを保管しているファイルが壊れています。そのまま残します: %1</translation>
    </message>
    <message id="error_keychain_foreign">
        <source></source>
        <translation>パスコードを保管しているファイルが読み取れないか、所有者が異なります: %1</translation>
    </message>
    <message id="error_keychain_key">
        <source></source>
        <translation>パスコードを保管しているファイルの鍵がありません: %1</translation>
    </message>
    <message id="error_keychain_store">
        <source></source>
        <translation>パスコードロックが保存できなかった情報を、プログラムの終了まで保持します。%1</translation>
    </message>
    <!-- The passcode on a terminal -->
    <message id="command_passcode">
        <source></source>
        <translation>パスコード: </translation>
    </message>
    <message id="command_passcode_wrong">
        <source></source>
        <translation>パスコードが違います</translation>
    </message>
    <!-- The cloud: what stands in the way -->
    <message id="error_cloud_silent">
        <source></source>
        <translation>サーバーが応答しません。</translation>
    </message>
    <message id="error_cloud_broken">
        <source></source>
        <translation>サーバーが応答しません: %1</translation>
    </message>
    <message id="error_cloud_certificate">
        <source></source>
        <translation>サーバーを信頼できません: %1 何も送信していません。</translation>
    </message>
    <message id="error_cloud_moved">
        <source></source>
        <translation>フォルダーのアドレスが変わりました: %1</translation>
    </message>
    <message id="error_cloud_no_dav">
        <source></source>
        <translation>このアドレスに WebDAV フォルダーはありません。</translation>
    </message>
    <message id="error_cloud_refused">
        <source></source>
        <translation>サーバーがユーザー名またはパスワードを拒否しました。</translation>
    </message>
    <message id="error_cloud_no_folder">
        <source></source>
        <translation>フォルダーがサーバーにありません。</translation>
    </message>
    <message id="error_cloud_full">
        <source></source>
        <translation>サーバーの容量がいっぱいです。</translation>
    </message>
    <message id="error_cloud_busy">
        <source></source>
        <translation>サーバーが混み合っています。</translation>
    </message>
    <message id="error_cloud_status">
        <source></source>
        <translation>サーバーが状態 %1 を返しました。</translation>
    </message>
    <message id="error_cloud_part">
        <source></source>
        <translation>サーバーが一部しか送信しませんでした。</translation>
    </message>
    <message id="error_cloud_not_kept">
        <source></source>
        <translation>サーバーがファイルを保持しませんでした。</translation>
    </message>
    <message id="error_cloud_too_long">
        <source></source>
        <translation>サーバーのフォルダーにファイルが多すぎます。</translation>
    </message>
    <message id="error_cloud_journal">
        <source></source>
        <translation>クラウドのジャーナルを書き込めません。</translation>
    </message>
    <message id="error_cloud_other_folder">
        <source></source>
        <translation>サーバーのフォルダーが以前のものと異なります。</translation>
    </message>
    <message id="error_cloud_interrupted">
        <source></source>
        <translation>中断されました。</translation>
    </message>
    <message id="error_cloud_unreadable">
        <source></source>
        <translation>%1 を読み取れません。</translation>
    </message>
    <message id="error_cloud_growing">
        <source></source>
        <translation>%1 は書き込み中です。</translation>
    </message>
    <message id="error_cloud_length">
        <source></source>
        <translation>サーバーが %1 のサイズを返しません。</translation>
    </message>
    <message id="error_cloud_conflict">
        <source></source>
        <translation>%1 が 2 台の端末で変更されました。両方を残します。</translation>
    </message>
    <message id="error_cloud_missing">
        <source></source>
        <translation>%1 をもう一度探しています。</translation>
    </message>
    <message id="error_cloud_in_clear">
        <source></source>
        <translation>アドレスは https:// で始まる必要があります。</translation>
    </message>
    <message id="error_cloud_unknown">
        <source></source>
        <translation>%1 はクラウドにありません。</translation>
    </message>
    <message id="error_cloud_unsent">
        <source></source>
        <translation>%1 はまだクラウドにありません。</translation>
    </message>
    <message id="error_cloud_taken">
        <source></source>
        <translation>同じ名前のファイルがクラウドにあります。</translation>
    </message>
    <message id="error_cloud_untold">
        <source></source>
        <translation>今はサーバーに伝えられません。</translation>
    </message>
    <message id="error_cloud_foreign">
        <source></source>
        <translation>他のプログラムがファイルを使用中です。</translation>
    </message>
    <message id="error_cloud_read_only">
        <source></source>
        <translation>サーバーが書き込みを許可していません。</translation>
    </message>
    <message id="error_cloud_password">
        <source></source>
        <translation>パスワードを取得できません: %1</translation>
    </message>
    <message id="error_cloud_password_kept">
        <source></source>
        <translation>パスワードを保存できません: %1</translation>
    </message>
    <message id="error_cloud_elsewhere">
        <source></source>
        <translation>現在、別のプロセスがクラウドを管理しています。</translation>
    </message>
    <message id="error_cloud_vanished" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 個のファイルが一度にサーバーから消えました。</numerusform>
        </translation>
    </message>
    <message id="error_cloud_no_server">
        <source></source>
        <translation>クラウドがサーバーではありません。</translation>
    </message>
    <message id="command_cloud_vanished">
        <source></source>
        <translation>--remove-vanished でここからも削除し、--keep-vanished で再送信します。</translation>
    </message>
    <!-- The cloud: account page and rows -->
    <message id="cloud_title">
        <source></source>
        <translation>クラウド</translation>
    </message>
    <message id="cloud_details">
        <source></source>
        <translation>クラウドアカウント</translation>
    </message>
    <message id="cloud_back">
        <source></source>
        <translation>戻る</translation>
    </message>
    <message id="cloud_account">
        <source></source>
        <translation>アカウント</translation>
    </message>
    <message id="cloud_ask">
        <source></source>
        <translation>クラウドの場所は？</translation>
    </message>
    <message id="cloud_ask_hint">
        <source></source>
        <translation>保存した録音はすべてそこにコピーされます。この端末からは何も移動・削除されません。</translation>
    </message>
    <message id="cloud_hint">
        <source></source>
        <translation>切断しても、録音はこの端末とクラウドの両方にそのまま残ります。</translation>
    </message>
    <message id="cloud_folder">
        <source></source>
        <translation>他のプログラムが同期するフォルダー</translation>
    </message>
    <message id="cloud_choose_title">
        <source></source>
        <translation>クラウドのフォルダーを選択</translation>
    </message>
    <message id="cloud_server">
        <source></source>
        <translation>WebDAV サーバー</translation>
    </message>
    <message id="cloud_address">
        <source></source>
        <translation>アドレス (例: https://example.org/dav/)</translation>
    </message>
    <message id="cloud_user">
        <source></source>
        <translation>ユーザー名</translation>
    </message>
    <message id="cloud_password">
        <source></source>
        <translation>パスワード</translation>
    </message>
    <message id="cloud_connect">
        <source></source>
        <translation>接続</translation>
    </message>
    <message id="cloud_connecting">
        <source></source>
        <translation>接続を確認中…</translation>
    </message>
    <message id="cloud_place">
        <source></source>
        <translation>場所</translation>
    </message>
    <message id="cloud_place_of">
        <source></source>
        <translation>%1 (ユーザー %2)</translation>
    </message>
    <message id="cloud_state">
        <source></source>
        <translation>状態</translation>
    </message>
    <message id="cloud_last_sync">
        <source></source>
        <translation>最終同期</translation>
    </message>
    <message id="cloud_never">
        <source></source>
        <translation>未同期</translation>
    </message>
    <message id="cloud_state_off">
        <source></source>
        <translation>オフです。同期するには設定のスイッチをオンにしてください。</translation>
    </message>
    <message id="cloud_state_folder">
        <source></source>
        <translation>接続済みです。このフォルダーは他のプログラムが同期します。</translation>
    </message>
    <message id="cloud_state_working">
        <source></source>
        <translation>同期中…</translation>
    </message>
    <message id="cloud_state_in_step">
        <source></source>
        <translation>すべてクラウドにあります。</translation>
    </message>
    <message id="cloud_state_troubled">
        <source></source>
        <translation>同期されていません。自動的に再試行します。</translation>
    </message>
    <message id="cloud_state_asking">
        <source></source>
        <translation>サーバーにないファイル: %1。確認するまで、ここでは何も削除しません。</translation>
    </message>
    <message id="cloud_sync">
        <source></source>
        <translation>今すぐ同期</translation>
    </message>
    <message id="cloud_decide">
        <source></source>
        <translation>選択…</translation>
    </message>
    <message id="cloud_disconnect">
        <source></source>
        <translation>切断</translation>
    </message>
    <message id="cloud_disconnect_title">
        <source></source>
        <translation>クラウドを切断しますか？</translation>
    </message>
    <message id="cloud_disconnect_text">
        <source></source>
        <translation>%1 は使われなくなり、パスワードは破棄されます。録音は両方にすべて残ります。</translation>
    </message>
    <message id="cloud_clear_title">
        <source></source>
        <translation>保護なしで送信しますか？</translation>
    </message>
    <message id="cloud_clear_text">
        <source></source>
        <translation>アドレスが http:// で始まっています。途中で誰でも録音とパスワードを読み取れます。</translation>
    </message>
    <message id="cloud_clear_yes">
        <source></source>
        <translation>それでも送信</translation>
    </message>
    <message id="cloud_vanished_title">
        <source></source>
        <translation>クラウドにないファイル</translation>
    </message>
    <message id="cloud_vanished_text">
        <source></source>
        <translation>サーバーにないファイル: %1。ここでもゴミ箱に移動しますか、それとも再送信しますか？</translation>
    </message>
    <message id="cloud_vanished_later">
        <source></source>
        <translation>後で決める</translation>
    </message>
    <message id="cloud_vanished_keep">
        <source></source>
        <translation>再送信</translation>
    </message>
    <message id="cloud_vanished_remove">
        <source></source>
        <translation>ゴミ箱に移動</translation>
    </message>
    <message id="save_choose">
        <source></source>
        <translation>選択</translation>
    </message>
    <message id="cloud_row_waiting">
        <source></source>
        <translation>送信待ち</translation>
    </message>
    <message id="cloud_row_sending">
        <source></source>
        <translation>送信中、%1 %</translation>
    </message>
    <message id="cloud_row_there">
        <source></source>
        <translation>クラウドにあります</translation>
    </message>
    <message id="cloud_row_only">
        <source></source>
        <translation>クラウドのみ。タップして取得</translation>
    </message>
    <message id="cloud_row_arriving">
        <source></source>
        <translation>受信中。タップして再要求</translation>
    </message>
    <message id="cloud_row_conflict">
        <source></source>
        <translation>別の版です。両方を残します</translation>
    </message>
    <message id="cloud_refreshing">
        <source></source>
        <translation>クラウドの録音を更新中</translation>
    </message>
    <message id="shortcut_refresh">
        <source></source>
        <translation>クラウドの録音を更新</translation>
    </message>
    <!-- The companion -->
    <message id="companion_absent">
        <source></source>
        <translation>起動していません</translation>
    </message>
    <message id="companion_silent">
        <source></source>
        <translation>応答なし</translation>
    </message>
    <message id="companion_locked">
        <source></source>
        <translation>ロック中</translation>
    </message>
    <message id="companion_idle">
        <source></source>
        <translation>録音できます</translation>
    </message>
    <message id="companion_recording">
        <source></source>
        <translation>録音中、%1</translation>
    </message>
    <message id="companion_paused">
        <source></source>
        <translation>一時停止中、%1</translation>
    </message>
    <message id="companion_record">
        <source></source>
        <translation>録音</translation>
    </message>
    <message id="companion_pause">
        <source></source>
        <translation>一時停止</translation>
    </message>
    <message id="companion_resume">
        <source></source>
        <translation>再開</translation>
    </message>
    <message id="companion_record_or_pause">
        <source></source>
        <translation>録音または一時停止</translation>
    </message>
    <message id="companion_stop">
        <source></source>
        <translation>停止して保存</translation>
    </message>
    <message id="companion_show">
        <source></source>
        <translation>録音一覧を表示</translation>
    </message>
    <message id="companion_quit">
        <source></source>
        <translation>アイコンを削除</translation>
    </message>
    <message id="companion_not_running">
        <source></source>
        <translation>レコーダーが起動していません。</translation>
    </message>
    <message id="companion_no_channel">
        <source></source>
        <translation>レコーダーがこのチャンネルで応答しません。同じ --companion-channel で起動してください。</translation>
    </message>
    <message id="companion_twice">
        <source></source>
        <translation>アイコンはすでにあります。</translation>
    </message>
    <message id="companion_no_bus">
        <source></source>
        <translation>セッションバスがないため、アイコンを表示できません。</translation>
    </message>
</context>
</TS>
