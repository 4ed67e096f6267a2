// SPDX-License-Identifier: GPL-3.0-or-later
// A small window on which the desktop driver and the probe are tried.
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

#include <glibtop.h>
#include <glibtop/mem.h>

#include <iostream>

class SampleWindow : public QMainWindow
{
    Q_OBJECT

public:
    SampleWindow()
        : m_tabs(new QTabWidget(this)), m_memory(new QLabel(this)), m_answer(new QLabel(this)),
          m_tree(new QTreeView), m_model(new QStandardItemModel(this))
    {
        setWindowTitle(QStringLiteral("Sample"));
        setCentralWidget(m_tabs);
        m_tabs->addTab(firstPage(), QStringLiteral("First"));
        m_tabs->addTab(m_tree, QStringLiteral("&Second"));
        fillTree();
        addMenus();
        readMemory();
        auto *const timer = new QTimer(this);
        connect(timer, SIGNAL(timeout()), SLOT(readMemory()));
        timer->start(100);
    }

private Q_SLOTS:
    void ask()
    {
        const auto answer = QMessageBox::question(this, QStringLiteral("Question"), QStringLiteral("Go on?"),
                                                  QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel);
        m_answer->setText(answer == QMessageBox::Ok ? QStringLiteral("ok") : QStringLiteral("cancelled"));
    }

    void popup()
    {
        QMenu menu(this);
        menu.addAction(QStringLiteral("&Inspect"))->setCheckable(true);
        menu.addSeparator();
        menu.addAction(QStringLiteral("Never"))->setEnabled(false);
        QAction *const chosen = menu.exec(QCursor::pos());
        m_answer->setText(chosen ? chosen->text() : QStringLiteral("nothing"));
    }

    void readMemory()
    {
        glibtop_mem memory;
        glibtop_get_mem(&memory);
        m_memory->setText(QString::number(memory.total));
    }

private:
    QWidget *firstPage()
    {
        auto *const page = new QWidget;
        auto *const layout = new QVBoxLayout(page);
        auto *const button = new QPushButton(QStringLiteral("&Ask"));
        button->setObjectName(QStringLiteral("ask"));
        m_memory->setObjectName(QStringLiteral("memory"));
        m_answer->setObjectName(QStringLiteral("answer"));
        layout->addWidget(button);
        auto *const edit = new QLineEdit;
        edit->setObjectName(QStringLiteral("edit"));
        layout->addWidget(edit);
        layout->addWidget(m_memory);
        layout->addWidget(m_answer);
        connect(button, SIGNAL(clicked()), SLOT(ask()));
        return page;
    }

    void fillTree()
    {
        m_model->setHorizontalHeaderLabels(
            {QStringLiteral("Name"), QStringLiteral("Size"), QStringLiteral("Hidden")});
        for (int i = 0; i < 200; ++i) {
            auto *const item = new QStandardItem(QStringLiteral("row %1").arg(i, 3, 10, QLatin1Char('0')));
            m_model->appendRow({item, new QStandardItem(QString::number(i * i)), new QStandardItem});
        }
        m_model->item(0)->appendRow(new QStandardItem(QStringLiteral("child")));
        m_tree->setObjectName(QStringLiteral("tree"));
        m_tree->setModel(m_model);
        m_tree->setSortingEnabled(true);
        m_tree->sortByColumn(0, Qt::AscendingOrder);
        m_tree->setColumnHidden(2, true);
        m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(m_tree, SIGNAL(customContextMenuRequested(QPoint)), SLOT(popup()));
    }

    void addMenus()
    {
        QMenu *const file = menuBar()->addMenu(QStringLiteral("&File"));
        QAction *const exit = file->addAction(QStringLiteral("E&xit"));
        exit->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));
        qApp->connect(exit, SIGNAL(triggered(bool)), SLOT(quit()));
        statusBar()->addPermanentWidget(m_answer);
    }

    QTabWidget *m_tabs;
    QLabel *m_memory;
    QLabel *m_answer;
    QTreeView *m_tree;
    QStandardItemModel *m_model;
};

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    for (int i = 1; i < argc; ++i)
        std::cout << argv[i] << std::endl;
    SampleWindow window;
    window.show();
    return QApplication::exec();
}

#include "sample_window.moc"
