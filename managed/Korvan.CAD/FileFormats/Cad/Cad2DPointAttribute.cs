namespace Korvan.CAD.FileFormats.Cad;

/// <summary>States that a property is a point in the plane: the code of X, Y is 10 more.</summary>
public sealed class Cad2DPointAttribute : CadPropertyAttribute
{
    /// <summary>Creates the statement.</summary>
    /// <param name="code">The group code.</param>
    public Cad2DPointAttribute(int code)
        : base(code)
    {
    }
}
