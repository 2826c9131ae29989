#pragma once

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QThread>
#include <QUrl>
#include <filesystem>

namespace tavi::test {

/// A WebDAV server of the test's own on this machine, for the user "u" with the password "p", with an empty folder.
/// Ends the program where it does not come up.
class PrivateDav {
public:
    /// "apache", "rclone", "rclone-writes", "nginx", "lighttpd", "sabre", or the path of a Python script, which is told
    /// a certificate, too, where there is one.
    explicit PrivateDav(const QString& kind, const QString& certificate = {}) : m_certificate(certificate) {
        QTcpServer free;
        free.listen(QHostAddress::LocalHost);
        m_port = QString::number(free.serverPort());
        free.close();
        for (const char* name : {"", "/root", "/run"}) {
            QDir().mkpath(path(name));
            QFile(path(name)).setPermissions(QFile::Permissions(0x7777));
        }
        QStringList command = commandOf(kind);
        if (::getuid() == 0 && command.first() != QLatin1String("python3")) {
            // Some of them serve nothing as root.
            command = QStringList{QStringLiteral("setpriv"), QStringLiteral("--reuid=65534"),
                                  QStringLiteral("--regid=65534"), QStringLiteral("--clear-groups")} +
                      command;
        }
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(command.takeFirst(), command);
        for (int tries = 0; tries < 2000; ++tries) {
            QTcpSocket socket;
            socket.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(m_port.toInt()));
            if (socket.waitForConnected(100)) {
                return;
            }
            QThread::msleep(10);
        }
        qFatal("%s does not come up: %s", qPrintable(kind), m_process.readAll().constData());
    }
    ~PrivateDav() {
        m_process.terminate();
        m_process.waitForFinished();
    }

