<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <!-- The program -->
    <message id="app_name">
        <source></source>
        <translation>录音机</translation>
    </message>
    <message id="Record">
        <source></source>
        <translation>录音</translation>
    </message>
    <message id="voice_memo">
        <source></source>
        <translation>录音列表</translation>
    </message>
    <message id="Setting">
        <source></source>
        <translation>设置</translation>
    </message>
    <message id="Ok">
        <source></source>
        <translation>确定</translation>
    </message>
    <message id="OK">
        <source></source>
        <translation>确定</translation>
    </message>
    <message id="Record Audio">
        <source></source>
        <translation>录制声音</translation>
    </message>
    <message id="Quick Create Voice Memo">
        <source></source>
        <translation>快速新建录音</translation>
    </message>
    <message id="Recordings">
        <source></source>
        <translation>录音列表</translation>
    </message>
    <message id="Recorded Voice Memos">
        <source></source>
        <translation>已保存的录音</translation>
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
        <translation>设置</translation>
    </message>
    <message id="recording_type">
        <source></source>
        <translation>录音类型</translation>
    </message>
    <message id="recording_quality">
        <source></source>
        <translation>录音质量</translation>
    </message>
    <message id="audio_setting">
        <source></source>
        <translation>音频设置</translation>
    </message>
    <message id="icloud_sync">
        <source></source>
        <translation>云同步</translation>
    </message>
    <message id="mail">
        <source></source>
        <translation>邮件</translation>
    </message>
    <message id="data_security">
        <source></source>
        <translation>数据安全</translation>
    </message>
    <message id="support">
        <source></source>
        <translation>支持</translation>
    </message>
    <message id="feature">
        <source></source>
        <translation>功能</translation>
    </message>
    <message id="Extention">
        <source></source>
        <translation>扩展名</translation>
    </message>
    <message id="Quality">
        <source></source>
        <translation>质量</translation>
    </message>
    <message id="rewind">
        <source></source>
        <translation>快退 ( %1 秒 )</translation>
    </message>
    <message id="forward">
        <source></source>
        <translation>快进 ( %1 秒 )</translation>
    </message>
    <message id="settings_english">
        <source></source>
        <translation>Low、Medium 和 High 在所有语言中都是英文，因为录音格式由这些词决定。移动滑块后显示的文字也是英文。</translation>
    </message>
    <message id="use_icloud">
        <source></source>
        <translation>与云端同步录音</translation>
    </message>
    <message id="Quick_Mail">
        <source></source>
        <translation>立即用邮件发送录音</translation>
    </message>
    <message id="passcode_lock">
        <source></source>
        <translation>密码锁</translation>
    </message>
    <message id="change_pass">
        <source></source>
        <translation>更改密码</translation>
    </message>
    <message id="rate">
        <source></source>
        <translation>为应用评分</translation>
    </message>
    <message id="more_apps">
        <source></source>
        <translation>更多应用</translation>
    </message>
    <message id="report_bug">
        <source></source>
        <translation>报告问题</translation>
    </message>
    <message id="bug_report">
        <source></source>
        <translation>问题报告：录音机</translation>
    </message>
    <message id="gmail">
        <source></source>
        <translation>%1</translation>
    </message>
    <message id="issue_recorder">
        <source></source>
        <translation>请描述出了什么问题，以及您在此之前做了什么：&#10;&#10;</translation>
    </message>
    <message id="Select Recording Audio Type">
        <source></source>
        <translation>选择录音类型</translation>
    </message>
    <message id="Select Recording Audio Quality">
        <source></source>
        <translation>选择录音质量</translation>
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
        <translation>取消</translation>
    </message>
    <!-- Support -->
    <message id="Network Error">
        <source></source>
        <translation>网络错误</translation>
    </message>
    <message id="Please check your internet connection">
        <source></source>
        <translation>请检查您的互联网连接</translation>
    </message>
    <message id="MessageTitle">
        <source></source>
        <translation>您喜欢这款录音机吗？</translation>
    </message>
    <message id="Message">
        <source></source>
        <translation>评分能帮助其他人找到它，只需一分钟。</translation>
    </message>
    <message id="NoButtonTitle">
        <source></source>
        <translation>不，谢谢</translation>
    </message>
    <message id="NowButtonTitle">
        <source></source>
        <translation>立即评分</translation>
    </message>
    <message id="LaterButtonTitle">
        <source></source>
        <translation>以后再说</translation>
    </message>
    <message id="rate_no_store">
        <source></source>
        <translation>这台计算机上没有程序能打开软件中心的页面。</translation>
    </message>
    <message id="report_no_mail">
        <source></source>
        <translation>没有邮件程序接受此报告。请写信至 %1。</translation>
    </message>
    <message id="report_no_server">
        <source></source>
        <translation>无</translation>
    </message>
    <message id="report_facts">
        <source></source>
        <translation>&#10;&#10;版本：%1&#10;系统：%2&#10;声音服务器：%3&#10;格式：%4&#10;</translation>
    </message>
    <message id="settings_done">
        <source></source>
        <translation>完成</translation>
    </message>
    <!-- Recording -->
    <message id="lbl_recording">
        <source></source>
        <translation>正在录音</translation>
    </message>
    <message id="lbl_record_pause">
        <source></source>
        <translation>已暂停</translation>
    </message>
    <message id="microphone_denied">
        <source></source>
        <translation>麦克风访问被拒绝</translation>
    </message>
    <message id="access_device_microphone">
        <source></source>
        <translation>此应用需要使用设备的麦克风来录音。请在系统设置中允许它访问麦克风。</translation>
    </message>
    <message id="alert_title">
        <source></source>
        <translation>录音失败</translation>
    </message>
    <message id="alert_title_ok">
        <source></source>
        <translation>确定</translation>
    </message>
    <message id="audio_hardware_alert_title">
        <source></source>
        <translation>没有麦克风</translation>
    </message>
    <message id="audio_hardware_alert_message">
        <source></source>
        <translation>没有可用的音频输入。请连接麦克风后重试。</translation>
    </message>
    <message id="alert_error">
        <source></source>
        <translation>错误</translation>
    </message>
    <message id="file_size_msg">
        <source></source>
        <translation>此录音大于 25 MB，无法通过邮件发送。</translation>
    </message>
    <message id="Your Mail has been sent successfully">
        <source></source>
        <translation>邮件已发送</translation>
    </message>
    <message id="share_gone">
        <source></source>
        <translation>“%1”已不存在。</translation>
    </message>
    <message id="share_no_file">
        <source></source>
        <translation>“%1”不是可以分享的文件。</translation>
    </message>
    <message id="share_open_failed">
        <source></source>
        <translation>无法在其他程序中打开“%1”。</translation>
    </message>
    <message id="share_folder_failed">
        <source></source>
        <translation>无法显示“%1”所在的文件夹。</translation>
    </message>
    <message id="share_mail_none">
        <source></source>
        <translation>没有邮件程序。</translation>
    </message>
    <message id="share_mail_failed">
        <source></source>
        <translation>没有邮件程序接受带有“%1”的邮件。</translation>
    </message>
    <message id="share_copied">
        <source></source>
        <translation>“%1”已复制到剪贴板。</translation>
    </message>
    <message id="share_copied_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 个录音已复制到剪贴板。</numerusform>
        </translation>
    </message>
    <message id="export_no_dialog">
        <source></source>
        <translation>无法询问“%1”的保存位置：未导出任何内容。</translation>
    </message>
    <message id="export_running">
        <source></source>
        <translation>正在导出“%1”</translation>
    </message>
    <message id="export_cancelled">
        <source></source>
        <translation>已取消导出“%1”。</translation>
    </message>
    <message id="export_failed">
        <source></source>
        <translation>无法导出“%1”：%2。</translation>
    </message>
    <message id="export_done">
        <source></source>
        <translation>已导出“%1”。</translation>
    </message>
    <message id="export_show">
        <source></source>
        <translation>显示</translation>
    </message>
    <message id="export_replace_title">
        <source></source>
        <translation>替换“%1”？</translation>
    </message>
    <message id="export_replace_message">
        <source></source>
        <translation>已有同名文件。其中的内容将会丢失。</translation>
    </message>
    <message id="export_replace">
        <source></source>
        <translation>替换</translation>
    </message>
    <message id="save_title">
        <source></source>
        <translation>导出</translation>
    </message>
    <message id="save_home">
        <source></source>
        <translation>主目录</translation>
    </message>
    <message id="save_up">
        <source></source>
        <translation>上级文件夹</translation>
    </message>
    <message id="save_folders">
        <source></source>
        <translation>文件夹</translation>
    </message>
    <message id="save_name">
        <source></source>
        <translation>文件名</translation>
    </message>
    <message id="save_accept">
        <source></source>
        <translation>导出</translation>
    </message>
    <message id="share_show">
        <source></source>
        <translation>在文件夹中显示</translation>
    </message>
    <message id="shortcut_copy">
        <source></source>
        <translation>复制选中的录音</translation>
    </message>
    <message id="shortcut_export">
        <source></source>
        <translation>导出选中的录音</translation>
    </message>
    <message id="cloud_unavail">
        <source></source>
        <translation>云端不可用</translation>
    </message>
    <message id="signin_icloud_account">
        <source></source>
        <translation>请登录您的云账户以保持录音同步。</translation>
    </message>
    <message id="alert_okay">
        <source></source>
        <translation>确定</translation>
    </message>
    <message id="picke_subject">
        <source></source>
        <translation>语音录音</translation>
    </message>
    <message id="error_microphone_disconnected">
        <source></source>
        <translation>麦克风已断开。</translation>
    </message>
    <message id="error_microphone_missing">
        <source></source>
        <translation>没有可用于录音的麦克风。</translation>
    </message>
    <message id="error_output_missing">
        <source></source>
        <translation>没有可用于播放声音的设备。</translation>
    </message>
    <message id="error_recording_cut_short">
        <source></source>
        <translation>无法读取此录音的其余部分。</translation>
    </message>
    <message id="error_sound_server_missing">
        <source></source>
        <translation>没有运行中的声音服务器。</translation>
    </message>
    <message id="error_sound_server_refused">
        <source></source>
        <translation>声音服务器拒绝访问。</translation>
    </message>
    <message id="error_sound_server_silent">
        <source></source>
        <translation>声音服务器没有响应。</translation>
    </message>
    <message id="error_sound_server_stopped">
        <source></source>
        <translation>与声音服务器的连接已断开。</translation>
    </message>
    <message id="idle_reason">
        <source></source>
        <translation>可能正在录音</translation>
    </message>
    <message id="sleep_reason">
        <source></source>
        <translation>先将录音写入磁盘</translation>
    </message>
    <message id="session_end_reason">
        <source></source>
        <translation>录音尚未保存</translation>
    </message>
    <!-- Library -->
    <message id="voice_record">
        <source></source>
        <translation>录音列表</translation>
    </message>
    <message id="Name">
        <source></source>
        <translation>名称</translation>
    </message>
    <message id="Date">
        <source></source>
        <translation>日期</translation>
    </message>
    <message id="Size">
        <source></source>
        <translation>大小</translation>
    </message>
    <message id="Local Recording&apos;s">
        <source></source>
        <translation>本地录音</translation>
    </message>
    <message id="iCloud Sync Recording&apos;s">
        <source></source>
        <translation>云端录音</translation>
    </message>
    <message id="iCloud not available">
        <source></source>
        <translation>云端不可用</translation>
    </message>
    <message id="Please sign in iCloud">
        <source></source>
        <translation>请在设置中配置您的云端。</translation>
    </message>
    <!-- Actions of a recording -->
    <message id="Rename">
        <source></source>
        <translation>重命名</translation>
    </message>
    <message id="open_in">
        <source></source>
        <translation>打开方式</translation>
    </message>
    <message id="Trimming">
        <source></source>
        <translation>剪辑</translation>
    </message>
    <message id="upload_drive">
        <source></source>
        <translation>上传到云盘</translation>
    </message>
    <message id="trim_m4a">
        <source></source>
        <translation>剪辑为 M4A</translation>
    </message>
    <message id="alert_dismiss">
        <source></source>
        <translation>取消</translation>
    </message>
    <message id="menu_close">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="a11y_more">
        <source></source>
        <translation>“%1”的操作</translation>
    </message>
    <message id="action_gone">
        <source></source>
        <translation>“%1”已不存在。</translation>
    </message>
    <message id="rename_audio">
        <source></source>
        <translation>重命名录音</translation>
    </message>
    <message id="filename_msg">
        <source></source>
        <translation>新名称</translation>
    </message>
    <message id="error_rename">
        <source></source>
        <translation>未重命名</translation>
    </message>
    <message id="file_notContain">
        <source></source>
        <translation>名称不能包含</translation>
    </message>
    <message id="rename">
        <source></source>
        <translation>未重命名</translation>
    </message>
    <message id="audio_file_name">
        <source></source>
        <translation>请输入录音的名称。</translation>
    </message>
    <message id="file_exist">
        <source></source>
        <translation>未重命名</translation>
    </message>
    <message id="audio_file_exist">
        <source></source>
        <translation>已有同名录音。</translation>
    </message>
    <message id="rename_failed">
        <source></source>
        <translation>“%1”保留原名：%2</translation>
    </message>
    <message id="delete_audio">
        <source></source>
        <translation>删除录音</translation>
    </message>
    <message id="delete_msg">
        <source></source>
        <translation>删除“%1”？</translation>
    </message>
    <message id="delete_trashed">
        <source></source>
        <translation>“%1”已移到回收站。</translation>
    </message>
    <message id="delete_undo">
        <source></source>
        <translation>撤销</translation>
    </message>
    <message id="delete_undone_beside">
        <source></source>
        <translation>“%1”已被占用：录音已恢复为“%2”。</translation>
    </message>
    <message id="delete_undo_failed">
        <source></source>
        <translation>无法恢复“%1”：%2</translation>
    </message>
    <message id="delete_forever_msg">
        <source></source>
        <translation>无法将“%1”移到回收站。要永久删除吗？</translation>
    </message>
    <message id="delete_forever">
        <source></source>
        <translation>永久删除</translation>
    </message>
    <message id="delete_failed">
        <source></source>
        <translation>无法删除“%1”：%2</translation>
    </message>
    <message id="trim_no_aac">
        <source></source>
        <translation>无法剪辑 aac 文件</translation>
    </message>
    <message id="trim_no_mp3">
        <source></source>
        <translation>无法剪辑 mp3 文件</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>确定</translation>
    </message>
    <message id="key_delete">
        <source></source>
        <translation>Del</translation>
    </message>
    <message id="key_menu">
        <source></source>
        <translation>菜单</translation>
    </message>
    <message id="shortcut_rename">
        <source></source>
        <translation>重命名选中的录音</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>删除选中的录音</translation>
    </message>
    <message id="shortcut_menu">
        <source></source>
        <translation>选中录音的所有操作</translation>
    </message>
    <!-- Shell -->
    <message id="record_hint">
        <source></source>
        <translation>点按红色按钮开始录音</translation>
    </message>
    <message id="record_saving">
        <source></source>
        <translation>正在保存…</translation>
    </message>
    <message id="record_starting">
        <source></source>
        <translation>正在保存，随后录音…</translation>
    </message>
    <message id="microphone_stopped">
        <source></source>
        <translation>麦克风没有声音。一有声音就会继续录音。</translation>
    </message>
    <message id="microphone_back">
        <source></source>
        <translation>麦克风已恢复。录音缺少 %1 秒。</translation>
    </message>
    <message id="microphone_changed">
        <source></source>
        <translation>现在从“%1”录音。</translation>
    </message>
    <message id="microphone_absent">
        <source></source>
        <translation>“%1”未连接。正从“%2”录音。</translation>
    </message>
    <message id="microphone_unknown">
        <source></source>
        <translation>麦克风</translation>
    </message>
    <message id="microphone_default">
        <source></source>
        <translation>系统默认</translation>
    </message>
    <message id="microphone_title">
        <source></source>
        <translation>麦克风</translation>
    </message>
    <message id="record_slept">
        <source></source>
        <translation>计算机曾休眠：录音缺少 %1，录音仍在继续。</translation>
    </message>
    <message id="rescue_saved">
        <source></source>
        <translation>已恢复一个录音：%1</translation>
    </message>
    <message id="rescue_saved_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>已恢复 %n 个录音。</numerusform>
        </translation>
    </message>
    <message id="rescue_waits">
        <source></source>
        <translation>现在无法保存录音。它会被保留，并尽快保存。</translation>
    </message>
    <message id="record_ended_title">
        <source></source>
        <translation>录音已结束</translation>
    </message>
    <message id="record_ended">
        <source></source>
        <translation>%1 此前录制的内容已保留。</translation>
    </message>
    <message id="library_empty_title">
        <source></source>
        <translation>还没有录音</translation>
    </message>
    <message id="library_empty">
        <source></source>
        <translation>您的录音都保存在这里。转到“录音”，点按红色按钮开始第一个录音。</translation>
    </message>
    <message id="a11y_tabs">
        <source></source>
        <translation>标签页</translation>
    </message>
    <message id="a11y_record">
        <source></source>
        <translation>录音</translation>
    </message>
    <message id="a11y_pause">
        <source></source>
        <translation>暂停</translation>
    </message>
    <message id="a11y_resume">
        <source></source>
        <translation>继续</translation>
    </message>
    <message id="a11y_stop">
        <source></source>
        <translation>停止并保存</translation>
    </message>
    <message id="a11y_level">
        <source></source>
        <translation>声音电平</translation>
    </message>
    <message id="a11y_sort">
        <source></source>
        <translation>按%1排序</translation>
    </message>
    <message id="a11y_sort_ascending">
        <source></source>
        <translation>已按%1升序排序</translation>
    </message>
    <message id="a11y_sort_descending">
        <source></source>
        <translation>已按%1降序排序</translation>
    </message>
    <message id="library_search">
        <source></source>
        <translation>查找录音</translation>
    </message>
    <message id="library_search_none">
        <source></source>
        <translation>没有名称包含此内容的录音</translation>
    </message>
    <message id="library_trimmed">
        <source></source>
        <translation>已保存为 %1</translation>
    </message>
    <message id="import_running">
        <source></source>
        <translation>正在导入 %1</translation>
    </message>
    <message id="import_running_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>正在导入 %n 个文件</numerusform>
        </translation>
    </message>
    <message id="import_done">
        <source></source>
        <translation>已导入 %1</translation>
    </message>
    <message id="import_done_many" numerus="yes">
        <source></source>
        <translation>
            <numerusform>已导入 %n 个文件</numerusform>
        </translation>
    </message>
    <message id="import_failed">
        <source></source>
        <translation>未导入 %1：%2</translation>
    </message>
    <message id="import_some" numerus="yes">
        <source></source>
        <translation>
            <numerusform>已导入 %n 个文件，%1 个未导入</numerusform>
        </translation>
    </message>
    <message id="import_details">
        <source></source>
        <translation>详情</translation>
    </message>
    <message id="import_details_title">
        <source></source>
        <translation>未导入</translation>
    </message>
    <message id="import_more" numerus="yes">
        <source></source>
        <translation>
            <numerusform>还有 %n 个</numerusform>
        </translation>
    </message>
    <message id="import_cancelled">
        <source></source>
        <translation>已取消导入</translation>
    </message>
    <message id="import_drop">
        <source></source>
        <translation>将声音文件拖放到此处以导入</translation>
    </message>
    <message id="import_taken">
        <source></source>
        <translation>已有同名录音</translation>
    </message>
    <message id="import_folder">
        <source></source>
        <translation>它是文件夹</translation>
    </message>
    <message id="import_no_file">
        <source></source>
        <translation>它不是声音文件</translation>
    </message>
    <message id="import_gone">
        <source></source>
        <translation>它已不存在</translation>
    </message>
    <message id="import_full">
        <source></source>
        <translation>磁盘已满</translation>
    </message>
    <message id="import_busy">
        <source></source>
        <translation>其他程序正在写入</translation>
    </message>
    <message id="import_remote">
        <source></source>
        <translation>它不在这台计算机上</translation>
    </message>
    <message id="library_play">
        <source></source>
        <translation>播放</translation>
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
        <translation>缩小播放器</translation>
    </message>
    <message id="a11y_unfold_player">
        <source></source>
        <translation>展开播放器</translation>
    </message>
    <message id="player_nothing">
        <source></source>
        <translation>选择要播放的录音</translation>
    </message>
    <message id="player_nothing_hint">
        <source></source>
        <translation>在此处播放，带有波形，速度随您选择。</translation>
    </message>
    <message id="player_unplayable">
        <source></source>
        <translation>无法播放此文件</translation>
    </message>
    <message id="a11y_play">
        <source></source>
        <translation>播放</translation>
    </message>
    <message id="a11y_stop_playing">
        <source></source>
        <translation>停止播放</translation>
    </message>
    <message id="a11y_skip_back">
        <source></source>
        <translation>快退，%1</translation>
    </message>
    <message id="a11y_skip_forward">
        <source></source>
        <translation>快进，%1</translation>
    </message>
    <message id="a11y_slow">
        <source></source>
        <translation>半速</translation>
    </message>
    <message id="a11y_normal">
        <source></source>
        <translation>正常速度</translation>
    </message>
    <message id="a11y_fast">
        <source></source>
        <translation>双倍速度</translation>
    </message>
    <message id="a11y_to_earpiece">
        <source></source>
        <translation>将声音切换到听筒</translation>
    </message>
    <message id="a11y_to_speaker">
        <source></source>
        <translation>将声音切换到扬声器</translation>
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
        <translation>关闭播放器</translation>
    </message>
    <message id="a11y_clear_search">
        <source></source>
        <translation>清除搜索</translation>
    </message>
    <message id="a11y_row_playing">
        <source></source>
        <translation>正在播放</translation>
    </message>
    <message id="a11y_row_paused">
        <source></source>
        <translation>已暂停</translation>
    </message>
    <message id="trimmer_title">
        <source></source>
        <translation>剪辑</translation>
    </message>
    <message id="trimmer_done">
        <source></source>
        <translation>完成</translation>
    </message>
    <message id="trimmer_trim">
        <source></source>
        <translation>剪辑</translation>
    </message>
    <message id="trimmer_edit">
        <source></source>
        <translation>再次编辑</translation>
    </message>
    <message id="trimmer_reset">
        <source></source>
        <translation>重置</translation>
    </message>
    <message id="trimmer_rerecord">
        <source></source>
        <translation>重新录制</translation>
    </message>
    <message id="trimmer_play">
        <source></source>
        <translation>播放所选部分</translation>
    </message>
    <message id="trimmer_loading">
        <source></source>
        <translation>正在读取波形…</translation>
    </message>
    <message id="trimmer_unreadable">
        <source></source>
        <translation>无法读取此录音。</translation>
    </message>
    <message id="trimmer_range">
        <source></source>
        <translation>%1 – %2 · %3 秒</translation>
    </message>
    <message id="a11y_zoom">
        <source></source>
        <translation>缩放</translation>
    </message>
    <message id="a11y_zoom_in">
        <source></source>
        <translation>放大</translation>
    </message>
    <message id="a11y_zoom_out">
        <source></source>
        <translation>缩小</translation>
    </message>
    <message id="a11y_overview">
        <source></source>
        <translation>整个录音及显示的部分</translation>
    </message>
    <message id="trimmer_zoom">
        <source></source>
        <translation>%1×</translation>
    </message>
    <message id="trimmer_total">
        <source></source>
        <translation>共 %1</translation>
    </message>
    <message id="trimmer_exporting">
        <source></source>
        <translation>正在保存所选部分</translation>
    </message>
    <message id="trimmer_stop_recording">
        <source></source>
        <translation>停止录音</translation>
    </message>
    <message id="a11y_trim_start">
        <source></source>
        <translation>所选部分的起点</translation>
    </message>
    <message id="a11y_trim_end">
        <source></source>
        <translation>所选部分的终点</translation>
    </message>
    <message id="trimming_audio">
        <source></source>
        <translation>剪辑音频</translation>
    </message>
    <message id="trim_audio">
        <source></source>
        <translation>剪辑音频</translation>
    </message>
    <message id="save_trim_audio">
        <source></source>
        <translation>要继续使用剪辑后的录音吗？</translation>
    </message>
    <message id="trim_progress">
        <source></source>
        <translation>正在剪辑音频</translation>
    </message>
    <message id="trim_play_trimmed">
        <source></source>
        <translation>试听</translation>
    </message>
    <message id="trim_save">
        <source></source>
        <translation>保存</translation>
    </message>
    <message id="trim_close">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="Processing">
        <source></source>
        <translation>正在处理</translation>
    </message>
    <message id="Yes">
        <source></source>
        <translation>是</translation>
    </message>
    <message id="No">
        <source></source>
        <translation>否</translation>
    </message>
    <message id="session_return">
        <source></source>
        <translation>返回</translation>
    </message>
    <message id="session_running">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="session_failed">
        <source></source>
        <translation>录音未能开始</translation>
    </message>
    <message id="session_dismiss">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>键盘快捷键</translation>
    </message>
    <message id="user_guide">
        <source></source>
        <translation>用户指南</translation>
    </message>
    <message id="shortcuts_close">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="shortcut_record">
        <source></source>
        <translation>录音、暂停、继续</translation>
    </message>
    <message id="shortcut_stop">
        <source></source>
        <translation>停止并保存</translation>
    </message>
    <message id="shortcut_tabs">
        <source></source>
        <translation>录音、录音列表、设置</translation>
    </message>
    <message id="shortcut_find">
        <source></source>
        <translation>查找录音</translation>
    </message>
    <message id="shortcut_open">
        <source></source>
        <translation>打开选中的录音</translation>
    </message>
    <message id="shortcut_ends">
        <source></source>
        <translation>开头、末尾、翻页</translation>
    </message>
    <message id="shortcut_play">
        <source></source>
        <translation>播放、暂停</translation>
    </message>
    <message id="shortcut_skip">
        <source></source>
        <translation>快退、快进</translation>
    </message>
    <message id="shortcut_speed">
        <source></source>
        <translation>减速、加速</translation>
    </message>
    <message id="shortcut_trim">
        <source></source>
        <translation>剪辑选中的录音</translation>
    </message>
    <message id="shortcut_zoom">
        <source></source>
        <translation>剪辑时：放大、缩小</translation>
    </message>
    <message id="shortcut_close">
        <source></source>
        <translation>关闭播放器或面板</translation>
    </message>
    <message id="shortcut_list">
        <source></source>
        <translation>此列表</translation>
    </message>
    <message id="shortcut_quit">
        <source></source>
        <translation>退出</translation>
    </message>
    <message id="key_space">
        <source></source>
        <translation>空格</translation>
    </message>
    <message id="key_enter">
        <source></source>
        <translation>回车</translation>
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
        <translation>已保存为 %1</translation>
    </message>
    <message id="record_kept">
        <source></source>
        <translation>录音被中断，已保留为 %1</translation>
    </message>
    <message id="record_last">
        <source></source>
        <translation>上次：%1 · %2</translation>
    </message>
    <message id="record_silent">
        <source></source>
        <translation>十秒内没有听到声音。麦克风打开了吗？</translation>
    </message>
    <message id="record_peak">
        <source></source>
        <translation>声音过大</translation>
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
        <translation>格式：%1</translation>
    </message>
    <message id="a11y_microphone">
        <source></source>
        <translation>麦克风：%1</translation>
    </message>
    <message id="a11y_play_last">
        <source></source>
        <translation>播放上次的录音 %1</translation>
    </message>
    <!-- The passcode lock -->
    <message id="password">
        <source></source>
        <translation>输入密码</translation>
    </message>
    <message id="old_pass">
        <source></source>
        <translation>输入旧密码</translation>
    </message>
    <message id="new_pass">
        <source></source>
        <translation>输入新密码</translation>
    </message>
    <message id="Re_pass">
        <source></source>
        <translation>再次输入新密码</translation>
    </message>
    <message id="Delete">
        <source></source>
        <translation>删除</translation>
    </message>
    <message id="passcode_digits">
        <source></source>
        <translation>已输入 %1 位，共 4 位</translation>
    </message>
    <message id="passcode_cover">
        <source></source>
        <translation>已锁定</translation>
    </message>
    <message id="passcode_missing">
        <source></source>
        <translation>没有保存密码，因此无法打开此锁。tavi 的手册页说明了如何将其关闭。</translation>
    </message>
    <message id="passcode_not_stored">
        <source></source>
        <translation>您的密码尚未保存</translation>
    </message>
    <message id="passcode_switch_not_stored">
        <source></source>
        <translation>密码锁保持原样</translation>
    </message>
    <message id="passcode_settings_refused">
        <source></source>
        <translation>无法写入设置。请检查磁盘是否已满，以及您是否有权写入其文件夹。</translation>
    </message>
    <!-- The store of the passcode -->
    <message id="error_keychain_waiting">
        <source></source>
        <translation>尚无法读取密码。桌面可能正在询问密钥环的密码。</translation>
    </message>
    <message id="error_keychain_locked">
        <source></source>
        <translation>保存密码的桌面密钥环已锁定。请解锁后重试。</translation>
    </message>
    <message id="error_keychain_gone">
        <source></source>
        <translation>保存密码的桌面密钥环没有响应。请启动它或重新登录。</translation>
    </message>
    <message id="error_keychain_damaged">
        <source></source>
        <translation>保存密码的文件已损坏，将保持原样：%1</translation>
    </message>
    <message id="error_keychain_foreign">
        <source></source>
        <translation>保存密码的文件无法读取或不属于您：%1</translation>
    </message>
    <message id="error_keychain_key">
        <source></source>
        <translation>保存密码的文件缺少密钥：%1</translation>
    </message>
    <message id="error_keychain_store">
        <source></source>
        <translation>密码锁有内容未能保存，将保留到程序结束。%1</translation>
    </message>
    <!-- The passcode on a terminal -->
    <message id="command_passcode">
        <source></source>
        <translation>密码：</translation>
    </message>
    <message id="command_passcode_wrong">
        <source></source>
        <translation>密码不正确</translation>
    </message>
    <!-- The cloud: what stands in the way -->
    <message id="error_cloud_silent">
        <source></source>
        <translation>服务器没有响应。</translation>
    </message>
    <message id="error_cloud_broken">
        <source></source>
        <translation>服务器没有响应：%1</translation>
    </message>
    <message id="error_cloud_certificate">
        <source></source>
        <translation>服务器不受信任：%1 未发送任何内容。</translation>
    </message>
    <message id="error_cloud_moved">
        <source></source>
        <translation>文件夹现在位于其他地址：%1</translation>
    </message>
    <message id="error_cloud_no_dav">
        <source></source>
        <translation>此地址没有 WebDAV 文件夹。</translation>
    </message>
    <message id="error_cloud_refused">
        <source></source>
        <translation>服务器拒绝了用户名或密码。</translation>
    </message>
    <message id="error_cloud_no_folder">
        <source></source>
        <translation>文件夹不在服务器上。</translation>
    </message>
    <message id="error_cloud_full">
        <source></source>
        <translation>服务器空间已满。</translation>
    </message>
    <message id="error_cloud_busy">
        <source></source>
        <translation>服务器过于繁忙。</translation>
    </message>
    <message id="error_cloud_status">
        <source></source>
        <translation>服务器返回状态 %1。</translation>
    </message>
    <message id="error_cloud_part">
        <source></source>
        <translation>服务器只发送了一部分。</translation>
    </message>
    <message id="error_cloud_not_kept">
        <source></source>
        <translation>服务器没有保留某个文件。</translation>
    </message>
    <message id="error_cloud_too_long">
        <source></source>
        <translation>服务器上的文件夹文件过多。</translation>
    </message>
    <message id="error_cloud_journal">
        <source></source>
        <translation>无法写入云端日志。</translation>
    </message>
    <message id="error_cloud_other_folder">
        <source></source>
        <translation>服务器上的文件夹已不是原来的那个。</translation>
    </message>
    <message id="error_cloud_interrupted">
        <source></source>
        <translation>已中断。</translation>
    </message>
    <message id="error_cloud_unreadable">
        <source></source>
        <translation>无法读取 %1。</translation>
    </message>
    <message id="error_cloud_growing">
        <source></source>
        <translation>%1 仍在写入中。</translation>
    </message>
    <message id="error_cloud_length">
        <source></source>
        <translation>服务器没有给出 %1 的大小。</translation>
    </message>
    <message id="error_cloud_conflict">
        <source></source>
        <translation>%1 在两台设备上被更改：两个版本都已保留。</translation>
    </message>
    <message id="error_cloud_missing">
        <source></source>
        <translation>正在重新查找 %1。</translation>
    </message>
    <message id="error_cloud_in_clear">
        <source></source>
        <translation>地址必须以 https:// 开头。</translation>
    </message>
    <message id="error_cloud_unknown">
        <source></source>
        <translation>%1 不在云端。</translation>
    </message>
    <message id="error_cloud_unsent">
        <source></source>
        <translation>%1 尚未上传到云端。</translation>
    </message>
    <message id="error_cloud_taken">
        <source></source>
        <translation>云端已有同名文件。</translation>
    </message>
    <message id="error_cloud_untold">
        <source></source>
        <translation>现在无法通知服务器。</translation>
    </message>
    <message id="error_cloud_foreign">
        <source></source>
        <translation>文件被其他程序占用。</translation>
    </message>
    <message id="error_cloud_read_only">
        <source></source>
        <translation>服务器不允许在那里写入。</translation>
    </message>
    <message id="error_cloud_password">
        <source></source>
        <translation>无法获取密码：%1</translation>
    </message>
    <message id="error_cloud_password_kept">
        <source></source>
        <translation>无法保存密码：%1</translation>
    </message>
    <message id="error_cloud_elsewhere">
        <source></source>
        <translation>现在由另一个进程管理云端。</translation>
    </message>
    <message id="error_cloud_vanished" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n 个文件一下子从服务器上消失了。</numerusform>
        </translation>
    </message>
    <message id="error_cloud_no_server">
        <source></source>
        <translation>云端不是服务器。</translation>
    </message>
    <message id="command_cloud_vanished">
        <source></source>
        <translation>用 --remove-vanished 在这里也删除，或用 --keep-vanished 重新发送。</translation>
    </message>
    <!-- The cloud: account page and rows -->
    <message id="cloud_title">
        <source></source>
        <translation>云端</translation>
    </message>
    <message id="cloud_details">
        <source></source>
        <translation>云账户</translation>
    </message>
    <message id="cloud_back">
        <source></source>
        <translation>返回</translation>
    </message>
    <message id="cloud_account">
        <source></source>
        <translation>账户</translation>
    </message>
    <message id="cloud_ask">
        <source></source>
        <translation>您的云端在哪里？</translation>
    </message>
    <message id="cloud_ask_hint">
        <source></source>
        <translation>您保存的每个录音都会复制到那里。此设备上不会移动或删除任何内容。</translation>
    </message>
    <message id="cloud_hint">
        <source></source>
        <translation>断开后，所有录音仍留在原处，包括这里和云端。</translation>
    </message>
    <message id="cloud_folder">
        <source></source>
        <translation>由其他程序同步的文件夹</translation>
    </message>
    <message id="cloud_choose_title">
        <source></source>
        <translation>选择云端文件夹</translation>
    </message>
    <message id="cloud_server">
        <source></source>
        <translation>WebDAV 服务器</translation>
    </message>
    <message id="cloud_address">
        <source></source>
        <translation>地址，例如 https://example.org/dav/</translation>
    </message>
    <message id="cloud_user">
        <source></source>
        <translation>用户名</translation>
    </message>
    <message id="cloud_password">
        <source></source>
        <translation>密码</translation>
    </message>
    <message id="cloud_connect">
        <source></source>
        <translation>连接</translation>
    </message>
    <message id="cloud_connecting">
        <source></source>
        <translation>正在测试连接…</translation>
    </message>
    <message id="cloud_place">
        <source></source>
        <translation>位置</translation>
    </message>
    <message id="cloud_place_of">
        <source></source>
        <translation>%1，用户 %2</translation>
    </message>
    <message id="cloud_state">
        <source></source>
        <translation>状态</translation>
    </message>
    <message id="cloud_last_sync">
        <source></source>
        <translation>上次同步</translation>
    </message>
    <message id="cloud_never">
        <source></source>
        <translation>尚未同步</translation>
    </message>
    <message id="cloud_state_off">
        <source></source>
        <translation>已关闭。要同步，请打开设置中的开关。</translation>
    </message>
    <message id="cloud_state_folder">
        <source></source>
        <translation>已连接。此文件夹由其他程序同步。</translation>
    </message>
    <message id="cloud_state_working">
        <source></source>
        <translation>正在同步…</translation>
    </message>
    <message id="cloud_state_in_step">
        <source></source>
        <translation>所有内容都在云端。</translation>
    </message>
    <message id="cloud_state_troubled">
        <source></source>
        <translation>未同步。会自动重试。</translation>
    </message>
    <message id="cloud_state_asking">
        <source></source>
        <translation>服务器上缺少的文件：%1。未经您同意，这里不会删除任何内容。</translation>
    </message>
    <message id="cloud_sync">
        <source></source>
        <translation>立即同步</translation>
    </message>
    <message id="cloud_decide">
        <source></source>
        <translation>决定…</translation>
    </message>
    <message id="cloud_disconnect">
        <source></source>
        <translation>断开</translation>
    </message>
    <message id="cloud_disconnect_title">
        <source></source>
        <translation>断开云端？</translation>
    </message>
    <message id="cloud_disconnect_text">
        <source></source>
        <translation>不再使用 %1，并忘记其密码。两边的所有录音都会保留。</translation>
    </message>
    <message id="cloud_clear_title">
        <source></source>
        <translation>不加保护地发送？</translation>
    </message>
    <message id="cloud_clear_text">
        <source></source>
        <translation>地址以 http:// 开头。传输途中任何人都能读取您的录音和密码。</translation>
    </message>
    <message id="cloud_clear_yes">
        <source></source>
        <translation>仍然发送</translation>
    </message>
    <message id="cloud_vanished_title">
        <source></source>
        <translation>云端缺少文件</translation>
    </message>
    <message id="cloud_vanished_text">
        <source></source>
        <translation>服务器上已不存在的文件：%1。要在这里也移到回收站，还是重新发送？</translation>
    </message>
    <message id="cloud_vanished_later">
        <source></source>
        <translation>以后决定</translation>
    </message>
    <message id="cloud_vanished_keep">
        <source></source>
        <translation>重新发送</translation>
    </message>
    <message id="cloud_vanished_remove">
        <source></source>
        <translation>移到回收站</translation>
    </message>
    <message id="save_choose">
        <source></source>
        <translation>选择</translation>
    </message>
    <message id="cloud_row_waiting">
        <source></source>
        <translation>等待发送</translation>
    </message>
    <message id="cloud_row_sending">
        <source></source>
        <translation>正在发送，%1 %</translation>
    </message>
    <message id="cloud_row_there">
        <source></source>
        <translation>在云端</translation>
    </message>
    <message id="cloud_row_only">
        <source></source>
        <translation>仅在云端。点按以下载</translation>
    </message>
    <message id="cloud_row_arriving">
        <source></source>
        <translation>正在传来。点按以重新请求</translation>
    </message>
    <message id="cloud_row_conflict">
        <source></source>
        <translation>另一版本。两者都保留</translation>
    </message>
    <message id="cloud_refreshing">
        <source></source>
        <translation>正在刷新云端录音</translation>
    </message>
    <message id="shortcut_refresh">
        <source></source>
        <translation>刷新云端录音</translation>
    </message>
    <!-- The companion -->
    <message id="companion_absent">
        <source></source>
        <translation>未运行</translation>
    </message>
    <message id="companion_silent">
        <source></source>
        <translation>没有响应</translation>
    </message>
    <message id="companion_locked">
        <source></source>
        <translation>已锁定</translation>
    </message>
    <message id="companion_idle">
        <source></source>
        <translation>可以录音</translation>
    </message>
    <message id="companion_recording">
        <source></source>
        <translation>正在录音，%1</translation>
    </message>
    <message id="companion_paused">
        <source></source>
        <translation>已暂停，%1</translation>
    </message>
    <message id="companion_record">
        <source></source>
        <translation>录音</translation>
    </message>
    <message id="companion_pause">
        <source></source>
        <translation>暂停</translation>
    </message>
    <message id="companion_resume">
        <source></source>
        <translation>继续</translation>
    </message>
    <message id="companion_record_or_pause">
        <source></source>
        <translation>录音或暂停</translation>
    </message>
    <message id="companion_stop">
        <source></source>
        <translation>停止并保存</translation>
    </message>
    <message id="companion_show">
        <source></source>
        <translation>显示录音</translation>
    </message>
    <message id="companion_quit">
        <source></source>
        <translation>移除图标</translation>
    </message>
    <message id="companion_not_running">
        <source></source>
        <translation>录音机未运行。</translation>
    </message>
    <message id="companion_no_channel">
        <source></source>
        <translation>录音机在此通道上没有响应。请用相同的 --companion-channel 启动它。</translation>
    </message>
    <message id="companion_twice">
        <source></source>
        <translation>图标已经存在。</translation>
    </message>
    <message id="companion_no_bus">
        <source></source>
        <translation>没有会话总线，因此无法显示图标。</translation>
    </message>
</context>
</TS>
