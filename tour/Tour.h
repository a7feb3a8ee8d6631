#pragma once

#include "tour/Hand.h"
#include "tour/SandboxProcess.h"

#include <QDir>
#include <functional>

/// A walk through the client as a new user takes it, step by step, against a sandbox of its own. Each step is
/// told on the terminal and leaves a picture; the first that fails ends the walk and says what was on the
/// window instead.
class Tour {
public:
    Tour(Hand &usedHand, SandboxProcess &usedSandbox, const QDir &pictureFolder);

    /// Whether every step came out as expected.
    bool walk();

private:
    struct Step {
        QString name;
        std::function<bool()> act;
    };

    QList<Step> steps();
    bool passGuide();
    bool askForSignIn();
    bool sendCode();
    bool signInWithCode();
    bool openOrderEntry();
    bool findStock();
    bool tapPrice();
    bool submitBuy();
    bool buyStandsInTheBooks();
    bool sellHolding();
    bool cancelOrders();
    bool readStock();
    bool readCandles();
    bool receiveMessage();
    bool readEntrustsAndDeals();
    bool readDetail();
    bool goHome();
    bool changeNickname();
    bool resetTradePassword();
    bool logOut();
    bool registerNewcomer();
    bool chooseFirstNickname();
    bool setFirstPassword();

    bool enterTradePassword();
    bool askForCode(const QString &number);
    bool openAccountOfMenu();
    /// The demo user in the sandbox's books.
    QVariantMap user() const;
    QString heldStock() const;
    int ordersInTheBooks() const;

    Hand &hand;
    SandboxProcess &sandbox;
    QDir pictures;
    int ordersBefore = 0;
    QString availableBefore;
    QString stock;
};
