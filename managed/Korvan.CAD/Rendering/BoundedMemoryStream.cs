using System.IO;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering;

/// <summary>Content that is gathered in memory. Asks for room before it grows, as it doubles.</summary>
internal sealed class BoundedMemoryStream : MemoryStream
{
    /// <inheritdoc/>
    public override int Capacity
    {
        get => base.Capacity;
        set
        {
            Workload.Reserve(value);
            base.Capacity = value;
        }
    }
}
