namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>A part of an object that is made when it is asked for first: most programs never ask for most of
/// them.</summary>
internal abstract class Deferred<T>
    where T : class
{
    /// <summary>Returns a part that is there, or makes it if it is deferred.</summary>
    /// <param name="part">The part, what it is made of, or null for none.</param>
    internal static T? Get(ref object? part)
    {
        if (part is Deferred<T> deferred)
        {
            part = deferred.Create();
        }

        return (T?)part;
    }

    /// <summary>Makes the part.</summary>
    internal abstract T Create();
}