    QUrl url() const { return QUrl(QStringLiteral("http://127.0.0.1:%1/Tavi/").arg(m_port)); }
    QString port() const { return m_port; }
    /// What the server keeps.
    std::filesystem::path files() const { return path("/root/Tavi").toStdString(); }

private:
    QString path(const char* name) const { return m_folder.path() + QLatin1String(name); }
    QStringList withFile(const char* name, QString text, const QStringList& command) {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) ||
            file.write(
                text.replace(QLatin1String("$R"), m_folder.path()).replace(QLatin1String("$P"), m_port).toUtf8()) < 0) {
            qFatal("cannot write %s", name);
        }
        return command;
    }
    QStringList commandOf(const QString& kind) {
        if (kind == QLatin1String("apache")) {
            withFile("/htpasswd", QStringLiteral("u:dav:%1\n").arg(QLatin1String(digest())), {});
            QString config = QStringLiteral(
                "ServerRoot /usr/lib/apache2\nServerName localhost\nListen 127.0.0.1:$P\nPidFile $R/run/pid\nErrorLog "
                "$R/run/log\nDefaultRuntimeDir $R/run\nMutex file:$R/run\nDavLockDB $R/run/lock\nTypesConfig "
                "/dev/null\n");
            for (const char* module : {"mpm_event", "authn_core", "authn_file", "authz_core", "authz_user",
                                       "auth_digest", "mime", "dir", "dav", "dav_fs"}) {
                config += QStringLiteral("LoadModule %1_module modules/mod_%1.so\n").arg(QLatin1String(module));
            }
            config += QStringLiteral(
                "DocumentRoot $R/root\n<Directory $R/root>\nDav On\nAuthType Digest\nAuthName dav\nAuthUserFile "
                "$R/htpasswd\nRequire valid-user\n</Directory>\n");
            return withFile("/a.conf", config,
                            {QStringLiteral("/usr/sbin/apache2"), QStringLiteral("-DFOREGROUND"), QStringLiteral("-f"),
                             path("/a.conf")});
        }
        if (kind.startsWith(QLatin1String("rclone"))) {
            const QString mode =
                kind.endsWith(QLatin1String("writes")) ? QStringLiteral("writes") : QStringLiteral("off");
            return QStringLiteral(
                       "env HOME=%1/run rclone serve webdav %1/root --addr 127.0.0.1:%2 --user u --pass p "
                       "--cache-dir %1/run --dir-cache-time 0s --vfs-cache-mode %3")
                .arg(m_folder.path(), m_port, mode)
                .split(QLatin1Char(' '));
        }
        if (kind == QLatin1String("nginx")) {
            withFile("/htpasswd", QStringLiteral("u:{PLAIN}p\n"), {});
            return withFile(
                "/n.conf",
                QStringLiteral("daemon off; pid $R/run/pid; error_log $R/run/err; load_module "
                               "/usr/lib/nginx/modules/ngx_http_dav_ext_module.so; events{} http{ access_log off; "
                               "client_body_temp_path $R/run/b; proxy_temp_path $R/run/p; fastcgi_temp_path "
                               "$R/run/f; uwsgi_temp_path $R/run/u; scgi_temp_path $R/run/s; "
                               "server{ listen 127.0.0.1:$P; root $R/root; client_max_body_size 0; location /{ "
                               "dav_methods PUT DELETE MKCOL COPY MOVE; dav_ext_methods PROPFIND OPTIONS; "
                               "auth_basic dav; auth_basic_user_file $R/htpasswd; }}}"),
                {QStringLiteral("/usr/sbin/nginx"), QStringLiteral("-e"), path("/run/err"), QStringLiteral("-c"),
                 path("/n.conf")});
        }
        if (kind == QLatin1String("lighttpd")) {
            withFile("/htpasswd", QStringLiteral("u:p\n"), {});
            return withFile(
                "/l.conf",
                QStringLiteral("server.modules=(\"mod_auth\",\"mod_authn_file\",\"mod_webdav\")\n"
                               "server.document-root=\"$R/root\"\nserver.bind=\"127.0.0.1\"\nserver.port=$P\n"
                               "server.errorlog=\"$R/run/log\"\nserver.upload-dirs=(\"$R/run\")\n"
                               "mimetype.assign=(\"\"=>\"application/octet-stream\")\nwebdav.activate=\"enable\"\n"
                               "webdav.sqlite-db-name=\"$R/run/dav.db\"\nauth.backend=\"plain\"\n"
                               "auth.backend.plain.userfile=\"$R/htpasswd\"\nauth.require=(\"/\"=>(\"method\"=>"
                               "\"basic\",\"realm\"=>\"dav\",\"require\"=>\"valid-user\"))\n"),
                {QStringLiteral("/usr/sbin/lighttpd"), QStringLiteral("-D"), QStringLiteral("-f"), path("/l.conf")});
        }
        if (kind == QLatin1String("sabre")) {
            return withFile(
                "/server.php",
                QStringLiteral(
                    "<?php\nrequire 'Sabre/autoload.php';\nclass Users extends "
                    "Sabre\\DAV\\Auth\\Backend\\AbstractBasic {\n"
                    "protected function validateUserPass($user, $pass) { return $user == 'u' && $pass == 'p'; "
                    "}\n}\n$server = new Sabre\\DAV\\Server(new Sabre\\DAV\\FSExt\\Directory('$R/root'));\n"
                    "$server->setBaseUri('/');\n$server->addPlugin(new Sabre\\DAV\\Auth\\Plugin(new Users(), "
                    "'dav'));\n$server->exec();\n"),
                {QStringLiteral("php"), QStringLiteral("-d"), QStringLiteral("display_errors=0"), QStringLiteral("-S"),
                 QStringLiteral("127.0.0.1:") + m_port, path("/server.php")});
        }
        return QStringList{QStringLiteral("python3"), kind, m_port} +
               (m_certificate.isEmpty() ? QStringList() : QStringList{m_certificate});
    }
    static const char* digest() { return "5e8f82c775b2816e9b41061669b52605"; }

    QTemporaryDir m_folder;
    QString m_certificate;
    QString m_port;
    QProcess m_process;
};

}  // namespace tavi::test
