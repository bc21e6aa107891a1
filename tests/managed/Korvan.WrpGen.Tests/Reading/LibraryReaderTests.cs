using System.Linq;
using Korvan.WrpGen.Emit;
using Korvan.WrpGen.Model;
using Xunit;

namespace Korvan.WrpGen.Tests.Reading;

public class LibraryReaderTests
{
    [Fact]
    public void EverythingLeftOutIsNamedWithItsReason() => Snapshot.Matches(
        "left-out.txt",
        string.Concat(ProbeModel.Model.LeftOut.Select(one => $"{one.Member}: {one.Reason}\n")));

    [Fact]
    public void WhatStandsBesideIsBound()
    {
        TypeModel type = ProbeModel.Type("Unbound");
        Assert.Equal(["carried"], type.Properties.Select(property => property.PythonName));
        Assert.Empty(type.Methods);
    }

    [Fact]
    public void DelegatesStandInTheOrderOfBinding() => Assert.Equal(
        [
            "ctor_000_Box", "ctor_001_Box", "ctor_002_Box", "ctor_003_Box", "ctor_004_Box",
            "call_000_Scale", "call_001_Scale",
            "btp_TypeOf", "btp_CastTo", "btp_ReInterpretObj", "btp_CastAs", "btp_IsAssignable",
        ],
        ProbeModel.Type("Box").Delegates);

    [Theory]
    [InlineData("Shapes", new[] { "btp_TypeOf" })]
    [InlineData("IShape", new[] { "btp_TypeOf", "btp_CastTo", "btp_CastAs", "btp_IsAssignable" })]
    [InlineData("Triple", new[]
    {
        "btp_SqGetItem", "btp_SqSetItem", "btp_TypeOf", "btp_CastTo", "btp_CastFrom", "btp_ReInterpretObj",
        "btp_CastAs", "btp_IsAssignable",
    })]
    [InlineData("Choice", new[]
    {
        "btp_TypeOf", "btp_CastTo", "btp_ReInterpretObj", "btp_AsUniEnum", "btp_CastAs", "btp_IsAssignable",
        "btp_GetType",
    })]
    public void CastDelegatesFollowTheKind(string type, string[] delegates) =>
        Assert.Equal(delegates, ProbeModel.Type(type).Delegates.Where(name => name.StartsWith("btp_")));

    [Fact]
    public void AGroupRunsOnIntoTheOverloadsOfItsBases()
    {
        MethodGroup scale = MethodGroup.Of(ProbeModel.Type("Box")).Single(group => group.PythonName == "scale");
        Assert.Equal(
            ["Box.call_000_Scale", "Box.call_001_Scale", "Shape.call_000_Scale"],
            scale.Overloads.Select(overload => $"{overload.Owner.Name}.{overload.Delegate}"));
    }

    [Theory]
    [InlineData("OpenShape", "name", "What it is called.")] // by an interface, without a word of its own
    [InlineData("Wheel", "spokes", "How many rods hold the rim.")] // by a base class, behind inheritdoc
    [InlineData("Wheel", "maker", "Its own words.")]
    public void DocumentationIsInheritedUnlessThereIsSome(string type, string property, string summary) =>
        Assert.Equal(summary, ProbeModel.Type(type).Properties.Single(one => one.PythonName == property).Doc.Summary);

    [Fact]
    public void APointerIsFollowedAndAddsToWhatIsThere()
    {
        DocText doc = ProbeModel.Type("Box").Methods.First(method => method.PythonName == "scale").Doc;
        Assert.Equal(("Scales by one factor.", "The form that was taken."), (doc.Summary, doc.Returns));
        Assert.Equal([new("ArgumentException", "A factor is no number.")], doc.Raises);
        Assert.Empty(doc.Parameters); // those of the other member are not its own
    }

    [Fact]
    public void OverridesAreLeftToTheTypeThatExposesThem()
    {
        TypeModel box = ProbeModel.Type("Box");
        Assert.DoesNotContain("kind", box.Methods.Select(method => method.PythonName));
        Assert.DoesNotContain("corners", box.Properties.Select(property => property.PythonName));
    }

