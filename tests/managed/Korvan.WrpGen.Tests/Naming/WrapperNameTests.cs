using System;
using Korvan.WrpGen.Naming;
using Xunit;

namespace Korvan.WrpGen.Tests.Naming;

public class WrapperNameTests
{
    private static readonly RootMap Root = RootMap.Parse("Korvan.CAD=korvan.cad");

    [Theory]
    [InlineData("korvan.cad.Matrix", "CFECF7E6")]
    [InlineData("korvan.cad", "821C260C")]
    [InlineData("Korvan.CAD.Matrix", "4F897E2C")]
    [InlineData("Korvan.CAD.Image", "13574801")]
    public void Hash(string name, string hash) => Assert.Equal(hash, TypeHash.Of(name));

    [Theory]
    [InlineData("Korvan.CAD", "korvan.cad")]
    [InlineData("Korvan.CAD.FileFormats.Cad.CadObjects.Hatch", "korvan.cad.fileformats.cad.cadobjects.hatch")]
    public void NamespacesBecomeModules(string space, string module) =>
        Assert.Equal(module, Root.ModuleOf(space));

    [Theory]
    [InlineData("Korvan.CAD", true)]
    [InlineData("Korvan.CAD.Sources", true)]
    [InlineData("Korvan.CADx", false)] // a longer name is no namespace below
    [InlineData("Korvan", false)]
    [InlineData(null, false)]
    public void RootHoldsItsNamespaces(string? space, bool isHeld) =>
        Assert.Equal(isHeld, Root.Contains(space));

    [Theory]
    [InlineData("Matrix", "WrpCs_Matrix_4F897E2C")]
    [InlineData("StreamSource", "WrpCs_StreamSo_4F897E2C")] // eight characters, no more
    public void WrapperClasses(string name, string wrapper) =>
        Assert.Equal(wrapper, RootMap.WrapperClass(name, "4F897E2C"));

    [Fact]
    public void WrapperNamespaces() =>
        Assert.Equal("WrpNs_Korvan.WrpNs_CAD.WrpNs_Sources", RootMap.WrapperNamespace("Korvan.CAD.Sources"));

    [Fact]
    public void RootWantsBothSides() => Assert.Throws<ArgumentException>(() => RootMap.Parse("Korvan.CAD"));
}
