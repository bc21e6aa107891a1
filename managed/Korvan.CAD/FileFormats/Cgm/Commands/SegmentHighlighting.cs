using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Whether a segment is made to stand out.</summary>
public sealed class SegmentHighlighting : Command
{
    private static readonly string[] Words = ["NORMAL", "HIGHL"];

    /// <summary>Creates the element with its defaults.</summary>
    public SegmentHighlighting()
        : base(ClassCode.SegmentControlElement, (int)SegmentControlElement.SegmentHighlighting)
    {
    }

    /// <summary>Whether a segment stands out.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Highlighting
    {
        /// <summary>It looks as usual.</summary>
        Normal = 0,

        /// <summary>It stands out.</summary>
        Highlighted = 1,
    }

    /// <summary>Gets or sets the name of the segment.</summary>
    public int SegmentIdentifier { get; set; }

    /// <summary>Gets or sets whether it is.</summary>
    public Highlighting State { get; set; }

    internal override void Exchange(ParameterExchange x)
    {
        SegmentIdentifier = x.Name(SegmentIdentifier);
        State = x.Enumeration(State, Words);
    }
}
