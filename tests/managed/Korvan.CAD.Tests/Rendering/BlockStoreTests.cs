using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.DisplayList;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Ranges of values in blocks: what was stored is found again, whatever its length.</summary>
public class BlockStoreTests
{
    [Fact]
    public void Ranges_of_all_lengths_are_found_again_also_after_others_were_removed()
    {
        int[] lengths = [0, 1, 2, 7, 1000, 3000, 8191, 8192, 8193, 20_000];
        var random = new Random(7);
        var store = new BlockStore<double>();
        var stored = new List<(int Position, double[] Values)>();
        for (int i = 0; i < 2000; i++)
        {
            if (random.Next(40) == 0 && stored.Count > 0)
            {
                int kept = Math.Max(0, stored.Count - random.Next(30));
                store.RemoveFrom(kept < stored.Count ? stored[kept].Position : store.End);
                stored.RemoveRange(kept, stored.Count - kept);
            }

            var values = new double[lengths[random.Next(lengths.Length)]];
            for (int k = 0; k < values.Length; k++)
            {
                values[k] = random.NextDouble();
            }

            stored.Add((store.Add(values), values));
        }

        Assert.True(stored.Count > 40);
        Assert.True(stored.Zip(stored.Skip(1)).All(static pair => pair.First.Position <= pair.Second.Position));
        foreach ((int position, double[] values) in stored)
        {
            Assert.Equal(values, store.From(position)[..values.Length]);
        }
    }

    [Fact]
    public void Values_that_are_added_one_by_one_are_numbered_without_gaps()
    {
        var store = new BlockStore<(string Name, long A, long B)>();
        for (int i = 0; i < 10_000; i++)
        {
            Assert.Equal(i, store.Add([($"n{i}", i, -i)]));
        }

        Assert.Equal(("n9999", 9999, -9999), store[9999]);
        Assert.Equal(10_000, store.End);
    }
}
