using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cgm;

/// <summary>The tables of elements: numbers, keywords and commands belong together.</summary>
public class ElementTests
{
    private static readonly (ClassCode Class, Type Elements)[] Classes =
    [
        (ClassCode.DelimiterElement, typeof(DelimiterElement)),
        (ClassCode.MetaFileDescriptorElement, typeof(MetaFileDescriptorElement)),
        (ClassCode.PictureDescriptorElement, typeof(PictureDescriptorElement)),
        (ClassCode.ControlElement, typeof(ControlElement)),
        (ClassCode.GraphicalPrimitiveElement, typeof(GraphicalPrimitiveElement)),
        (ClassCode.AttributeElement, typeof(AttributeElement)),
        (ClassCode.ExternalElement, typeof(ExternalElement)),
        (ClassCode.SegmentControlElement, typeof(SegmentControlElement)),
        (ClassCode.ApplicationStructureDescriptorElement, typeof(ApplicationStructureDescriptorElement)),
    ];

    private static readonly (ClassCode Class, int Id, string Name)[] Elements =
    [
        .. from one in Classes
           from id in Enum.GetValuesAsUnderlyingType(one.Elements).Cast<int>()
           select (one.Class, id, Enum.GetName(one.Elements, id)!),
        (ClassCode.EscapeElement, 1, "Escape"),
        (ClassCode.DelimiterElement, 0, "NoOp"),
    ];

    [Fact]
    public void Each_element_has_a_command_of_its_name_and_number()
    {
        Assert.All(Elements, element =>
        {
            Command? command = ElementTables.Find(element.Class, element.Id)?.Create();
            Assert.NotNull(command);
            Assert.Equal(element, (command.ElementClass, command.ElementId, command.GetType().Name));
        });
    }

    [Fact]
    public void Each_kind_of_command_belongs_to_an_element()
    {
        IEnumerable<string> kinds = typeof(Command).Assembly.GetTypes()
            .Where(type => type.IsSubclassOf(typeof(Command)) && !type.IsAbstract && type != typeof(UnknownCommand))
            .Select(type => type.Name);
        Assert.Equal(kinds.Order(), Elements.Select(element => element.Name).Order());
    }

    // Numbers and keywords from the tables of ISO/IEC 8632-3 and 8632-4.
    [Theory]
    [InlineData("BEGMF", 0, 1)]
    [InlineData("begapsbody", 0, 22)]
    [InlineData("COLRVALUEEXT", 1, 10)]
    [InlineData("BEGMFDEFAULTS", 1, 12)]
    [InlineData("PICDIR", 1, 24)]
    [InlineData("VDCEXT", 2, 6)]
    [InlineData("LINEEDGETYPEDEF", 2, 17)]
    [InlineData("CLIPRECT", 3, 5)]
    [InlineData("TRANSPCELLCOLR", 3, 20)]
    [InlineData("POLYGONSET", 4, 8)]
    [InlineData("ELLIPARCCLOSE", 4, 19)]
    [InlineData("TILE", 4, 29)]
    [InlineData("INTSTYLE", 5, 22)]
    [InlineData("SYMBOLORI", 5, 51)]
    [InlineData("ESCAPE", 6, 1)]
    [InlineData("SEGPICKPRI", 8, 7)]
    [InlineData("APSATTR", 9, 1)]
    public void Keywords_have_the_numbers_of_the_standard(string keyword, int elementClass, int id)
    {
        Command? command = ElementTables.Find(keyword)?.Create();
        Assert.Equal((elementClass, id), ((int)command!.ElementClass, command.ElementId));
        Assert.Equal(keyword.ToUpperInvariant(), command.Keyword);
    }

    [Fact]
    public void The_empty_word_and_numbers_beyond_the_tables_are_no_elements()
    {
        Assert.Null(ElementTables.Find(""));
        Assert.Null(ElementTables.Find((ClassCode)(-1), 1));
        Assert.Null(ElementTables.Find(ClassCode.DelimiterElement, 127));
        Assert.Throws<ArgumentOutOfRangeException>(() => ControlElements.CreateCommand((ControlElement)99));
    }
}
