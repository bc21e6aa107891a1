using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A bundle of attributes of edges.</summary>
public sealed class EdgeRepresentation : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public EdgeRepresentation()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.EdgeRepresentation)
    {
    }

    /// <summary>Gets or sets the index of the bundle, from 1.</summary>
    public int BundleIndex { get; set; } = 1;

    /// <summary>Gets or sets the dashes.</summary>
    public DashType Type { get; set; } = DashType.Solid;

    /// <summary>Gets or sets the width, in what the mode of the picture says.</summary>
    public double Width { get; set; } = 1;

    /// <summary>Gets or sets the colour.</summary>
    public CgmColor Color { get; set; } = new(1);

    internal override void Exchange(ParameterExchange x)
    {
        BundleIndex = x.Index(BundleIndex);
        Type = x.Index(Type);
        Width = x.Size(Width, x.State.Current.EdgeWidthMode);
        Color = x.Color(Color);
    }
}
