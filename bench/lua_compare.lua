-- The Lua side of the series benchmark (bench/lua-ratio runs it): the same
-- work as `lapdesk-cli invert bench/series-2000.Prg -N 1024 -T 5 -g 5 --fast` in a
-- plain Lua 5.4 loop, complex arithmetic written out as pairs of reals. It
-- samples F(p) = sum over k = 1..2000 of 1/(p+k)^2 on the line
-- p = gamma + j*k*2*pi/T, tapers and scales the samples as the tool does,
-- inverts them with a radix-2 FFT, undoes the damping and prints t, f(t).
local n, tEnd, gamma0 = 1024, 5.0, 5.0
local pi = math.pi

local function seriesF(pr, pi_)
  local sr, si = 0.0, 0.0
  for k = 1, 2000 do
    local ar, ai = pr + k, pi_
    local br, bi = ar * ar - ai * ai, 2.0 * ar * ai  -- (p+k)^2
    local d = br * br + bi * bi
    sr, si = sr + br / d, si - bi / d                -- + 1/(p+k)^2
  end
  return sr, si
end

-- Spectrum: F at the samples, times N/T and the Hanning weight, mirrored
-- as conjugates into the upper half.
local re, im = {}, {}
local gamma, dOmega, scale = gamma0 / tEnd, 2 * pi / tEnd, n / tEnd
for k = 0, n // 2 do
  local fr, fi = seriesF(gamma, k * dOmega)
  local w = (math.cos(k * 2 * pi / n) + 1) * 0.5
  re[k], im[k] = fr * scale * w, fi * scale * w
  if k > 0 and k < n // 2 then re[n - k], im[n - k] = re[k], -im[k] end
end

-- Inverse FFT in place: bit reversal, then butterflies with exp(+j...).
local j = 0
for i = 0, n - 2 do
  if i < j then re[i], re[j], im[i], im[j] = re[j], re[i], im[j], im[i] end
  local m = n // 2
  while m >= 1 and j & m ~= 0 do j, m = j ~ m, m // 2 end
  j = j | m
end
local len = 2
while len <= n do
  local angle = 2 * pi / len
  for start = 0, n - 1, len do
    for k = 0, len // 2 - 1 do
      local wr, wi = math.cos(angle * k), math.sin(angle * k)
      local a, b = start + k, start + k + len // 2
      local tr = wr * re[b] - wi * im[b]
      local ti = wr * im[b] + wi * re[b]
      re[b], im[b] = re[a] - tr, im[a] - ti
      re[a], im[a] = re[a] + tr, im[a] + ti
    end
  end
  len = len * 2
end

local out = {}
for k = 0, n - 1 do
  out[#out + 1] = string.format("%.3E,%.3E", k * tEnd / n, math.exp(k * gamma0 / n) * re[k] / n)
end
io.write(table.concat(out, "\n"), "\n")
