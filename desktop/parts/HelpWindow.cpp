#include "desktop/parts/HelpWindow.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QPointer>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "desktop/parts/Texts.h"

// Not in a namespace: the resources of a static library come in by this name.
static void bringInHelpPages() {
    Q_INIT_RESOURCE(desktop);
}

namespace quorvia::host {
namespace {

QPointer<QDialog>& openWindow() {
    static QPointer<QDialog> window;
    return window;
}

void showPage(QTextBrowser& browser, const QString& page, const QString& anchor) {
    QFile file(QStringLiteral(":/help/") + page);
    if (!file.open(QIODevice::ReadOnly)) {
        browser.setPlainText(QStringLiteral("There is no page \"%1\".").arg(page));
        return;
    }
    browser.setHtml(QString::fromUtf8(file.readAll()));
    if (!anchor.isEmpty())
        browser.scrollToAnchor(anchor);
}

} // namespace

void HelpWindow::show(QWidget* parent, const std::string& target) {
    bringInHelpPages();
    delete openWindow();
    // A child of the window in front, which may be modal: others could not be used beside it.
    auto* window = new QDialog(parent);
    openWindow() = window;
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setModal(false);
    window->setObjectName(QStringLiteral("help"));
    window->setWindowTitle(QStringLiteral("Help"));
    constexpr QSize pageSize(680, 560);
    window->resize(pageSize);
    auto* browser = new QTextBrowser(window);
    browser->setOpenExternalLinks(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, window);
    QObject::connect(buttons, &QDialogButtonBox::rejected, window, &QDialog::close);
    auto* layout = new QVBoxLayout(window);
    layout->addWidget(browser);
    layout->addWidget(buttons);
    window->show();
    const QString text = shown(target);
    showPage(*browser, text.section(QLatin1Char('#'), 0, 0), text.section(QLatin1Char('#'), 1));
}

} // namespace quorvia::host
