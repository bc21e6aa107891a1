using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Which of overlapping segments a person picks.</summary>
public sealed class SegmentPickPriority : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public SegmentPickPriority()
        : base(ClassCode.SegmentControlElement, (int)SegmentControlElement.SegmentPickPriority)
    {
    }

    /// <summary>Gets or sets the name of the segment.</summary>
    public int SegmentIdentifier { get; set; }

    /// <summary>Gets or sets the priority; the largest one is picked.</summary>
    public int Priority { get; set; }

    internal override void Exchange(ParameterExchange x)
    {
        SegmentIdentifier = x.Name(SegmentIdentifier);
        Priority = x.Integer(Priority);
    }
}
