// SPDX-License-Identifier: GPL-3.0-or-later
// A small window for the tests of the desktop driver and the probe.
#include <QtWidgets>

#include <glibtop.h>
#include <glibtop/mem.h>

#include <iostream>

class SampleWindow : public QMainWindow
{
    Q_OBJECT

public:
    SampleWindow()
        : tabs(new QTabWidget(this)), memoryLabel(new QLabel(this)), answerLabel(new QLabel(this)),
          tree(new QTreeView), model(new QStandardItemModel(this))
    {
        setWindowTitle("Sample");
        setCentralWidget(tabs);
        tabs->addTab(firstPage(), "First");
        tabs->addTab(tree, "&Second");
        fillTree();
        addMenus();
        readMemory();
        auto *timer = new QTimer(this);
        connect(timer, SIGNAL(timeout()), SLOT(readMemory()));
        timer->start(100);
    }

private Q_SLOTS:
    void ask()
    {
        const auto answer = QMessageBox::question(this, "Question", "Go on?",
                                                  QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel);
        answerLabel->setText(answer == QMessageBox::Ok ? "ok" : "cancelled");
    }

    void popup()
    {
        QMenu menu(this);
        menu.addAction("&Inspect")->setCheckable(true);
        menu.addSeparator();
        menu.addAction("Never")->setEnabled(false);
        QAction *chosen = menu.exec(QCursor::pos());
        answerLabel->setText(chosen ? chosen->text() : "nothing");
    }

    void readMemory()
    {
        glibtop_mem memory;
        glibtop_get_mem(&memory);
        memoryLabel->setText(QString::number(memory.total));
    }

private:
    QWidget *firstPage()
    {
        auto *page = new QWidget;
        auto *layout = new QVBoxLayout(page);
        auto *button = new QPushButton("&Ask");
        button->setObjectName("ask");
        memoryLabel->setObjectName("memory");
        answerLabel->setObjectName("answer");
        layout->addWidget(button);
        auto *edit = new QLineEdit;
        edit->setObjectName("edit");
        layout->addWidget(edit);
        layout->addWidget(memoryLabel);
        layout->addWidget(answerLabel);
        connect(button, SIGNAL(clicked()), SLOT(ask()));
        return page;
    }

    void fillTree()
    {
        model->setHorizontalHeaderLabels({"Name", "Size", "Hidden"});
        for (int i = 0; i < 200; ++i) {
            auto *item = new QStandardItem(QString("row %1").arg(i, 3, 10, QLatin1Char('0')));
            model->appendRow({item, new QStandardItem(QString::number(i * i)), new QStandardItem});
        }
        model->item(0)->appendRow(new QStandardItem("child"));
        tree->setObjectName("tree");
        tree->setModel(model);
        tree->setSortingEnabled(true);
        tree->sortByColumn(0, Qt::AscendingOrder);
        tree->setColumnHidden(2, true);
        tree->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(tree, SIGNAL(customContextMenuRequested(QPoint)), SLOT(popup()));
    }

    void addMenus()
    {
        QMenu *file = menuBar()->addMenu("&File");
        QAction *exit = file->addAction("E&xit");
        exit->setShortcut(QKeySequence("Ctrl+Q"));
        qApp->connect(exit, SIGNAL(triggered(bool)), SLOT(quit()));
        statusBar()->addPermanentWidget(answerLabel);
    }

    QTabWidget *tabs;
    QLabel *memoryLabel;
    QLabel *answerLabel;
    QTreeView *tree;
    QStandardItemModel *model;
};

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    for (int i = 1; i < argc; ++i) {
        std::cout << argv[i] << std::endl;
    }
    SampleWindow window;
    window.show();
    return QApplication::exec();
}

#include "sample_window.moc"
