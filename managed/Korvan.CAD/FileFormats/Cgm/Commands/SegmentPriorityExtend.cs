using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The range of the priorities of segments.</summary>
public sealed class SegmentPriorityExtend : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public SegmentPriorityExtend()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.SegmentPriorityExtend)
    {
    }

    /// <summary>Gets or sets the smallest priority.</summary>
    public int Minimum { get; set; }

    /// <summary>Gets or sets the largest priority.</summary>
    public int Maximum { get; set; } = 255;

    internal override void Exchange(ParameterExchange x)
    {
        Minimum = x.Integer(Minimum);
        Maximum = x.Integer(Maximum);
    }
}
