#include "tests/trading/UnknownOrderFixture.h"
#include "trading/api/TZTradeTool.h"

/// The same order twice while nobody knows what became of the first.
class RepeatedOrderTest : public UnknownOrderTest {};

TEST_F(RepeatedOrderTest, TheFirstOfTwoLostOnesIsFoundWhenOnlyItStands)
{
    openAndLose();
    http.fail(entrustsPath, HttpFailure::TimedOut);
    runLoop.advance(500ms);
    alert()->leftBtnClick();
    quoteAt(500);
    TZTradeTool::getEntrustsTodayWithParam({}, {}, {});
    answerPage({entrust("4", 1)});
    submitEntry();
    alert()->leftBtnClick();
    http.fail(entrustsPath, HttpFailure::TimedOut);
    EXPECT_EQ(alert()->leftTitle(), "再次提交") << "the entrusts cannot be read, and the user knows";
    runLoop.advance(499ms);
    alert()->leftBtnClick();
    EXPECT_EQ(said(), "委托结果未知") << "the tap was meant for what stood there before";
    runLoop.advance(1ms);
    alert()->leftBtnClick();
    runLoop.advance(500ms);
    EXPECT_EQ(http.countOf(buyPath), 2);
    http.fail(buyPath, HttpFailure::TimedOut);
    // It was in a list that was read before the second went out.
    answerEntrusts({entrust("4", 1)});
    EXPECT_EQ(said(), "已找到这笔委托");
    EXPECT_TRUE(says("10004"));
    EXPECT_TRUE(says("另有 1 次提交没有找到"));
    alert()->cancel();

    enter("12.34", "800");
    submitEntry();
    EXPECT_EQ(said(), "确认再次提交") << "the second may still arrive";
    alert()->rightBtnClick();
    answerEntrusts({entrust("5", 501), entrust("4", 1)});
    EXPECT_TRUE(says("10005"));
    alert()->cancel();
    EXPECT_TRUE(UnknownOrders::all().isEmpty());
}

TEST_F(RepeatedOrderTest, WhenBothStandBothAreNamed)
{
    openAndLose();
    findNothing();
    alert()->leftBtnClick();
    submitAgain({});
    http.fail(buyPath, HttpFailure::Connection);
    answerEntrusts({entrust("5", 20), entrust("4", 1)});
    EXPECT_EQ(said(), "已找到 2 笔委托");
    EXPECT_TRUE(says("10004"));
    EXPECT_TRUE(says("10005"));
    EXPECT_FALSE(says("可能是这笔"));
    alert()->cancel();

    loseNext();
    answerEntrusts({entrust("7", 20), entrust("6", 10), entrust("5", 20), entrust("4", 1)});
    EXPECT_EQ(said(), "可能找到了这笔委托");
    EXPECT_TRUE(says("可能是这笔：委托编号 10006")) << "one of them is not this client's";
    EXPECT_TRUE(says("可能是这笔：委托编号 10007"));
}

TEST_F(RepeatedOrderTest, WhatArrivesLateIsFoundBeforeTheSecondGoesOutOrToldAfterIt)
{
    openAndLose();
    findNothing();
    alert()->leftBtnClick();
    submitEntry();
    alert()->leftBtnClick();
    EXPECT_EQ(said(), "再次提交");
    answerEntrusts({entrust("4", 25)});
    EXPECT_EQ(said(), "已找到这笔委托");
    alert()->cancel();
    EXPECT_EQ(http.countOf(buyPath), 1);

    loseNext();
    findNothing({entrust("4", 25)});
    alert()->leftBtnClick();
    submitAgain({entrust("4", 25)});
    http.answer(buyPath, placed("6"));
    EXPECT_EQ(said(), "委托挂单成功");
    alert()->leftBtnClick();
    settle();
    runLoop.advance(30s);
    answerEntrusts({entrust("6", 60), entrust("5", 50), entrust("4", 25)});
    EXPECT_EQ(said(), "已找到这笔委托") << "the screen is gone, and it is told all the same";
    EXPECT_TRUE(says("10005"));
    EXPECT_TRUE(UnknownOrders::all().isEmpty());
}

