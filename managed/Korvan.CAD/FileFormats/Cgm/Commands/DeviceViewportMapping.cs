using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How the extent of the picture is fitted into the viewport.</summary>
public sealed class DeviceViewportMapping : Command
{
    private static readonly string[] IsotropyWords = ["NOTFORCED", "FORCED"];

    private static readonly string[] HorizontalWords = ["LEFT", "CTR", "RIGHT"];

    private static readonly string[] VerticalWords = ["BOTTOM", "CTR", "TOP"];

    /// <summary>Creates the default mapping: the shape is kept, at the lower left.</summary>
    public DeviceViewportMapping()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.DeviceViewportMapping)
    {
    }

    /// <summary>Whether both axes have the same scale.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Isotropy
    {
        /// <summary>The picture fills the viewport.</summary>
        NotForced = 0,

        /// <summary>The shape of the picture is kept.</summary>
        Forced = 1,
    }

    /// <summary>Places along X.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Horizontalalignment
    {
        /// <summary>Left.</summary>
        Left = 0,

        /// <summary>In the middle.</summary>
        Centre = 1,

        /// <summary>Right.</summary>
        Right = 2,
    }

    /// <summary>Places along Y.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Verticalalignment
    {
        /// <summary>At the bottom.</summary>
        Bottom = 0,

        /// <summary>In the middle.</summary>
        Centre = 1,

        /// <summary>At the top.</summary>
        Top = 2,
    }

    /// <summary>Gets or sets whether both axes have the same scale.</summary>
    public Isotropy Scaling { get; set; } = Isotropy.Forced;

    /// <summary>Gets or sets where the picture lies in a wider viewport.</summary>
    public Horizontalalignment HorizontalAlignment { get; set; }

    /// <summary>Gets or sets where the picture lies in a higher viewport.</summary>
    public Verticalalignment VerticalAlignment { get; set; }

    internal override void Exchange(ParameterExchange x)
    {
        Scaling = x.Enumeration(Scaling, IsotropyWords);
        HorizontalAlignment = x.Enumeration(HorizontalAlignment, HorizontalWords);
        VerticalAlignment = x.Enumeration(VerticalAlignment, VerticalWords);
    }
}
