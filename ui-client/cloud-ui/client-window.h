#ifndef CLIENT_WINDOW_H
#define CLIENT_WINDOW_H

#include <QWidget>

// The demo client's only window: says which version and build of the client
// runs, as its bundle's version file records it.
class ClientWindow : public QWidget {
    Q_OBJECT

public:
    explicit ClientWindow(const QString& version_file, QWidget* parent = nullptr);

private:
    static QString versionText(const QString& version_file);
};

#endif  // CLIENT_WINDOW_H
