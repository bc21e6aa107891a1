using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Begins a segment: a part that is stored and can be drawn again.</summary>
public sealed class BeginSegment : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public BeginSegment()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.BeginSegment)
    {
    }

    /// <summary>Gets or sets the name of the segment, a number.</summary>
    public int Identifier { get; set; }

    internal override void Exchange(ParameterExchange x) => Identifier = x.Name(Identifier);
}
