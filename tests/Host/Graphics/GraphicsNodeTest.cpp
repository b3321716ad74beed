#include "Graphics/IGraphicsNode.h"

#include "Support/HostValues.h"
#include "Support/TestValues.h"

#include <string>
#include <utility>

namespace vesk
{

namespace
{

/// Records what it visits: "l" for a line, "a" for an arc, the text itself for a text.
class Recorder final : public IGraphicsNodeVisitor
{
public:
    void Visit(const IGraphicsLine& /*line*/) override { m_record += L'l'; }
    void Visit(const IGraphicsArc& /*arc*/) override { m_record += L'a'; }
    void Visit(const IGraphicsText& text) override { m_record += text.GetText(); }

    const std::wstring& GetRecord() const { return m_record; }

private:
    std::wstring m_record;
};

OwnerPtr<IGraphicsText> MakeText(const std::wstring& text)
{
    return IGraphicsText::Create(Vector3d(1, 2, 3), text, GraphicsRole::Dimension);
}

OwnerPtr<IGraphicsLine> MakeLine()
{
    return IGraphicsLine::Create(Vector3d(1, 2, 3), Vector3d(4, 5, 6), GraphicsRole::RubberBand);
}

OwnerPtr<IGraphicsArc> MakeArc()
{
    return IGraphicsArc::Create(Vector3d(1, 2, 3), Vector3d(0, 1, 0), Vector3d(0, 0, 1), 2.5, -1.5,
                                GraphicsRole::ActiveDimension);
}

/// Reports its destruction.
class Mortal final : public IGraphicsNode
{
public:
    explicit Mortal(bool& isAlive) : m_isAlive(isAlive) { m_isAlive = true; }
    ~Mortal() override { m_isAlive = false; }
    void Accept(IGraphicsNodeVisitor& /*visitor*/) const override {}

private:
    bool& m_isAlive;
};

}

class GraphicsNodeTest : public QObject
{
    Q_OBJECT

private slots:
    void aLineKeepsWhatItWasMadeOf();
    void anArcKeepsWhatItWasMadeOf();
    void aTextKeepsWhatItWasMadeOf();
    void aGroupIsEmptyAndPickableAtFirst();
    void aGroupCanBeMadeUnpickable();
    void aGroupKeepsItsChildrenInOrder();
    void aChildOutsideTheRangeIsNull();
    void anEmptyChildIsIgnored();
    void aGroupOwnsItsChildren();
    void aVisitorSeesEachNodeDepthFirst();
};

void GraphicsNodeTest::aLineKeepsWhatItWasMadeOf()
{
    const OwnerPtr<IGraphicsLine> opLine = MakeLine();

    QCOMPARE(opLine->GetStart(), Vector3d(1, 2, 3));
    QCOMPARE(opLine->GetEnd(), Vector3d(4, 5, 6));
    QCOMPARE(opLine->GetRole(), GraphicsRole::RubberBand);
}

void GraphicsNodeTest::anArcKeepsWhatItWasMadeOf()
{
    const OwnerPtr<IGraphicsArc> opArc = MakeArc();

    QCOMPARE(opArc->GetCentre(), Vector3d(1, 2, 3));
    QCOMPARE(opArc->GetXAxis(), Vector3d(0, 1, 0));
    QCOMPARE(opArc->GetYAxis(), Vector3d(0, 0, 1));
    QCOMPARE(opArc->GetRadius(), 2.5);
    QCOMPARE(opArc->GetSweep(), -1.5);
    QCOMPARE(opArc->GetRole(), GraphicsRole::ActiveDimension);
}

void GraphicsNodeTest::aTextKeepsWhatItWasMadeOf()
{
    const OwnerPtr<IGraphicsText> opText = MakeText(L"12.5");

    QCOMPARE(opText->GetPosition(), Vector3d(1, 2, 3));
    QCOMPARE(opText->GetText(), std::wstring(L"12.5"));
    QCOMPARE(opText->GetRole(), GraphicsRole::Dimension);
}

void GraphicsNodeTest::aGroupIsEmptyAndPickableAtFirst()
{
    const OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();

    QCOMPARE(opGroup->GetChildCount(), 0);
    QVERIFY(opGroup->IsPickable());
}

void GraphicsNodeTest::aGroupCanBeMadeUnpickable()
{
    const OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();

    opGroup->SetPickable(false);

    QVERIFY(!opGroup->IsPickable());
}

void GraphicsNodeTest::aGroupKeepsItsChildrenInOrder()
{
    const OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();
    OwnerPtr<IGraphicsLine> opLine = MakeLine();
    OwnerPtr<IGraphicsArc> opArc = MakeArc();
    const IGraphicsNode* const pLine = opLine.Get();
    const IGraphicsNode* const pArc = opArc.Get();

    opGroup->AddChild(std::move(opLine));
    opGroup->AddChild(std::move(opArc));

    QCOMPARE(opGroup->GetChildCount(), 2);
    QCOMPARE(opGroup->GetChild(0), pLine);
    QCOMPARE(opGroup->GetChild(1), pArc);
}

void GraphicsNodeTest::aChildOutsideTheRangeIsNull()
{
    const OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();
    // Three, so that the list has room for a fourth.
    opGroup->AddChild(MakeLine());
    opGroup->AddChild(MakeLine());
    opGroup->AddChild(MakeLine());

    QVERIFY(opGroup->GetChild(-1) == nullptr);
    QVERIFY(opGroup->GetChild(3) == nullptr);
}

void GraphicsNodeTest::anEmptyChildIsIgnored()
{
    const OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();

    opGroup->AddChild(OwnerPtr<IGraphicsNode>());

    QCOMPARE(opGroup->GetChildCount(), 0);
}

void GraphicsNodeTest::aGroupOwnsItsChildren()
{
    bool isAlive = false;
    OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();
    opGroup->AddChild(MakeOwner<Mortal>(isAlive));
    QVERIFY(isAlive);

    opGroup.Reset();

    QVERIFY(!isAlive);
}

void GraphicsNodeTest::aVisitorSeesEachNodeDepthFirst()
{
    OwnerPtr<IGraphicsNodeGroup> opInner = IGraphicsNodeGroup::Create();
    opInner->AddChild(MakeText(L"1"));
    opInner->AddChild(MakeArc());
    const OwnerPtr<IGraphicsNodeGroup> opOuter = IGraphicsNodeGroup::Create();
    opOuter->AddChild(MakeLine());
    opOuter->AddChild(std::move(opInner));
    opOuter->AddChild(MakeText(L"2"));
    Recorder recorder;

    opOuter->Accept(recorder);

    QCOMPARE(recorder.GetRecord(), std::wstring(L"l1a2"));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::GraphicsNodeTest);
#include "GraphicsNodeTest.moc"
