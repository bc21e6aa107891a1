using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The part of the surface of a device that the picture fills.</summary>
public sealed class DeviceViewport : Command
{
    /// <summary>Creates the whole surface, in parts of it.</summary>
    public DeviceViewport()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.DeviceViewport)
    {
    }

    /// <summary>Gets or sets the first corner.</summary>
    public ViewportPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the corner opposite to it.</summary>
    public ViewportPoint SecondCorner { get; set; } = new(new VC(1), new VC(1));

    internal override void Exchange(ParameterExchange x)
    {
        FirstCorner = Point(x, FirstCorner);
        SecondCorner = Point(x, SecondCorner);
    }

    private static ViewportPoint Point(ParameterExchange x, ViewportPoint point)
    {
        VC first = x.ViewportCoordinate(point.First);
        return new ViewportPoint(first, x.ViewportCoordinate(point.Second));
    }
}
