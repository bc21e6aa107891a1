namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>Passes the tokens of records by their layouts. A record that is not as its layout says is passed by what
/// its tokens tell by themselves.</summary>
/// <param name="tokens">The tokens.</param>
internal sealed class AcisWalk(AcisTokens tokens)
{
    private const int MaxDepth = 32;
    private const int MaxKnotCount = 1 << 20;

    private int _depth;

    internal void Record(string type)
    {
        if (AcisLayouts.Of(type) is string layout && !Fits(layout))
        {
            tokens.Restart();
        }

        while (!tokens.IsEnd)
        {
            tokens.Pass();
        }
    }

    private bool Fits(string layout)
    {
        foreach (char value in layout)
        {
            while (tokens.IsLink)
            {
                tokens.Pass();
            }

            if (tokens.IsEnd || tokens.IsClose)
            {
                // Old versions end earlier.
                return true;
            }

            if (!Fits(value))
            {
                return false;
            }
        }

        return true;
    }

    private bool Fits(char value)
    {
        switch (value)
        {
            case 'd':
                return tokens.IsNumber && double.IsFinite(tokens.Double());
            case 'D':
                return !tokens.IsNumber || double.IsFinite(tokens.Double());
            case 'i' or 'l':
                return PassesInteger(value == 'i' ? AcisKind.Integer : AcisKind.LongInteger);
            case 'p' or 'v':
                return PassesTriple(value == 'p' ? AcisKind.Position : AcisKind.Vector);
            case 'r':
                return PassesRange();
            case 's':
                return PassesSides();
            case 'A':
                return !tokens.IsFlag(AcisLayouts.Reversed) || PassesFlag(AcisLayouts.Reversed);
            case '{':
                return !tokens.IsOpen || PassesDefinition();
            case 'L':
                return PassesEnumeration(AcisLayouts.Levels);
            case >= '0' and <= '3':
                return PassesEnumeration(AcisLayouts.Actions[value - '0']);
            case 'a':
                return PassesPart();
            case 'b' or 'c' or 'B':
                return PassesSpline(value);
            case 'n':
                return PassesNumbers();
            default:
                return PassesFlag(value switch
                {
                    'f' => AcisLayouts.Reversed,
                    'F' => AcisLayouts.ReversedV,
                    'R' => AcisLayouts.Rotation,
                    'E' => AcisLayouts.Reflection,
                    _ => AcisLayouts.Shear,
                });
        }
    }

    private bool PassesFlag(AcisFlag flag)
    {
        bool fits = tokens.IsFlag(flag);
        _ = fits && tokens.Flag(flag);
        return fits;
    }

    private bool PassesEnumeration(string[] names)
    {
        if (tokens.IsEnumeration(names))
        {
            tokens.Enumeration(names);
        }

        return true;
    }

    private bool PassesInteger(AcisKind kind)
    {
        bool fits = tokens.IsInteger;
        _ = fits ? tokens.Integer(kind) : 0;
        return fits;
    }

    private bool PassesTriple(AcisKind kind)
    {
        bool fits = tokens.IsNumber;
        if (fits)
        {
            tokens.Triple(kind);
        }

        return fits;
    }

    private bool PassesRange()
    {
        if (!tokens.IsFlag(AcisLayouts.Range))
        {
            return false;
        }

        return !tokens.Flag(AcisLayouts.Range) || (tokens.IsNumber && double.IsFinite(tokens.Double()));
    }

    // Faces with two sides state what they contain.
    private bool PassesSides() => tokens.IsFlag(AcisLayouts.Sides)
        && (!tokens.Flag(AcisLayouts.Sides) || PassesFlag(AcisLayouts.Containment));

    private bool PassesNumbers()
    {
        if (!tokens.IsInteger)
        {
            return false;
        }

        long count = tokens.Integer(AcisKind.Integer);
        for (long i = 0; i < count; i++)
        {
            if (!tokens.IsNumber || !double.IsFinite(tokens.Double()))
            {
                return false;
            }
        }

        return true;
    }

    private bool PassesDefinition()
    {
        if (++_depth > MaxDepth)
        {
            return false;
        }

        tokens.Pass();
        string name = tokens.Keyword;
        if (name.Length > 0)
        {
            tokens.Pass();
        }

        bool fits = Fits(AcisLayouts.OfDefinition(name));
        while (fits && !tokens.IsClose)
        {
            if (tokens.IsEnd)
            {
                return false;
            }

            fits = PassesMore();
        }

        if (fits)
        {
            tokens.Pass();
        }

        _depth--;
        return fits;
    }

    private bool PassesMore()
    {
        if (tokens.IsOpen)
        {
            return PassesDefinition();
        }

        if (tokens.Keyword is "nubs" or "nurbs")
        {
            return PassesSpline('c');
        }

        return AcisLayouts.OfPart(tokens.Keyword) is not null ? PassesPart() : PassesAny();
    }

    private bool PassesAny()
    {
        tokens.Pass();
        return true;
    }

    private bool PassesPart()
    {
        string keyword = tokens.Keyword;
        if (keyword.Length == 0)
        {
            return false;
        }

        tokens.Pass();
        return AcisLayouts.OfPart(keyword) is not string layout || Fits(layout);
    }

    // Degrees, closures, numbers of knots, knots with their multiplicities, and control points with their weights. The
    // outer knots lack one. After them is the tolerance of the fit.
    private bool PassesSpline(char kind)
    {
        string form = tokens.Keyword;
        if (form is not ("nubs" or "nurbs"))
        {
            return form.Length > 0 && PassesAny();
        }

        tokens.Pass();
        bool isSurface = kind == 'B';
        long degree = Next();
        long degreeV = isSurface ? Next() : 0;
        bool hasWeights = form == "nurbs";
        if (isSurface && hasWeights)
        {
            PassesEnumeration(AcisLayouts.Weighted);
        }

        for (int i = 0; i < (isSurface ? 2 : 1); i++)
        {
            PassesEnumeration(AcisLayouts.Closures);
        }

        for (int i = 0; isSurface && i < 2; i++)
        {
            PassesEnumeration(AcisLayouts.Poles);
        }

        (long knots, long knotsV) = (Next(), isSurface ? Next() : 0);
        long points = Points(knots, degree) * (isSurface ? Points(knotsV, degreeV) : 1);
        long count = points * ((kind == 'c' ? 2 : 3) + (hasWeights ? 1 : 0));
        for (long i = 0; i < count; i++)
        {
            if (!tokens.IsNumber)
            {
                return false;
            }

            tokens.Double();
        }

        return points > 0 && Fits('D');
    }

    private long Next() => tokens.IsInteger ? tokens.Integer(AcisKind.Integer) : 0;

    /// <summary>Passes knots and returns how many control points they are for; 0 where they are damaged.</summary>
    private long Points(long knots, long degree)
    {
        long sum = 0;
        for (long i = 0; i < knots; i++)
        {
            if (!tokens.IsNumber)
            {
                return 0;
            }

            tokens.Double();
            sum += Next();
        }

        long points = sum - degree + 1;
        return knots > 1 && points is > 0 and < MaxKnotCount && degree > 0 ? points : 0;
    }
}
