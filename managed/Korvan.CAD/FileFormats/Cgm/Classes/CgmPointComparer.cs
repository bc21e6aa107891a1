using System;
using System.Collections.Generic;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Classes;

/// <summary>Compares points with a tolerance.</summary>
public sealed class CgmPointComparer
{
    /// <summary>Creates a comparer for which only equal coordinates are equal.</summary>
    public CgmPointComparer()
    {
    }

    /// <summary>Creates a comparer.</summary>
    /// <param name="tolerance">The largest difference of coordinates that counts as none; not negative.</param>
    public CgmPointComparer(double tolerance)
    {
        Verify.NotNegative(tolerance);
        Tolerance = tolerance;
    }

    /// <summary>Gets the largest difference of coordinates that is ignored.</summary>
    public double Tolerance { get; }

    /// <summary>Orders points by X, those of the same X by Y.</summary>
    /// <param name="first">A point.</param>
    /// <param name="second">Another point.</param>
    /// <returns>-1, 0 or 1, as the first comes before the second, is the same or comes behind it.</returns>
    public int Compare(CgmPoint first, CgmPoint second)
    {
        Verify.NotNull(first);
        Verify.NotNull(second);
        int byX = Order(first.X - second.X);
        return byX != 0 ? byX : Order(first.Y - second.Y);
    }

    /// <summary>Returns whether two points are equal within the tolerance.</summary>
    /// <param name="first">A point.</param>
    /// <param name="second">Another point.</param>
    /// <returns>Whether two points are equal within the tolerance.</returns>
    public bool AreEqual(CgmPoint first, CgmPoint second) => Compare(first, second) == 0;

    private int Order(double difference) => Math.Abs(difference) <= Tolerance ? 0 : Math.Sign(difference);
}
