// The window of the help: its topics at the left, the chosen one at the right.
#pragma once

#include "desktop/HelpTopics.h"

#include <QWidget>

class QLineEdit;
class QListWidget;
class QTextBrowser;

namespace velorix {

// A window of its own over its owner, with which it closes. It can stay open beside the owner's fields.
class HelpWindow : public QWidget {
public:
    HelpWindow(std::vector<HelpTopic> AllTopics, QWidget* Owner);

    // Comes to the front over the window that asks, with the topic, ready for a search.
    void Ask(int Number, QWidget* Owner);

    // Opens the topic of that number, the first one when there is none.
    void ShowTopic(int Number);

private:
    QWidget* TopicPane();
    QWidget* TextPane();
    void Search(const QString& Words);
    void Choose(int Topic);
    void ShowChosen(int Topic);
    void MarkWords();
    int RowOf(int Topic) const;

    const std::vector<HelpTopic> Topics;
    QLineEdit* Words = nullptr;
    std::vector<int> Listed; // the topics as they stand in the list
    QListWidget* List = nullptr;
    QTextBrowser* Text = nullptr;
};

} // namespace velorix