    [Fact]
    public void AnInterfaceHasTheMembersOfItsBases()
    {
        TypeModel shape = ProbeModel.Type("IShape");
        Assert.Equal(["area", "name"], MethodGroup.PropertiesOf(shape).Select(property => property.PythonName).Order());
        Assert.Single(shape.Properties);
    }

    [Theory]
    [InlineData("OpenShape", false)]
    [InlineData("HiddenShape", true)]
    public void ExplicitImplementationsAreTold(string type, bool isExplicit) =>
        Assert.All(ProbeModel.Type(type).Interfaces, use => Assert.Equal(isExplicit, use.IsExplicit));

    [Theory]
    [InlineData("Strict", "text", true, false)]
    [InlineData("Strict", "name", true, true)] // never read as null, but it may be assigned
    [InlineData("Strict", "answer", true, false)] // may be read as null, but not assigned
    [InlineData("Echo", "text", true, true)]
    [InlineData("Cube", "side", false, false)] // has no setter
    [InlineData("Failing", "made", false, false)] // can be set by an initializer only
    public void WhatMayBeAssignedIsReadFromTheDeclaration(string type, string name, bool canWrite, bool takesNull)
    {
        PropertyModel property = ProbeModel.Type(type).Properties.Single(one => one.PythonName == name);
        Assert.Equal((canWrite, canWrite && takesNull), (property.CanWrite, canWrite && property.TakesNull));
    }

    [Fact]
    public void MembersOfAnUnboundBaseComeAlong() => Assert.Equal(
        ["own", "value"], ProbeModel.Type("Derived").Properties.Select(property => property.PythonName).Order());

    [Theory]
    [InlineData("LooseList", CollectionProtocol.List, null)]
    [InlineData("LooseBag", CollectionProtocol.Collection, null)]
    [InlineData("NumberList", CollectionProtocol.List, "System.Int32")]
    [InlineData("Countdown", CollectionProtocol.Iterable, "System.Int32")]
    [InlineData("Mixed", CollectionProtocol.Indexer, "System.Int32")]
    public void CollectionsServeTheirProtocol(string type, CollectionProtocol protocol, string? element)
    {
        TypeModel model = ProbeModel.Type(type);
        Assert.Equal(protocol, model.Protocol);
        Assert.Equal(element, model.ProtocolElement?.ManagedName);
        Assert.DoesNotContain("get_enumerator", model.Methods.Select(method => method.PythonName));
    }

    [Theory]
    [InlineData("Choice", true)]
    [InlineData("Options", false)]
    [InlineData("WordUnsigned", false)] // what says nothing is a flag
    public void EnumsSayWhatTheyAre(string type, bool isInteger) =>
        Assert.Equal(isInteger, ProbeModel.Type(type).IsIntegerEnum);

    [Fact]
    public void EnumValuesKeepTheirBits() => Assert.Equal(
        [("NONE", 0L), ("RLE8", 8L), ("TOP", long.MinValue)],
        ProbeModel.Type("LongUnsigned").EnumMembers.Select(member => (member.PythonName, member.Bits)));

    [Fact]
    public void NestedTypesHangOnTheirOuterOnes()
    {
        TypeModel face = ProbeModel.Type("Cube.Face");
        Assert.Equal("korvan.probe.Cube.Face", face.PythonName);
        Assert.Equal("Korvan.Probe.Cube+Face", face.ManagedName);
        Assert.Equal("Cube", face.Outer?.Name);
    }

    [Fact]
    public void TheElementListIsSortedAndWhole()
    {
        string[] elements = [.. ProbeModel.Model.Elements.Select(use => use.Element.ManagedName)];
        Assert.Equal(elements.Order(System.StringComparer.Ordinal), elements);
        Assert.Contains("System.Int32[]", elements); // an array of arrays
        Assert.Contains(ValueKind.IReadOnlyList, ProbeModel.Model.Elements
            .Single(use => use.Element.ManagedName == "Korvan.Probe.Box").Kinds);
    }
}
