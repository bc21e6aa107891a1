using Korvan.CAD.FileFormats.Cad;

namespace Korvan.CAD.ImageOptions;

/// <summary>Writes the faces of a drawing for 3D printing.</summary>
public class StlOptions : ImageOptionsBase
{
    /// <summary>Creates options with their defaults.</summary>
    public StlOptions()
        : base(FileFormat.Stl)
    {
    }

    /// <summary>Gets or sets whether faces are written as bytes instead of words. On by default.</summary>
    public bool Binary { get; set; } = true;

    /// <inheritdoc/>
    internal override void VerifyHonoured(OutputKind kind)
    {
        base.VerifyHonoured(kind);
        const string name = nameof(VectorRasterizationOptions);
        string? color = VectorRasterizationOptions switch
        {
            CadRasterizationOptions { DrawType: not CadDrawTypeMode.UseObjectColor } => nameof(CadRasterizationOptions.DrawType),
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
