using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A bundle of attributes of lines.</summary>
public sealed class LineRepresentation : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public LineRepresentation()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.LineRepresentation)
    {
    }

    /// <summary>Gets or sets the index of the bundle, from 1.</summary>
    public int BundleIndex { get; set; } = 1;

    /// <summary>Gets or sets the number of the dashes; negative ones are private or defined by the picture.</summary>
    public int TypeIndex { get; set; } = 1;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public DashType Type
    {
        get => (DashType)TypeIndex;
        set => TypeIndex = (int)value;
    }

    /// <summary>Gets or sets the width, in what the mode of the picture says.</summary>
    public double Width { get; set; } = 1;

    /// <summary>Gets or sets the colour.</summary>
    public CgmColor Color { get; set; } = new(1);

    internal override void Exchange(ParameterExchange x)
    {
        BundleIndex = x.Index(BundleIndex);
        TypeIndex = x.Index(TypeIndex);
        Width = x.Size(Width, x.State.Current.LineWidthMode);
        Color = x.Color(Color);
    }
}