TEST_F(RepeatedOrderTest, TheQuestionSendsNothingWhenItsReadingIsClosed)
{
    openAndLose();
    findNothing();
    alert()->leftBtnClick();
    submitEntry();
    alert()->leftBtnClick();
    FakeTransport::Sent &reading = http.pending(entrustsPath);
    // Somebody draws the window: the dialog is still seen to go when the answer comes.
    window.setProperty("animated", true);
    alert()->cancel();
    // It is on its way already: nothing else happens in between.
    http.answer(reading, succeeded(QVariantList()));
    runLoop.advance(1s);
    EXPECT_EQ(http.countOf(buyPath), 1);
}

TEST_F(RepeatedOrderTest, TheSameOrderAsksForOneConfirmationAnotherOneDoesNot)
{
    openAndLose();
    findNothing();
    alert()->leftBtnClick();

    enter("12.35", "800");
    submitEntry();
    EXPECT_EQ(http.countOf(buyPath), 2) << "another price is another order";
    http.answer(buyPath, refused("资金不足"));

    enter("12.34", "0800");
    submitEntry();
    EXPECT_EQ(said(), "确认再次提交");
    EXPECT_EQ(http.countOf(buyPath), 2);
    alert()->cancel();
    runLoop.advance(1s);
    EXPECT_EQ(http.countOf(buyPath), 2);

    submitAgain({});
    EXPECT_EQ(http.countOf(buyPath), 3);
    http.answer(buyPath, refused("资金不足"));
    submitAgain({});
    EXPECT_EQ(http.countOf(buyPath), 4) << "a refusal says nothing of the first one";
    http.answer(buyPath, placed("5"));
    EXPECT_EQ(said(), "委托挂单成功");
    alert()->cancel();

    enter("12.34", "800");
    runLoop.advance(6min);
    answerEntrusts({entrust("5")});
    EXPECT_EQ(said(), "") << "what is missing for so long never arrived";
    submitEntry();
    EXPECT_EQ(http.countOf(buyPath), 5);
}

TEST_F(RepeatedOrderTest, TheQuestionLeadsToTheSearchToo)
{
    openAndLose();
    alert()->cancel();
    submitEntry();
    EXPECT_EQ(said(), "确认再次提交");
    alert()->rightBtnClick();
    EXPECT_EQ(said(), "委托结果未知");
    // Two requests: the search that was closed died with its dialog.
    settle();
    answerEntrusts({entrust("4")});
    EXPECT_EQ(said(), "已找到这笔委托");
    alert()->cancel();
    enter("12.34", "800");
    submitEntry();
    EXPECT_EQ(http.countOf(buyPath), 2);
}

TEST_F(RepeatedOrderTest, WhatMayBeItEndsNothingAndIsToldOnce)
{
    // Nothing says when the entrust came: it may be hours old.
    OrderEntryTest::openWithEntry();
    lose();
    answerEntrusts({entrust("4")});
    EXPECT_EQ(said(), "可能找到了这笔委托");
    EXPECT_EQ(alert()->leftTitle() + alert()->rightTitle(), "知道了");
    EXPECT_EQ(screen->quantity(), "800");
    alert()->rightBtnClick();
    submitEntry();
    EXPECT_EQ(said(), "确认再次提交");
    alert()->leftBtnClick();
    answerEntrusts({entrust("4")});
    EXPECT_TRUE(says("可能是这笔：委托编号 10004"));
    EXPECT_EQ(alert()->leftTitle(), "再次提交");
    EXPECT_EQ(http.countOf(buyPath), 1);
    alert()->leftBtnClick();
    runLoop.advance(500ms);
    EXPECT_EQ(http.countOf(buyPath), 2);

    http.answer(buyPath, placed("5"));
    alert()->cancel();
    runLoop.advance(30s);
    answerEntrusts({entrust("5"), entrust("4")});
    EXPECT_EQ(said(), "");
    EXPECT_EQ(UnknownOrders::all().size(), 1);
}

TEST_F(RepeatedOrderTest, AnAcceptedOneWithoutAnIdentifierIsNotSaidToBeUnanswered)
{
    openWithEntry();
    submitEntry();
    http.answer(buyPath, succeeded());
    submitEntry();
    EXPECT_EQ(said(), "确认再次提交");
    EXPECT_TRUE(says("已受理"));
    alert()->rightBtnClick();
    EXPECT_EQ(said(), "委托已受理");
    findNothing();
    EXPECT_TRUE(says("已受理"));
}
