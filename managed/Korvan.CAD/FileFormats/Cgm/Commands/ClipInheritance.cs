using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Which clip rectangle holds inside a copied segment.</summary>
public sealed class ClipInheritance : Command
{
    private static readonly string[] Words = ["STLIST", "INTERSECTION"];

    /// <summary>Creates the element with its default.</summary>
    public ClipInheritance()
        : base(ClassCode.SegmentControlElement, (int)SegmentControlElement.ClipInheritance)
    {
    }

    /// <summary>The clip rectangles.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Value
    {
        /// <summary>That of the place where it is copied.</summary>
        StateList = 0,

        /// <summary>The common part of that one and of the segment's own.</summary>
        Intersection = 1,
    }

    /// <summary>Gets or sets which.</summary>
    public Value Inheritance { get; set; }

    internal override void Exchange(ParameterExchange x) => Inheritance = x.Enumeration(Inheritance, Words);
}
