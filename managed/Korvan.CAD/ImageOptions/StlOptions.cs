using Korvan.CAD.FileFormats.Cad;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for the faces of a drawing as an STL mesh, for 3D printing.</summary>
public class StlOptions : ImageOptionsBase
{
    /// <summary>Creates options with default values.</summary>
    public StlOptions()
        : base(FileFormat.Stl)
    {
    }

    /// <summary>Gets or sets whether the mesh is written in binary form instead of text. On by default.</summary>
    public bool Binary { get; set; } = true;

    /// <inheritdoc/>
    internal override void VerifyHonoured(OutputKind kind)
    {
        base.VerifyHonoured(kind);
        const string name = nameof(VectorRasterizationOptions);
        string? color = VectorRasterizationOptions switch
        {
            CadRasterizationOptions { DrawType: not CadDrawTypeMode.UseObjectColor } =>
                nameof(CadRasterizationOptions.DrawType),
            { } vector when vector.DrawColor != Color.Black => nameof(vector.DrawColor),
            { } vector when vector.BackgroundColor != Color.White => nameof(vector.BackgroundColor),
            _ => null,
        };
        if (color is not null)
        {
            throw NotHonoured($"{name}.{color}", "leave it at its default, as the format has no colours");
        }
    }
}
