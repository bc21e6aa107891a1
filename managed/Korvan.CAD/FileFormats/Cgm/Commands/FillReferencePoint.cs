using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The point that patterns and hatches begin at.</summary>
public sealed class FillReferencePoint : Command
{
    /// <summary>Creates the element with its default.</summary>
    public FillReferencePoint()
        : base(ClassCode.AttributeElement, (int)AttributeElement.FillReferencePoint)
    {
    }

    /// <summary>Gets or sets the point.</summary>
    public CgmPoint Point { get; set; } = new();

    internal override void Exchange(ParameterExchange x) => Point = x.Point(Point);
}
