using System;
using System.Diagnostics.CodeAnalysis;
using System.Runtime.CompilerServices;

namespace Korvan.WrpGen.Interop;

/// <summary>
/// Values that are declared to be there. A null would be found late, far from where it was given and without a name.
/// </summary>
public static class Required
{
    /// <param name="value">What came from Python: null for None.</param>
    /// <param name="place">The property or argument, as Python knows it.</param>
    [MethodImpl(MethodImplOptions.AggressiveInlining)]
    public static T Of<T>(T? value, string place) where T : class
    {
        if (value is null)
        {
            Refuse(place);
        }
        return value;
    }

    [DoesNotReturn]
    private static void Refuse(string place) => throw new ArgumentNullException(null, $"{place} must not be None.");
}
