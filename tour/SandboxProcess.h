#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <QVariantMap>

/// A sandbox of its own on a free port, ended with this object.
class SandboxProcess : public QObject {
    Q_OBJECT
public:
    /// Fails the program with a clear line when the sandbox does not start.
    explicit SandboxProcess(const QStringList &options = {});
    ~SandboxProcess() override;

    QString baseUrl() const { return url; }
    QString authority() const;
    /// The last code sent to the number; empty when there is none.
    QString codeFor(const QString &cell) const { return codes.value(cell); }
    /// What the sandbox says of itself: its clock, its users with their books.
    QVariantMap state() const;
    /// The pinyin initials of a listed company.
    QString initialsOf(const QString &name) const;
    /// How many requests went to paths that the sandbox does not know.
    int unknownRequests() const;
    /// Posts a form to a path below "sandbox/": a fault, the clock, a price.
    void post(const QString &path, const QVariantMap &fields) const;

private:
    QVariant data(const QString &path) const;
    QByteArray exchange(const QString &path, const QByteArray &form) const;
    void readLines();

    QTemporaryDir folder;
    QProcess process;
    QString url;
    QHash<QString, QString> codes;
};
