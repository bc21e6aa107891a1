using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A bundle of attributes of areas.</summary>
public sealed class FillRepresentation : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public FillRepresentation()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.FillRepresentation)
    {
    }

    /// <summary>Gets or sets the index of the bundle, from 1.</summary>
    public int BundleIndex { get; set; } = 1;

    /// <summary>Gets or sets how areas are filled.</summary>
    public InteriorStyle.Style Style { get; set; }

    /// <summary>Gets or sets the colour.</summary>
    public CgmColor Color { get; set; } = new(1);

    /// <summary>Gets or sets the number of the hatch; negative ones are private or defined by the
    /// picture.</summary>
    public int HatchNumber { get; set; } = 1;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public HatchIndex.HatchType Hatch
    {
        get => (HatchIndex.HatchType)HatchNumber;
        set => HatchNumber = (int)value;
    }

    /// <summary>Gets or sets the index of the pattern, from 1.</summary>
    public int PatternIndex { get; set; } = 1;

    internal override void Exchange(ParameterExchange x)
    {
        BundleIndex = x.Index(BundleIndex);
        Style = x.Enumeration(Style, InteriorStyle.Words);
        Color = x.Color(Color);
        HatchNumber = x.Index(HatchNumber);
        PatternIndex = x.Index(PatternIndex);
    }
}
