using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A bundle of attributes of markers.</summary>
public sealed class MarkerRepresentation : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public MarkerRepresentation()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.MarkerRepresentation)
    {
    }

    /// <summary>Gets or sets the index of the bundle, from 1.</summary>
    public int BundleIndex { get; set; } = 1;

    /// <summary>Gets or sets the number of the shape; negative ones are private.</summary>
    public int TypeIndex { get; set; } = 3;

    /// <summary>Gets or sets the same number by its name; Python can read this only where there is one.</summary>
    public MarkerType.Type Type
    {
        get => (MarkerType.Type)TypeIndex;
        set => TypeIndex = (int)value;
    }

    /// <summary>Gets or sets the size, in what the mode of the picture says.</summary>
    public double Size { get; set; } = 1;

    /// <summary>Gets or sets the colour.</summary>
    public CgmColor Color { get; set; } = new(1);

    internal override void Exchange(ParameterExchange x)
    {
        BundleIndex = x.Index(BundleIndex);
        TypeIndex = x.Index(TypeIndex);
        Size = x.Size(Size, x.State.Current.MarkerSizeMode);
        Color = x.Color(Color);
    }
}
