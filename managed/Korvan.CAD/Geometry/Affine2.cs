namespace Korvan.CAD.Geometry;

/// <summary>An affine map of the plane: x' = Xx·x + Xy·y + X0, y' = Yx·x + Yy·y + Y0.</summary>
internal readonly record struct Affine2(double Xx, double Yx, double Xy, double Yy, double X0, double Y0)
{
    internal static Affine2 Identity => new(1, 0, 0, 1, 0, 0);

    internal double Determinant => (Xx * Yy) - (Xy * Yx);

    /// <summary>First <paramref name="inner"/>, then <paramref name="outer"/>.</summary>
    public static Affine2 operator *(Affine2 outer, Affine2 inner) => new(
        (outer.Xx * inner.Xx) + (outer.Xy * inner.Yx),
        (outer.Yx * inner.Xx) + (outer.Yy * inner.Yx),
        (outer.Xx * inner.Xy) + (outer.Xy * inner.Yy),
        (outer.Yx * inner.Xy) + (outer.Yy * inner.Yy),
        (outer.Xx * inner.X0) + (outer.Xy * inner.Y0) + outer.X0,
        (outer.Yx * inner.X0) + (outer.Yy * inner.Y0) + outer.Y0);

    internal Vec2 Point(double x, double y) => new((Xx * x) + (Xy * y) + X0, (Yx * x) + (Yy * y) + Y0);

    internal Vec2 Point(Vec2 p) => Point(p.X, p.Y);

    internal bool TryInvert(out Affine2 inverse)
    {
        double d = Determinant;
        if (d == 0 || !double.IsFinite(1 / d))
        {
            inverse = default;
            return false;
        }

        inverse = new Affine2(
            Yy / d,
            -Yx / d,
            -Xy / d,
            Xx / d,
            ((Xy * Y0) - (Yy * X0)) / d,
            ((Yx * X0) - (Xx * Y0)) / d);
        return true;
    }
}
