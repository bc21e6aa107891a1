using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Which segments are drawn over others.</summary>
public sealed class SegmentDisplayPriority : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public SegmentDisplayPriority()
        : base(ClassCode.SegmentControlElement, (int)SegmentControlElement.SegmentDisplayPriority)
    {
    }

    /// <summary>Gets or sets the name of the segment.</summary>
    public int SegmentIdentifier { get; set; }

    /// <summary>Gets or sets the priority; larger ones are drawn over smaller ones.</summary>
    public int Priority { get; set; }

    internal override void Exchange(ParameterExchange x)
    {
        SegmentIdentifier = x.Name(SegmentIdentifier);
        Priority = x.Integer(Priority);
    }
}
